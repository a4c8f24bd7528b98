#include "tools/files/FileContent.h"

#include <array>
#include <string>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"
#include "tools/files/Descriptor.h"

namespace {

TEST(FileContent, IsTheWholeFile) {
    const test::TemporaryFolder folder;
    const std::string bytes("a\0b\xFF\r\n", 6);
    const FileContent content = readFileContent(folder.write("file", bytes));
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_EQ(content.failure, "");
}

TEST(FileContent, IsWhatIsLeftOfAFileThatHasBecomeShorter) {
    const test::TemporaryFolder folder;
    const Descriptor file(open(folder.write("file", "short").c_str(), O_RDONLY | O_CLOEXEC));
    const FileContent content = readDescriptor(file.number(), 100);
    EXPECT_EQ(content.bytes, "short");
    EXPECT_EQ(content.failure, "");
}

TEST(FileContent, IsNoMoreThanAFileHeldAtFirst) {
    const test::TemporaryFolder folder;
    const Descriptor file(open(folder.write("file", "longer").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(readDescriptor(file.number(), 4).bytes, "long");
}

TEST(FileContent, IsPutTogetherFromPieces) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    const Descriptor reader(ends[0]);
    const Descriptor writer(ends[1]);
    std::thread other([&] {
        for (const std::string piece : {"one ", "two ", "three"}) {
            EXPECT_EQ(write(writer.number(), piece.data(), piece.size()),
                      static_cast<ssize_t>(piece.size()));
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    });
    EXPECT_EQ(readDescriptor(reader.number(), 13).bytes, "one two three");
    other.join();
}

TEST(FileContent, IsNoneOfWhatCannotBeRead) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(readFileContent(folder.path("missing")).failure, "not found");
    EXPECT_EQ(readFileContent(folder.path("")).failure, "is a directory");
    EXPECT_EQ(readFileContent("/dev/null").failure, "is not a regular file");
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(readFileContent(folder.path("pipe")).failure, "is not a regular file");
    const Descriptor directory(open(folder.path("").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(readDescriptor(directory.number(), 10).failure, "is a directory");
}

} // namespace
