// What is no ordinary file, and paths as nobody writes them.

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/robustness/HostileFile.h"
#include "tests/robustness/Instrumented.h"
#include "tests/support/OrdinaryUser.h"

// The XML library asks for half of all memory to read a directory, and is refused. The allocators
// of the sanitizers would end the program instead.
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "allocator_may_return_null=1";
}
extern "C" const char* __tsan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "allocator_may_return_null=1";
}

namespace {

namespace fs = std::filesystem;
namespace outcome = test::outcome;
using std::string_literals::operator""s;
using test::completePackage;
using test::million;
using test::packageUuid;
using test::Reading;
using test::repeated;

} // namespace

TEST_F(HostileFile, ThatDoesNotExistIsRefused) {
    const Reading reading = readFrom(path());
    EXPECT_EQ(outcome::refused, reading.outcome);
    EXPECT_EQ(0U, reading.growers.size());
}

TEST_F(HostileFile, ThatIsADirectoryIsRefused) {
    fs::create_directory(path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    folder_.write(packageUuid + ".xml/inside", completePackage());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

TEST_F(HostileFile, ThatMayNotBeReadIsRefused) {
    folder_.writePackage(completePackage(), packageUuid);
    const std::string readable = "11112233-4455-6677-8899-aabbccddeeff";
    fs::permissions(folder_.writePackage(completePackage(), readable), fs::perms::all);
    test::openToEverybody(folder_.path(""));
    fs::permissions(path(), fs::perms::none);
    const auto outcomeHere = [](const std::string& uuid) {
        QenXmlParser parser;
        return test::outcomeOf(parser, uuid + ".xml");
    };
    // Superusers may read everything.
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""),
                                     [&] { return outcomeHere(packageUuid) == outcome::refused; }));
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""),
                                     [&] { return outcomeHere(readable) == outcome::read; }));
}

