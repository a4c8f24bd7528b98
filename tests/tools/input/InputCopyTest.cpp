#include "tools/input/InputCopy.h"

#include <csignal>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "parser/QenXmlParser.h"
#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tools/files/PackageUuid.h"

using test::namesIn;

namespace {

const std::string uuid = "aaaaaaaa-0000-4000-8000-000000000001";

/// A file as the standard input, and an empty folder for temporary files.
class InputCopies : public testing::TestWithParam<FileKind> {
protected:
    InputCopies() {
        folder_.write("input", package_);
        setenv("TMPDIR", copies_.path("").c_str(), 1);
        dup2(open(folder_.path("input").c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
    }
    ~InputCopies() override {
        dup2(before_, STDIN_FILENO);
        close(before_);
        if (folderBefore_.empty())
            unsetenv("TMPDIR");
        else
            setenv("TMPDIR", folderBefore_.c_str(), 1);
    }

    const int before_ = dup(STDIN_FILENO);
    const std::string folderBefore_ = getenv("TMPDIR") == nullptr ? "" : getenv("TMPDIR");
    const test::TemporaryFolder folder_;
    const test::TemporaryFolder copies_;
    const std::string package_ = test::package(
        test::grower(1, test::farm(2, test::field(3, test::recommendations(test::rec(4))))));
};

INSTANTIATE_TEST_SUITE_P(Kinds, InputCopies, testing::Values(FileKind::Unnamed, FileKind::Named),
                         [](const auto& kind) {
                             return kind.param == FileKind::Named ? "Named" : "Unnamed";
                         });

TEST_P(InputCopies, AreReadAsThePackageOfTheirUuid) {
    {
        const InputCopy copy(uuid, GetParam());
        EXPECT_EQ(copy.failure(), std::nullopt);
        EXPECT_TRUE(isNamedByUuid(copy.path()));
        QenXmlParser parser;
        EXPECT_TRUE(parser.parseFile(copy.path()));
        std::vector<QenGrower> growers = parser.getGrowers();
        ASSERT_EQ(growers.size(), 1U);
        EXPECT_EQ(to_string(growers[0].farms()[0].fields()[0].recs()[0].xmlFileName()), uuid);
    }
    EXPECT_EQ(namesIn(copies_.path("")), std::vector<std::string>{});
}

TEST_P(InputCopies, LeaveNothingBehindWhenASignalEndsTheProcess) {
    EXPECT_EXIT(
        {
            const InputCopy copy(uuid, GetParam());
            raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(namesIn(copies_.path("")), std::vector<std::string>{});
}

TEST_P(InputCopies, SayWhyThereIsNone) {
    setenv("TMPDIR", folder_.path("no\n").c_str(), 1);
    const InputCopy copy(uuid, GetParam());
    EXPECT_EQ(copy.failure(), "cannot be copied to a temporary file in " + folder_.path("no") +
                                  "\\n: No such file or directory");
}

TEST_P(InputCopies, AreInTheUsualFolderWhenTheNameOfAnotherIsEmpty) {
    setenv("TMPDIR", "", 1);
    EXPECT_EQ(InputCopy(uuid, GetParam()).failure(), std::nullopt);
}

TEST_F(InputCopies, HaveNoNameWhereThatIsPossible) {
    const bool possible = static_cast<bool>(openUnnamedFile(AT_FDCWD, copies_.path(""), 0600));
    const InputCopy copy(uuid);
    EXPECT_EQ(namesIn(copies_.path("")).size(), possible ? 0U : 1U);
}

} // namespace
