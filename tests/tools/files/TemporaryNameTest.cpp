#include "tools/files/TemporaryName.h"

#include <array>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "tests/support/FileFacts.h"
#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;
using test::namesIn;

namespace {

const std::vector<std::string> nothing;
const std::array signals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU, SIGXFSZ};

/// What starts the tests may have some signals ignored, as nohup and "&" in a script do; a process
/// keeps that, and such signals do not end it.
[[maybe_unused]] const bool signalsEndTheProcess = [] {
    for (const int signal : signals)
        std::signal(signal, SIG_DFL);
    return true;
}();

class TemporaryNames : public testing::Test {
protected:
    /// Makes a file, or a folder.
    static bool makeFile(const std::string& name) {
        return close(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600)) == 0;
    }
    static bool makeFolder(const std::string& name) { return fs::create_directory(name); }

    const test::TemporaryFolder folder_;
};

TEST_F(TemporaryNames, GoAwayWithTheirObjects) {
    {
        TemporaryName sub(folder_.path("sub"));
        TemporaryName file(folder_.path("sub/file"));
        EXPECT_TRUE(sub.make(makeFolder));
        EXPECT_TRUE(file.make(makeFile));
        EXPECT_TRUE(fs::exists(folder_.path("sub/file")));
    }
    EXPECT_EQ(namesIn(folder_.path("")), nothing);
}

TEST_F(TemporaryNames, GoAwayWhenASignalEndsTheProcess) {
    for (const int signal : signals) {
        EXPECT_EXIT(
            {
                const rlimit none = {}; // no core files
                setrlimit(RLIMIT_CORE, &none);
                TemporaryName sub(folder_.path("sub"));
                TemporaryName file(folder_.path("sub/file"));
                if (sub.make(makeFolder) && file.make(makeFile))
                    raise(signal);
            },
            testing::KilledBySignal(signal), "");
        EXPECT_EQ(namesIn(folder_.path("")), nothing) << signal;
    }
}

TEST_F(TemporaryNames, GoAwayWhenTheSignalComesAsSoonAsTheyAreMade) {
    EXPECT_EXIT(
        {
            TemporaryName file(folder_.path("file"));
            file.make([](const std::string& name) {
                const bool made = makeFile(name);
                raise(SIGTERM);
                return made;
            });
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(namesIn(folder_.path("")), nothing);
}

TEST_F(TemporaryNames, LeaveTheirRoomToOthers) {
    EXPECT_EXIT(
        {
            TemporaryName last(folder_.path("last"));
            for (int i = 0; i < 20; ++i) {
                TemporaryName first(folder_.path("first"));
                first.make(makeFile);
                if (i % 2 == 0)
                    first.release();
            }
            last.make(makeFile);
            raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(namesIn(folder_.path("")), std::vector<std::string>{"first"});
}

TEST_F(TemporaryNames, LeaveAloneWhatOthersHaveMade) {
    folder_.write("file", "of others");
    {
        TemporaryName file(folder_.path("file"));
        EXPECT_FALSE(file.make(makeFile));
    }
    EXPECT_EQ(test::contentOf(folder_.path("file")), "of others");
}

TEST_F(TemporaryNames, StayWhenTheyAreReleased) {
    {
        TemporaryName file(folder_.path("file"));
        ASSERT_TRUE(file.make(makeFile));
        file.release();
    }
    EXPECT_EQ(namesIn(folder_.path("")), std::vector<std::string>{"file"});
}

} // namespace
