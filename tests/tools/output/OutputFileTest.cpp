#include "tools/output/OutputFile.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/FileFacts.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

using test::contentOf;
using test::modeOf;
using test::namesIn;

namespace {

const std::vector<std::string> onlyTheOutput = {"out"};

/// With and without files that have no name.
class OutputFileOfAnyKind : public testing::TestWithParam<FileKind> {
protected:
    std::string path(const std::string& name = "out") const { return folder_.path(name); }

    const test::TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(Kinds, OutputFileOfAnyKind,
                         testing::Values(FileKind::Unnamed, FileKind::Named), [](const auto& kind) {
                             return kind.param == FileKind::Named ? "Named" : "Unnamed";
                         });

TEST_P(OutputFileOfAnyKind, HasItsNameOnlyWhenItIsWhole) {
    OutputFile file(path(), GetParam());
    file.write("one ");
    EXPECT_FALSE(std::filesystem::exists(path()));
    file.write("two");
    file.commit();
    EXPECT_EQ(contentOf(path()), "one two");
    EXPECT_EQ(file.remark(), "");
    EXPECT_EQ(namesIn(path("")), onlyTheOutput);
}

TEST_P(OutputFileOfAnyKind, LeavesNothingWhenItIsNotWhole) {
    folder_.write("out", "old");
    {
        OutputFile file(path(), GetParam());
        file.write("new");
    }
    EXPECT_EQ(contentOf(path()), "old");
    EXPECT_EQ(namesIn(path("")), onlyTheOutput);
}

TEST_P(OutputFileOfAnyKind, KeepsTheModeOfTheFileThatItReplaces) {
    folder_.write("out", "old");
    ASSERT_EQ(chmod(path().c_str(), 0640), 0);
    OutputFile file(path(), GetParam());
    file.write("new");
    file.commit();
    EXPECT_EQ(contentOf(path()), "new");
    EXPECT_EQ(modeOf(path()), 0640U);
    EXPECT_EQ(file.remark(), "");
}

TEST_P(OutputFileOfAnyKind, GivesNobodyTheRightsOfTheOwnerOrTheGroup) {
    folder_.write("out", "old");
    ASSERT_EQ(chmod(path().c_str(), 06755), 0);
    OutputFile(path(), GetParam()).commit();
    EXPECT_EQ(modeOf(path()), 0755U);
}

TEST_P(OutputFileOfAnyKind, KeepsTheOwnerAndTheGroupOfTheFileThatItReplaces) {
    folder_.write("out", "old");
    // Superusers only may give a file away; for others it stays as it is.
    constexpr uid_t other = 1234;
    const bool given = chown(path().c_str(), other, other + 1) == 0;
    ASSERT_EQ(chmod(path().c_str(), 0664), 0);
    OutputFile file(path(), GetParam());
    file.commit();
    EXPECT_EQ(test::statusOf(path()).st_uid, given ? other : geteuid());
    EXPECT_EQ(test::statusOf(path()).st_gid, given ? other + 1 : getegid());
    EXPECT_EQ(modeOf(path()), 0664U);
    EXPECT_EQ(file.remark(), "");
}

TEST_P(OutputFileOfAnyKind, SaysWhenTheOwnerCannotBeKeptAndGivesNoRightsToAnotherGroup) {
    folder_.write("out", "old");
    ASSERT_EQ(chmod(path().c_str(), 0672), 0);
    test::openToEverybody(path(""));
    const std::string remark = test::isSuperuser()
                                   ? "it belonged to somebody else, to whom it could not be left; "
                                     "it is yours now"
                                   : "";
    EXPECT_TRUE(test::asOrdinaryUser(path(""), [&] {
        OutputFile file("out", GetParam());
        file.commit();
        return file.remark() == remark;
    }));
    EXPECT_EQ(modeOf(path()), test::isSuperuser() ? 0622U : 0672U);
}

TEST_P(OutputFileOfAnyKind, FollowsTheUmaskWhenItIsNew) {
    const mode_t before = umask(027);
    OutputFile file(path(), GetParam());
    umask(before);
    file.commit();
    EXPECT_EQ(modeOf(path()), 0640U);
}

TEST_P(OutputFileOfAnyKind, TakesANameOfTheLargestLength) {
    const std::string name(255, 'n');
    OutputFile(path(name), GetParam()).commit();
    EXPECT_EQ(namesIn(path("")), std::vector<std::string>{name});
}

/// Takes the first names that an output could have until it is whole.
void takeNames(const test::TemporaryFolder& folder, int number) {
    for (int i = 0; i < number; ++i)
        folder.write(".qenxml-" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp", "");
}

TEST_P(OutputFileOfAnyKind, TakesTheFirstOfAHundredNamesThatIsFree) {
    takeNames(folder_, 99);
    OutputFile file(path(), GetParam());
    file.commit();
    EXPECT_EQ(namesIn(path("")).size(), 100U);
    takeNames(folder_, 100);
    try {
        OutputFile(path("other"), GetParam()).commit();
        FAIL() << "found a name";
    } catch (const OutputFileError& error) {
        EXPECT_EQ(error.what(), path("other") + ": cannot be written: File exists");
    }
    EXPECT_EQ(namesIn(path("")).size(), 101U);
}

TEST_P(OutputFileOfAnyKind, MayBeOneOfTwoInAFolderAtATime) {
    OutputFile one(path("one"), GetParam());
    OutputFile two(path("two"), GetParam());
    one.write("1");
    two.write("2");
    two.commit();
    one.commit();
    EXPECT_EQ(contentOf(path("one")), "1");
    EXPECT_EQ(contentOf(path("two")), "2");
}

TEST_P(OutputFileOfAnyKind, LeavesOtherNamesOfTheFileThatItReplacesWhatTheyWere) {
    folder_.write("out", "old");
    std::filesystem::create_hard_link(path(), path("other"));
    OutputFile file(path(), GetParam());
    file.write("new");
    file.commit();
    EXPECT_EQ(contentOf(path()), "new");
    EXPECT_EQ(contentOf(path("other")), "old");
}

TEST_P(OutputFileOfAnyKind, ReplacesWhatASymbolicLinkLeadsTo) {
    std::filesystem::create_directory(path("other"));
    folder_.write("other/file", "old");
    std::filesystem::create_symlink("other/file", path("link"));
    OutputFile file(path("link"), GetParam());
    file.write("new");
    file.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(contentOf(path("other/file")), "new");
    EXPECT_EQ(namesIn(path("other")), std::vector<std::string>{"file"});
}

TEST_P(OutputFileOfAnyKind, DoesNotReplaceWhatMayNotBeWritten) {
    folder_.write("out", "old");
    ASSERT_EQ(chmod(path().c_str(), 0444), 0);
    test::openToEverybody(path(""));
    EXPECT_TRUE(test::asOrdinaryUser(path(""), [&] {
        try {
            OutputFile file("out", GetParam());
            return false;
        } catch (const OutputFileError& error) {
            return error.what() == std::string("out: cannot be written: Permission denied");
        }
    }));
    EXPECT_EQ(contentOf(path()), "old");
}

TEST(OutputFile, HasNoNameAtAllUntilItIsWhole) {
    const test::TemporaryFolder folder;
    const bool possible = static_cast<bool>(openUnnamedFile(AT_FDCWD, folder.path(""), 0600));
    OutputFile file(folder.path("out"));
    file.write("text");
    EXPECT_EQ(namesIn(folder.path("")).size(), possible ? 0U : 1U);
    file.commit();
    EXPECT_EQ(namesIn(folder.path("")), onlyTheOutput);
}

TEST(OutputFile, HasTheFirstNameThatIsFreeUntilItIsWhole) {
    const test::TemporaryFolder folder;
    const std::string name = ".qenxml-" + std::to_string(getpid()) + "-";
    const OutputFile one(folder.path("one"), FileKind::Named);
    const OutputFile two(folder.path("two"), FileKind::Named);
    EXPECT_EQ(namesIn(folder.path("")), (std::vector<std::string>{name + "0.tmp", name + "1.tmp"}));
}

TEST(OutputFile, IsNobodyElsesUntilItReplacesAnother) {
    const test::TemporaryFolder folder;
    folder.write("out", "old");
    const OutputFile file(folder.path("out"), FileKind::Named);
    EXPECT_EQ(modeOf(folder.path(namesIn(folder.path("")).front())) & 077U, 0U);
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
    EXPECT_TRUE(file.isDirect());
    file.write("gone");
    file.commit();
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
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
    expectFailure(folder.path("."), folder.path(".") + ": cannot be written: Is a directory");
    expectFailure("/dev/full", "/dev/full: cannot be written: No space left on device");
}

} // namespace
