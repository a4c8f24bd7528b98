#include "tools/output/OutputPlace.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/FileFacts.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

constexpr uid_t stranger = 1234;

/// A folder that everybody may put files into, and only their owners take them out again.
class SharedFolder : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directory(path(""));
        folder_.write("secret", "secret");
        share(01777);
    }

    void share(mode_t mode) const { ASSERT_EQ(chmod(path("").c_str(), mode), 0); }

    std::string path(const std::string& name) const { return folder_.path("shared/" + name); }

    /// Gives something to a stranger, where this process may do that.
    bool give(const std::string& name) const {
        return lchown(path(name).c_str(), stranger, stranger) == 0;
    }

    /// Why nothing can be written to a name; empty when something can.
    std::string refusal(const std::string& name) const {
        try {
            const OutputPlace place(path(name));
            return "";
        } catch (const OutputFileError& error) {
            return std::string(error.what()).substr((path(name) + ": cannot be written: ").size());
        }
    }

    const test::TemporaryFolder folder_;
    const std::string trap_ = "it belongs to somebody else, in a folder that everybody may put "
                              "files into; choose another name or folder";
};

// Where this process may not give files away, what it makes is its own, and nothing is refused.

TEST_F(SharedFolder, DoesNotLeadWhereTheLinkOfAStrangerLeads) {
    fs::create_symlink("../secret", path("link"));
    EXPECT_EQ(refusal("link"), "");
    const bool given = give("link");
    EXPECT_EQ(refusal("link"), given ? trap_ : "");
    fs::create_symlink("link", path("own"));
    EXPECT_EQ(refusal("own"), given ? trap_ : "");
}

TEST_F(SharedFolder, DoesNotHaveTheFileOrThePipeOfAStrangerWritten) {
    folder_.write("shared/file", "");
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0666), 0);
    EXPECT_EQ(refusal("file"), "");
    EXPECT_EQ(refusal("pipe"), "");
    const bool given = give("file") && give("pipe"); // before anything is looked at
    EXPECT_EQ(refusal("file"), given ? trap_ : "");
    EXPECT_EQ(refusal("pipe"), given ? trap_ : "");
}

TEST_F(SharedFolder, TrustsItsOwner) {
    fs::create_symlink("../secret", path("link"));
    give("link");
    give("");
    EXPECT_EQ(refusal("link"), "");
}

TEST_F(SharedFolder, IsOnlyOneThatIsStickyAndEverybodys) {
    fs::create_symlink("../secret", path("link"));
    give("link");
    for (const mode_t mode : {0777U, 01775U, 0755U}) {
        share(mode);
        EXPECT_EQ(refusal("link"), "") << mode;
    }
}

TEST(OutputPlace, IsWhereLinksLead) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.path("a/b"));
    folder.write("a/file", "");
    fs::create_symlink("a/b/../link", folder.path("one"));
    fs::create_symlink(folder.path("a/file"), folder.path("a/link"));
    const OutputPlace place(folder.path("one"));
    EXPECT_EQ(place.name(), "file");
    struct stat found = {};
    ASSERT_EQ(fstat(place.folder(), &found), 0);
    EXPECT_EQ(found.st_ino, test::statusOf(folder.path("a")).st_ino);
    ASSERT_TRUE(place.present());
    EXPECT_EQ(place.present()->st_ino, test::statusOf(folder.path("a/file")).st_ino);
    EXPECT_FALSE(place.isSpecial());
}

TEST(OutputPlace, DoesNotReplaceLinksThatLeadInCircles) {
    const test::TemporaryFolder folder;
    fs::create_symlink("b", folder.path("a"));
    fs::create_symlink("a", folder.path("b"));
    try {
        const OutputPlace place(folder.path("a"));
        FAIL() << "found " << place.name();
    } catch (const OutputFileError& error) {
        EXPECT_EQ(error.what(),
                  folder.path("a") + ": cannot be written: Too many levels of symbolic links");
    }
}

TEST(OutputPlace, FollowsAsManyLinksAsTheSystem) {
    const test::TemporaryFolder folder;
    folder.write("0", "");
    for (int i = 1; i <= 40; ++i)
        fs::create_symlink(std::to_string(i - 1), folder.path(std::to_string(i)));
    EXPECT_EQ(OutputPlace(folder.path("40")).name(), "0");
    fs::create_symlink("40", folder.path("41"));
    EXPECT_THROW(OutputPlace(folder.path("41")), OutputFileError);
}

} // namespace
