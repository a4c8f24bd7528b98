// Runs the built command: what it says about itself, and how it answers wrong usage.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/version.h"
#include "tests/tools/RunCommand.h"
#include "tools/ExitCode.h"

using test::Output;
using test::runCommand;
using test::RunOptions;
using test::RunResult;

namespace {

const std::string exitCodes =
    "Exit codes:\n"
    "  0  all files were read\n"
    "  1  some file could not be read, or the output could not be written\n"
    "  2  wrong usage; nothing was read\n";

TEST(ExitCode, HasTheValuesThatTheHelpExplains) {
    EXPECT_EQ(static_cast<int>(ExitCode::Success), 0);
    EXPECT_EQ(static_cast<int>(ExitCode::Failure), 1);
    EXPECT_EQ(static_cast<int>(ExitCode::WrongUsage), 2);
    EXPECT_EQ(std::string(exitCodeHelp) + "\n", exitCodes);
}

// What --help prints is among the golden files.
TEST(CommandLine, TakesTheShortAndTheLongOptionForHelp) {
    EXPECT_EQ(runCommand({"-h"}).output, runCommand({"--help"}).output);
    for (const std::string command : {"show", "check", "export", "report"}) {
        const RunResult result = runCommand({command, "a", "--help"});
        EXPECT_EQ(result.output.substr(0, result.output.find(command)), "Examples:\n  qenxml ");
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(runCommand({command, "-h"}).output, result.output);
    }
}

TEST(CommandLine, PrintsTheVersion) {
    const RunResult result = runCommand({"--version"});
    EXPECT_EQ(result.output, "qenxml " QENXML_VERSION "\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST(CommandLine, AnswersWrongUsageWithAMessageAndAHint) {
    struct Case {
        std::vector<std::string> arguments;
        std::string message;
    };
    const std::vector<Case> cases = {
        {{}, "a command is required; try \"qenxml --help\""},
        {{"bogus"}, "\"bogus\" is not understood here; try \"qenxml --help\""},
        {{"--bogus"}, "\"--bogus\" is not understood here; try \"qenxml --help\""},
        {{"--merge"}, "\"--merge\" is not understood here; try \"qenxml --help\""},
        {{"-x\n\x1b"}, "\"-x\\n\\x1B\" is not understood here; try \"qenxml --help\""},
        {{"show"}, "FILE is required; try \"qenxml show --help\""},
        {{"show", "--merge"}, "FILE is required; try \"qenxml show --help\""},
        {{"show", "--"}, "FILE is required; try \"qenxml show --help\""},
        {{"show", "--bogus"}, "\"--bogus\" is not understood here; try \"qenxml show --help\""},
        {{"show", "a.xml", "-x"}, "\"-x\" is not understood here; try \"qenxml show --help\""},
        {{"show", "-"},
         "\"-\" requires --uuid: the standard input has no name that carries the UUID of the "
         "package; try \"qenxml show --help\""},
        {{"show", "--uuid", "00112233-4455-6677-8899-aabbccddeeff", "-", "-"},
         "\"-\" is given more than once; try \"qenxml show --help\""},
        {{"show", "--uuid", "00112233-4455-6677-8899-aabbccddeeff", "a.xml"},
         "--uuid is for the standard input, which no \"-\" asks for; try \"qenxml show --help\""},
        {{"show", "--uuid", "00112233-4455-6677-8899-aabbccddeefg", "-"},
         "--uuid: a UUID such as 00112233-4455-6677-8899-aabbccddeeff is expected; "
         "try \"qenxml show --help\""},
        {{"export", "a.xml"}, "--format is required; try \"qenxml export --help\""},
        {{"export", "--format", "csv"}, "FILE is required; try \"qenxml export --help\""},
        {{"export", "--format", "xls", "a.xml"},
         "--format: xls not in {csv,geojson,json}; try \"qenxml export --help\""},
        {{"report"}, "FILE is required; try \"qenxml report --help\""},
        {{"show", "--version"}, "\"--version\" is not understood here; try \"qenxml show --help\""},
    };
    for (const Case& wrong : cases) {
        const RunResult result = runCommand(wrong.arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "qenxml: " + wrong.message + "\n");
        EXPECT_EQ(result.exitCode, 2);
    }
}

TEST(CommandLine, ReportsThatHelpCannotBeWrittenUnlessItsReaderHasSeenEnough) {
    for (const std::string option : {"--help", "--version"}) {
        RunOptions options;
        options.output = Output::FullDisk;
        const RunResult full = runCommand({option}, options);
        EXPECT_EQ(full.errors,
                  "qenxml: the output could not be written: No space left on device\n");
        EXPECT_EQ(full.exitCode, 1);
        options.output = Output::ClosedPipe;
        const RunResult closed = runCommand({option}, options);
        EXPECT_EQ(closed.errors, "");
        EXPECT_EQ(closed.exitCode, 1);
    }
}

} // namespace
