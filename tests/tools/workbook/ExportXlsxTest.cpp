// Runs the built command where a workbook has no room, or no memory.

#include "tools/workbook/ExportXlsx.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/FileFacts.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

namespace {

const std::string beginning =
    "qenxml: the workbook cannot be made: its parts cannot be written in ";
const std::string advice = "; TMPDIR can name another folder\n";

class XlsxExport : public testing::Test {
protected:
    XlsxExport() {
        std::string recs;
        constexpr unsigned many = 300;
        for (unsigned number = 10; number < many; ++number)
            recs += test::rec(number);
        package_ = folder_.writePackage(test::package(
            test::grower(1, test::farm(2, test::field(3, test::recommendations(recs))))));
        folder_.write("out", "old");
        std::filesystem::create_directory(parts_);
    }

    /// Expects that the present file stays, and nothing of the new one.
    void expectNothingWritten(const test::RunResult& result, const std::string& reason) const {
        EXPECT_EQ(result.errors, reason);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(test::contentOf(folder_.path("out")), "old");
        if (std::filesystem::is_directory(parts_)) {
            EXPECT_EQ(test::namesIn(parts_), std::vector<std::string>{});
        }
    }

    test::RunResult run(test::RunOptions options = {}) const {
        options.environment.push_back("TMPDIR=" + parts_);
        return test::runCommand({"export", "--format", "xlsx", "-o", folder_.path("out"), package_},
                                options);
    }

    const test::TemporaryFolder folder_;
    const std::string parts_ = folder_.path("parts");
    std::string package_;
};

TEST_F(XlsxExport, NeedsAFolderForItsParts) {
    std::filesystem::remove(parts_);
    expectNothingWritten(run(), beginning + parts_ + ": No such file or directory" + advice);
    folder_.write("parts", "");
    expectNothingWritten(run(), beginning + parts_ + ": Not a directory" + advice);
}

TEST_F(XlsxExport, NeedsAFolderThatItMayWriteTo) {
    test::openToEverybody(folder_.path(""));
    std::filesystem::permissions(parts_, std::filesystem::perms(0555));
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""), [this] {
        setenv("TMPDIR", parts_.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
        try {
            makeXlsxExport([](std::string_view) {});
        } catch (const std::exception& error) {
            return "qenxml: " + std::string(error.what()) + "\n" ==
                   beginning + parts_ + ": Permission denied" + advice;
        }
        return false;
    }));
}

TEST_F(XlsxExport, IsWholeOrLeavesThePresentFileHoweverMuchRoomThereIs) {
    const test::RunResult whole = run();
    ASSERT_EQ(whole.exitCode, 0) << whole.errors;
    const std::string workbook = test::contentOf(folder_.path("out"));
    ASSERT_EQ(workbook.substr(0, 2), "PK");
    test::RunOptions options;
    const std::string reason = beginning + parts_ + ": File too large" + advice;
    int written = 0;
    int refused = 0;
    constexpr rlim_t step = 45'000;
    constexpr rlim_t most = 900'000;
    for (rlim_t size = 0; size < most; size += step) {
        SCOPED_TRACE(size);
        folder_.write("out", "old");
        options.fileSize = size;
        const test::RunResult result = run(options);
        if (result.exitCode == 0) {
            EXPECT_TRUE(test::contentOf(folder_.path("out")) == workbook);
            ++written;
        } else {
            expectNothingWritten(result, reason);
            ++refused;
        }
    }
    EXPECT_GT(written, 0);
    EXPECT_GT(refused, 5);
}

} // namespace
