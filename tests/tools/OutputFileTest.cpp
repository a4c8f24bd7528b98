#include "tools/OutputFile.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace {

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

unsigned modeOf(const std::string& path) {
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777U;
}

const std::vector<std::string> onlyTheOutput = {"out"};

TEST(OutputFile, HasItsNameOnlyWhenItIsWhole) {
    const test::TemporaryFolder folder;
    OutputFile file(folder.path("out"));
    file.write("one ");
    EXPECT_FALSE(std::filesystem::exists(folder.path("out")));
    file.write("two");
    file.commit();
    EXPECT_EQ(contentOf(folder.path("out")), "one two");
    EXPECT_EQ(namesIn(folder.path("")), onlyTheOutput);
}

TEST(OutputFile, LeavesNothingWhenItIsNotWhole) {
    const test::TemporaryFolder folder;
    folder.write("out", "old");
    {
        OutputFile file(folder.path("out"));
        file.write("new");
    }
    EXPECT_EQ(contentOf(folder.path("out")), "old");
    EXPECT_EQ(namesIn(folder.path("")), onlyTheOutput);
}

TEST(OutputFile, KeepsTheModeOfTheFileThatItReplaces) {
    const test::TemporaryFolder folder;
    folder.write("out", "old");
    ASSERT_EQ(chmod(folder.path("out").c_str(), 0640), 0);
    OutputFile file(folder.path("out"));
    file.write("new");
    file.commit();
    EXPECT_EQ(contentOf(folder.path("out")), "new");
    EXPECT_EQ(modeOf(folder.path("out")), 0640U);
}

TEST(OutputFile, FollowsTheUmaskWhenItIsNew) {
    const test::TemporaryFolder folder;
    const mode_t before = umask(027);
    OutputFile file(folder.path("out"));
    umask(before);
    file.commit();
    EXPECT_EQ(modeOf(folder.path("out")), 0640U);
}

TEST(OutputFile, ReplacesWhatASymbolicLinkLeadsTo) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("other"));
    folder.write("other/file", "old");
    std::filesystem::create_symlink("other/file", folder.path("link"));
    OutputFile file(folder.path("link"));
    file.write("new");
    file.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
    EXPECT_EQ(contentOf(folder.path("other/file")), "new");
    EXPECT_EQ(namesIn(folder.path("other")), std::vector<std::string>{"file"});
}

TEST(OutputFile, CreatesWhatADanglingLinkLeadsTo) {
    const test::TemporaryFolder folder;
    std::filesystem::create_symlink("out", folder.path("link"));
    OutputFile file(folder.path("link"));
    file.write("new");
    file.commit();
    EXPECT_EQ(contentOf(folder.path("out")), "new");
}

TEST(OutputFile, WritesToADeviceWithoutReplacingIt) {
    OutputFile file("/dev/null");
    file.write("gone");
    file.commit();
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(OutputFile, TakesANameOfTheLargestLength) {
    const test::TemporaryFolder folder;
    const std::string name(255, 'n');
    OutputFile file(folder.path(name));
    file.commit();
    EXPECT_EQ(namesIn(folder.path("")), std::vector<std::string>{name});
}

void expectFailure(const std::string& path, const std::string& message) {
    try {
        OutputFile file(path);
        file.write("text");
        file.commit();
        FAIL() << path << " could be written";
    } catch (const OutputFileError& error) {
        EXPECT_EQ(error.what(), message);
    }
}

TEST(OutputFile, SaysWhichFileCannotBeWrittenAndWhy) {
    const test::TemporaryFolder folder;
    expectFailure(folder.path("no/out"),
                  folder.path("no/out") + ": cannot be written: No such file or directory");
    expectFailure(folder.path(""), folder.path("") + ": cannot be written: Is a directory");
    expectFailure("/dev/full", "/dev/full: cannot be written: No space left on device");
}

TEST(OutputFile, WritesTwoFilesInOneFolderAtATime) {
    const test::TemporaryFolder folder;
    OutputFile one(folder.path("one"));
    OutputFile two(folder.path("two"));
    one.write("1");
    two.write("2");
    two.commit();
    one.commit();
    EXPECT_EQ(contentOf(folder.path("one")), "1");
    EXPECT_EQ(contentOf(folder.path("two")), "2");
}

TEST(TemporaryName, IsGoneWhenASignalEndsTheProcess) {
    const test::TemporaryFolder folder;
    EXPECT_EXIT(
        {
            std::filesystem::create_directory(folder.path("sub"));
            const TemporaryName sub(folder.path("sub"));
            const TemporaryName file(folder.write("sub/file", "text"));
            raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(namesIn(folder.path("")), std::vector<std::string>{});
}

} // namespace
