// Runs the built command: what it says about itself, and how it answers wrong usage.

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/version.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"
#include "tools/check/FindingCodes.h"
#include "tools/commands/ExitCode.h"

using test::Output;
using test::runCommand;
using test::RunOptions;
using test::RunResult;

namespace {

const std::string exitCodes =
    "Exit codes:\n"
    "  0  all files were read\n"
    "  1  some file could not be read; or a folder or a list names none, or not all; or the\n"
    "     output could not be written\n"
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
        {{"bogus"}, "\"bogus\" is no command; try \"qenxml --help\""},
        {{"--bogus"}, "\"--bogus\" is not understood here; try \"qenxml --help\""},
        {{"--merge"}, "\"--merge\" is not understood here; try \"qenxml --help\""},
        {{"-x\n\x1b"}, "\"-x\\n\\x1B\" is not understood here; try \"qenxml --help\""},
        {{"show"}, "FILE or --files-from is required; try \"qenxml show --help\""},
        {{"show", "--merge"}, "FILE or --files-from is required; try \"qenxml show --help\""},
        {{"show", "--"}, "FILE or --files-from is required; try \"qenxml show --help\""},
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
        {{"show", "-0", "a.xml"}, "--null requires --files-from; try \"qenxml show --help\""},
        {{"show", "--files-from", "-", "--uuid", "00112233-4455-6677-8899-aabbccddeeff", "-"},
         "\"-\" is given more than once; try \"qenxml show --help\""},
        {{"show", "--files-from", "missing"},
         "--files-from: missing: not found; try \"qenxml show --help\""},
        {{"export", "a.xml"}, "--format is required; try \"qenxml export --help\""},
        {{"export", "--format", "csv"},
         "FILE or --files-from is required; try \"qenxml export --help\""},
        {{"report"}, "FILE or --files-from is required; try \"qenxml report --help\""},
        {{"show", "--version"}, "\"--version\" is not understood here; try \"qenxml show --help\""},
    };
    for (const Case& wrong : cases) {
        const RunResult result = runCommand(wrong.arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "qenxml: " + wrong.message + "\n");
        EXPECT_EQ(result.exitCode, 2);
    }
}

TEST(CommandLine, SuggestsTheCommandOrOptionThatIsMeant) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"chekc", "a.xml"}, "\"chekc\" is no command; is check meant? try \"qenxml --help\""},
        {{"Show"}, "\"Show\" is no command; is show meant? try \"qenxml --help\""},
        {{"--vresion"},
         "\"--vresion\" is not understood here; is --version meant? try \"qenxml --help\""},
        {{"show", "--mereg", "a.xml"},
         "\"--mereg\" is not understood here; is --merge meant? try \"qenxml show --help\""},
        {{"export", "--fromat=csv", "a.xml"},
         "\"--fromat=csv\" is not understood here; is --format meant? "
         "try \"qenxml export --help\""},
        {{"check", "--ignore", "empty-nam", "a.xml"},
         "--ignore: \"empty-nam\" is no code of a finding; is empty-name meant? "
         "try \"qenxml check --help\""},
        {{""}, "\"\" is no command; try \"qenxml --help\""},
    };
    for (const auto& [arguments, message] : cases) {
        const RunResult result = runCommand(arguments);
        EXPECT_EQ(result.errors, "qenxml: " + message + "\n");
        EXPECT_EQ(result.exitCode, 2);
    }
}

TEST(CommandLine, ShowsInTheUsageWhatIsRequired) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"show", "qenxml show [OPTION...] [FILE...]"},
        {"check", "qenxml check [OPTION...] [FILE...]"},
        {"export", "qenxml export --format FORMAT [OPTION...] [FILE...]"},
        {"report", "qenxml report [OPTION...] [FILE...]"},
    };
    for (const auto& [command, usage] : cases)
        EXPECT_NE(runCommand({command, "--help"}).output.find("\nUsage: " + usage + "\n"),
                  std::string::npos);
}