TEST_F(HostileFile, ThatIsAPipeIsRefusedWithoutWaitingForMore) {
    ASSERT_EQ(0, mkfifo(path().c_str(), 0600));
    // Open for both, so that nobody waits for the other end.
    const int pipe = open(path().c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_LE(0, pipe);
    const std::string content = completePackage();
    ASSERT_GT(65536U, content.size()); // fits in without a reader
    ASSERT_EQ(static_cast<ssize_t>(content.size()), write(pipe, content.data(), content.size()));
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    close(pipe);
}

TEST(SpecialFile, ThatIsASocketIsRefused) {
    const test::TemporaryFolder folder;
    const std::string path = folder.path("00112233-4455-6677-8899-aabbccddeeff.xml");
    ASSERT_EQ(0, mknod(path.c_str(), S_IFSOCK | 0600, 0));
    QenXmlParser parser;
    EXPECT_EQ(test::outcome::refused, test::outcomeOf(parser, path));
    EXPECT_EQ(0U, parser.getGrowers().size());
}

TEST_F(HostileFile, ThatIsADeviceIsRefused) {
    for (const char* device : {"/dev/null", "/dev/zero", "/dev/full", "/dev/urandom"}) {
        SCOPED_TRACE(device);
        ASSERT_TRUE(fs::exists(device));
        fs::remove(path());
        fs::create_symlink(device, path());
        EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    }
}

TEST_F(HostileFile, ThatIsALinkToItselfIsRefused) {
    fs::create_symlink(path(), path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

TEST_F(HostileFile, ThatHoldsMoreThanItsSizeSaysIsRefused) {
    fs::create_symlink("/proc/self/status", path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

namespace {

constexpr std::size_t largestBlock = 100 * million;
pugi::allocation_function allocateXml = nullptr;

void* allocateXmlUpToALimit(std::size_t size) {
    return size > largestBlock ? nullptr : allocateXml(size);
}

} // namespace

TEST_F(HostileFile, ThatIsLargerThanTheMemoryIsRefused) {
    folder_.writePackage(completePackage(), packageUuid);
    fs::resize_file(path(), 8'000'000'000); // takes no room on the disk
    allocateXml = pugi::get_memory_allocation_function();
    const pugi::deallocation_function release = pugi::get_memory_deallocation_function();
    pugi::set_memory_management_functions(allocateXmlUpToALimit, release);
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    pugi::set_memory_management_functions(allocateXml, release);
}

TEST_F(HostileFile, ThatShrinksAndGrowsWhileItIsReadIsReadInFullOrRefused) {
    const std::string whole =
        test::package(repeated(test::grower(1, test::farmWithNumbers("12.75")), 200)); // a megabyte
    const std::string described = test::describe(read(whole).growers);
    std::atomic<bool> done{false};
    std::thread writer([&] {
        const int file = open(path().c_str(), O_WRONLY | O_CLOEXEC);
        for (std::size_t turn = 0; !done; ++turn) {
            // Sometimes to nothing, sometimes in the middle.
            const std::size_t kept = turn % 3 == 0 ? 0 : whole.size() * (turn % 10) / 10;
            if (ftruncate(file, static_cast<off_t>(kept)) != 0)
                break;
            std::this_thread::yield();
            if (pwrite(file, whole.data() + kept, whole.size() - kept, static_cast<off_t>(kept)) <
                0)
                break;
            std::this_thread::yield();
        }
        close(file);
    });
    std::size_t readInFull = 0;
    const int readings = test::builtWithSanitizers ? 30 : 150;
    for (int i = 0; i < readings && !HasFailure(); ++i) {
        const Reading reading = readFrom(path());
        if (reading.outcome == outcome::read) {
            ++readInFull;
            EXPECT_TRUE(described == test::describe(reading.growers));
        } else {
            EXPECT_EQ(outcome::refused, reading.outcome);
            EXPECT_EQ(0U, reading.growers.size());
        }
    }
    done = true;
    writer.join();
    RecordProperty("readInFull", static_cast<int>(readInFull));
}

TEST_F(HostileFile, WithOddBytesInItsPathIsRead) {
    const std::string content = completePackage();
    const std::string described = test::describe(read(content).growers);
    std::string odd = "odd ";
    for (unsigned byte = 1; byte < 256; ++byte) {
        if (byte != '/')
            odd += static_cast<char>(byte);
    }
    for (const std::string& folder : {odd.substr(0, 130), odd.substr(130), "%s%n"s}) {
        SCOPED_TRACE(folder);
        fs::create_directory(folder_.path(folder));
        for (const std::string extension : {".xml", "\xFF\n'\"", "....", "%n%n", "    "}) {
            const std::string name = folder + "/" + packageUuid + extension;
            folder_.write(name, content);
            const Reading reading = readFrom(folder_.path(name));
            EXPECT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ(described, test::describe(reading.growers));
        }
    }
}

TEST_F(HostileFile, WithANulInItsPathIsTheFileBeforeIt) {
    const std::string path = folder_.write("short", completePackage()) + '\0';
    EXPECT_EQ(outcome::read, readFrom(path + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::refused,
              readFrom(folder_.path("none") + '\0' + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::refused, readFrom('\0' + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::invalid, readFrom(path + std::string(40, '{')).outcome);
}

TEST_F(HostileFile, WithAPathOfAnyLengthEndsInADocumentedWay) {
    for (std::size_t length = 0; length < 40; ++length)
        EXPECT_EQ(outcome::tooShort, readFrom(std::string(length, 'f')).outcome) << length;
    for (const std::size_t length : {std::size_t{40}, std::size_t{4096}, million})
        EXPECT_EQ(outcome::refused, readFrom(std::string(length, 'f')).outcome) << length;
}

TEST_F(HostileFile, WithAnyByteInTheUuidOfItsNameEndsInADocumentedWay) {
    const std::string content = completePackage();
    for (std::size_t at = 0; at < packageUuid.size(); ++at) {
        for (unsigned byte = 1; byte < 256; ++byte) {
            if (byte == '/')
                continue;
            std::string name = packageUuid;
            name[at] = static_cast<char>(byte);
            QenXmlParser parser;
            const std::string path = folder_.path(name + ".xml"); // of no file
            // A hyphen that must be there decides; so does a brace at the front, as it needs a
            // second one.
            const bool hyphen = packageUuid[at] == '-' && byte != '-' && at != 8;
            const bool brace = at == 0 && byte == '{';
            const bool invalid = hyphen || brace;
            EXPECT_EQ(invalid ? outcome::invalid : outcome::refused, test::outcomeOf(parser, path))
                << "byte " << byte << " at " << at;
        }
    }
}
