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

const std::string help = "Examples:\n"
                         "  qenxml show 00112233-4455-6677-8899-aabbccddeeff.xml\n"
                         "  qenxml show --merge season/*.xml\n"
                         "  qenxml check outgoing/\n"
                         "  qenxml show --help\n"
                         "\n"
                         "Reads prescription packages for farm machinery.\n"
                         "\n"
                         "Usage: qenxml [OPTION...] COMMAND\n"
                         "\n"
                         "Options:\n"
                         "  -h,--help     Print this help\n"
                         "  --version     Print the version\n"
                         "\n"
                         "Commands:\n"
                         "  show          Print what packages hold\n"
                         "  check         Find what is wrong with packages\n"
                         "\n" +
                         exitCodes;

const std::string showHelp =
    "Examples:\n"
    "  qenxml show 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml show --merge season/*.xml      one tree of all packages in a folder\n"
    "  qenxml show packages/*.xml | less     page by page\n"
    "\n"
    "Print what packages hold\n"
    "\n"
    "Usage: qenxml show [OPTION...] FILE...\n"
    "\n"
    "Arguments:\n"
    "  FILE          Package files, named UUID.xml\n"
    "\n"
    "Options:\n"
    "  -h,--help     Print this help\n"
    "  --merge       Print one tree of all packages; each rec names its package\n"
    "\n" +
    exitCodes;

TEST(ExitCode, HasTheValuesThatTheHelpExplains) {
    EXPECT_EQ(static_cast<int>(ExitCode::Success), 0);
    EXPECT_EQ(static_cast<int>(ExitCode::Failure), 1);
    EXPECT_EQ(static_cast<int>(ExitCode::WrongUsage), 2);
    EXPECT_EQ(std::string(exitCodeHelp) + "\n", exitCodes);
}

TEST(CommandLine, PrintsHelp) {
    for (const std::string option : {"-h", "--help"}) {
        const RunResult result = runCommand({option});
        EXPECT_EQ(result.output, help);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.exitCode, 0);
    }
}

TEST(CommandLine, PrintsTheHelpOfACommand) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"show", "-h"}, {"show", "--help"}, {"show", "a", "--help"}}) {
        const RunResult result = runCommand(arguments);
        EXPECT_EQ(result.output, showHelp);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.exitCode, 0);
    }
}

TEST(CommandLine, PrintsTheVersion) {
    const RunResult result = runCommand({"--version"});
    EXPECT_EQ(result.output, "qenxml 1.0.0\n");
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