/// Files whose names the parser of the command line would take for lists, and the folder of one.
class BracketedNames : public testing::Test {
protected:
    RunResult run(const std::vector<std::string>& arguments) {
        RunOptions options;
        options.folder = folder_.path("");
        return runCommand(arguments, options);
    }

    test::TemporaryFolder folder_;
};

TEST_F(BracketedNames, AreTakenAsTheyAreGivenForInputs) {
    for (const std::string name : {"[2026]", "[a,b]", "[]", "{}", "[[x]]", "{a}", "[a", "++"}) {
        const std::string skipped = "qenxml: " + name + ": not found; the file is skipped\n";
        EXPECT_EQ(run({"show", name}).errors, skipped);
        EXPECT_EQ(run({"show", "--", name}).errors, skipped);
        EXPECT_EQ(run({"show", "a", name}).errors,
                  "qenxml: a: not found; the file is skipped\n" + skipped +
                      "qenxml: 2 of 2 files could not be read, or only in part\n");
        EXPECT_EQ(run({"export", "--format", "csv", name}).errors, skipped);
        EXPECT_EQ(run({"report", name}).errors, skipped);
        EXPECT_NE(run({"check", name}).output.find(name + ":1:1: error: not found [unreadable]"),
                  std::string::npos);
    }
}

TEST_F(BracketedNames, AreTakenAsTheyAreGivenForFoldersAndOutputs) {
    std::filesystem::create_directory(folder_.path("[2026]"));
    std::filesystem::create_directory(folder_.path("2026"));
    const std::string name = test::uuidText(1) + ".xml";
    folder_.write("[2026]/" + name, "<RecPackage/>");
    EXPECT_NE(run({"check", "[2026]"}).output.find("[2026]/" + name + ": 1 warning"),
              std::string::npos);
    for (const std::string output : {"[out,x]", "[out]", "{}", "{out}"}) {
        for (const std::vector<std::string>& option :
             {std::vector<std::string>{"-o", output}, {"--output=" + output}}) {
            std::vector<std::string> arguments = {"report", "[2026]/" + name};
            arguments.insert(arguments.end(), option.begin(), option.end());
            EXPECT_EQ(run(arguments).exitCode, 0) << output;
            EXPECT_TRUE(std::filesystem::remove(folder_.path(output))) << output;
        }
    }
}

TEST_F(BracketedNames, AreShownAsTheyAreGivenInMessages) {
    EXPECT_EQ(run({"[x]"}).errors, "qenxml: \"[x]\" is no command; try \"qenxml --help\"\n");
    EXPECT_EQ(run({"check", "--ignore", "[x]", "a"}).errors,
              "qenxml: --ignore: \"[x]\" is no code of a finding; try \"qenxml check --help\"\n");
    EXPECT_EQ(run({"explain", "[x]"}).errors,
              "qenxml: CODE: \"[x]\" is no code of a finding; try \"qenxml explain --help\"\n");
    const std::string beginning = "qenxml: --format: [csv] not in {";
    EXPECT_EQ(run({"export", "--format", "[csv]", "a"}).errors.substr(0, beginning.size()),
              beginning);
}

TEST(CommandLine, TakesWordsThatAreCommandsForFilesAfterACommand) {
    EXPECT_EQ(runCommand({"show", "check"}).errors,
              "qenxml: check: not found; the file is skipped\n");
}

TEST(CommandLine, RefusesToFillATerminalWithAPage) {
    RunOptions terminal;
    terminal.output = Output::Terminal;
    const RunResult refused = runCommand({"report", "a.xml"}, terminal);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors,
              "qenxml: the page would fill the terminal; name a file for it, such as "
              "\"-o report.html\"; try \"qenxml report --help\"\n");
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(runCommand({"report", "-o", "-", "a.xml"}, terminal).output.find("</html>"),
              std::string::npos);
}

TEST(CommandLine, PrintsTheCodesOfFindings) {
    std::string codes;
    for (const FindingKind& kind : findingKinds)
        codes += std::string(kind.code) + "\n";
    const RunResult result = runCommand({"check", "--codes"});
    EXPECT_EQ(result.output, codes);
    EXPECT_EQ(result.exitCode, 0);
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
