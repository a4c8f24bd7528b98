// Runs the built command on the standard input.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/tools/RunCommand.h"

using test::RunOptions;
using test::RunResult;

namespace {

const std::string uuid = "aaaaaaaa-0000-4000-8000-000000000001";

/// All commands, each with what follows the reason when nothing of the standard input is read.
struct CommandWithConsequence {
    std::vector<std::string> words;
    std::string before;
    std::string after;
};

const std::string skipped = "; the file is skipped\n";

const std::vector<CommandWithConsequence> commands = {
    {{"show"}, "qenxml: -: ", skipped},
    {{"export", "--format", "csv"}, "qenxml: -: ", skipped},
    {{"report"}, "qenxml: -: ", skipped},
    {{"check"},
     "-:1:1: error: ",
     " [unreadable]\n  so:    nothing of the file is read\n\n-: 1 error\n"},
    {{"check", "--json"},
     "\"found\":\"",
     "\",\"consequence\":{\"kind\":\"nothing-read\",\"text\":\"nothing of the file is "
     "read\"},\"fingerprint\":\""},
};

class StandardInput : public testing::Test {
protected:
    RunResult run(std::vector<std::string> words, RunOptions options) {
        words.insert(words.end(), {"--uuid", uuid, "-"});
        if (options.environment.empty())
            options.environment = {"TMPDIR=" + copies_.path("")};
        return test::runCommand(words, options);
    }

    /// Expects that every command says why nothing could be read, fails, and leaves nothing behind.
    void expectFailure(const std::string& reason, const RunOptions& options) {
        for (const CommandWithConsequence& command : commands) {
            const RunResult result = run(command.words, options);
            EXPECT_NE((result.output + result.errors).find(command.before + reason + command.after),
                      std::string::npos)
                << result.output << result.errors;
            EXPECT_EQ(result.exitCode, 1);
            EXPECT_EQ(test::namesIn(copies_.path("")), std::vector<std::string>{});
        }
    }

    const test::TemporaryFolder folder_;
    const test::TemporaryFolder copies_;
    const std::string package_ = test::package(
        test::grower(1, test::farm(2, test::field(3, test::recommendations(test::rec(4))))));
};

TEST_F(StandardInput, IsReadByAllCommands) {
    RunOptions options;
    options.input = folder_.write("input", package_);
    for (const CommandWithConsequence& command : commands) {
        const RunResult result = run(command.words, options);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(test::namesIn(copies_.path("")), std::vector<std::string>{});
    }
    EXPECT_NE(run({"show"}, options).output.find(test::uuidText(4)), std::string::npos);
}

TEST_F(StandardInput, ThatIsAFolderIsNotRead) {
    RunOptions options;
    options.input = folder_.path("");
    expectFailure("is a directory", options);
}

TEST_F(StandardInput, ThatIsNotReadIsNoFindingWhenNobodyWantsIt) {
    RunOptions options;
    options.input = folder_.path("");
    const RunResult result = run({"check", "--json", "--ignore", "unreadable"}, options);
    EXPECT_EQ(result.output, "{\"files\": [\n  {\"file\": \"-\", \"findings\": [],\n"
                             "   \"errors\": 0, \"warnings\": 0, \"notes\": 0}],\n"
                             " \"codes\": [],\n"
                             " \"unreadable\": 0, \"errors\": 0, \"warnings\": 0, \"notes\": 0}\n");
}

TEST_F(StandardInput, ThatIsClosedIsNotRead) {
    RunOptions options;
    options.closed = {0};
    expectFailure("cannot be read: Bad file descriptor", options);
}

TEST_F(StandardInput, IsNotReadWithoutAFolderForItsCopy) {
    RunOptions options;
    options.input = folder_.write("input", package_);
    options.environment = {"TMPDIR=" + folder_.path("input")};
    expectFailure("cannot be copied to a temporary file in " + folder_.path("input") +
                      ": Not a directory",
                  options);
}

TEST_F(StandardInput, IsNotReadInPartWhenThereIsNoRoomForAllOfIt) {
    RunOptions options;
    // What fits in is a whole package.
    options.input = folder_.write("input", package_ + std::string(100'000, ' '));
    options.fileSize = 70'000; // in the middle of what is written at a time
    expectFailure("cannot be copied to a temporary file in " + copies_.path("") +
                      ": File too large",
                  options);
}

TEST_F(StandardInput, IsCopiedToTheUsualFolderWhenTheNameOfAnotherIsEmpty) {
    RunOptions options;
    options.input = folder_.write("input", package_);
    options.environment = {"TMPDIR="};
    for (const CommandWithConsequence& command : commands)
        EXPECT_EQ(run(command.words, options).exitCode, 0);
}

} // namespace
