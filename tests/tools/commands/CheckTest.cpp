#include "tools/commands/Check.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"

#include "tests/tools/RunCommand.h"

namespace {

using test::RunResult;

const std::string named = "<GrowerName>Ana</GrowerName>";
const std::string withNote = test::package(test::grower(1, ""));
const std::string withWarning = "<RecPackage/>";
const std::string withError = test::package("<Grower>" + named + "</Grower>");
const std::string withNothing = test::package(test::grower(1, named));

class Check : public testing::Test {
protected:
    /// Writes a package, and returns the name by which the command knows it.
    std::string write(unsigned number, const std::string& content) const {
        const std::string name = test::uuidText(number) + ".xml";
        folder_.write(name, content);
        return name;
    }

    RunResult run(std::vector<std::string> arguments) const {
        test::RunOptions options;
        options.folder = folder_.path("");
        arguments.insert(arguments.begin(), "check");
        return test::runCommand(arguments, options);
    }

    test::TemporaryFolder folder_;
};

std::size_t number(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST_F(Check, CountsFilesWithoutProblemsAndListsThemOnRequest) {
    const std::string one = write(1, withNothing);
    const std::string two = write(2, withNothing);
    EXPECT_EQ(run({"."}).output, "2 files: no problems found\n");
    EXPECT_EQ(run({one, two, "--verbose"}).output, one + ": no problems found\n" + two +
                                                       ": no problems found\n\n"
                                                       "2 files: no problems found\n");
    EXPECT_EQ(run({one}).output, one + ": no problems found\n");
}

TEST_F(Check, ShowsTheFirstTenFindingsOfACodeOfAllFilesTogether) {
    for (unsigned i = 100; i < 1100; ++i)
        write(i, i == 100 ? withError : withWarning);
    const RunResult result = run({"."});
    EXPECT_EQ(number(result.output, ": warning: "), 10U);
    EXPECT_EQ(number(result.output, ": error: "), 1U);
    EXPECT_EQ(number(result.output, ".xml: 1 warning\n"), 10U);
    EXPECT_NE(result.output.find("\n     999       999  warning   no-grower"), std::string::npos);
    EXPECT_NE(result.output.find("\nOf each code the first 10 findings are shown; "
                                 "--json gives all\n"),
              std::string::npos);
    EXPECT_LT(result.output.size(), 4000U);
    EXPECT_EQ(number(run({".", "--verbose"}).output, ".xml: 1 warning\n"), 999U);
    EXPECT_EQ(number(run({".", "--json"}).output, "\"severity\":\"warning\""), 999U);
}

TEST_F(Check, SeparatesTheFindingsOfFilesByEmptyLines) {
    const std::string good = write(1, withNothing);
    const std::string one = write(2, withWarning);
    const std::string two = write(3, withError);
    const std::string output = run({one, good, two}).output;
    EXPECT_NE(output.find(one + ": 1 warning\n\n" + two + ":1:13: error: "), std::string::npos);
    EXPECT_EQ(output.find("\n\n\n"), std::string::npos);
}

TEST_F(Check, FailsOnWhatIsAsGraveAsIsAskedFor) {
    const std::vector<std::string> files = {write(1, withNothing), write(2, withNote),
                                            write(3, withWarning), write(4, withError), "missing"};
    const std::vector<std::pair<std::vector<std::string>, std::vector<int>>> cases = {
        {{}, {0, 0, 0, 1, 1}},
        {{"--fail-on", "error"}, {0, 0, 0, 1, 1}},
        {{"--fail-on", "warning"}, {0, 0, 1, 1, 1}},
        {{"--strict"}, {0, 0, 1, 1, 1}},
        {{"--fail-on", "note"}, {0, 1, 1, 1, 1}},
        {{"--fail-on", "never"}, {0, 0, 0, 0, 0}},
    };
    for (const auto& [options, codes] : cases) {
        for (std::size_t i = 0; i < files.size(); ++i) {
            for (const std::string format : {"text", "json"}) {
                std::vector<std::string> arguments = {files[i], "--format", format};
                arguments.insert(arguments.end(), options.begin(), options.end());
                EXPECT_EQ(run(arguments).exitCode, codes[i]) << format << ' ' << i;
            }
        }
    }
}

TEST_F(Check, CountsWhatIsIgnoredNowhere) {
    const std::string file = write(1, withError);
    const std::string good = write(2, withNothing);
    const RunResult result = run({file, good, "--ignore", "grower-id", "--strict"});
    EXPECT_EQ(result.output, "2 files: no problems found\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(run({file, "--ignore", "grower-id", "--json"})
                  .output.find("\"codes\": [],\n \"unreadable\": 0, \"errors\": 0,"),
              std::string::npos);
}

TEST_F(Check, FailsBecauseOfAFolderWithoutPackagesWhateverItShallFailOn) {
    const RunResult result = run({".", "--fail-on", "never"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "qenxml: .: no visible file in it ends in .xml; nothing is read\n");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(Check, TellsWhatItPassedOverAfterTheResults) {
    write(1, withNothing);
    folder_.write("readme.txt", "");
    test::RunOptions options;
    options.folder = folder_.path("");
    options.output = test::Output::SameAsErrors;
    EXPECT_EQ(test::runCommand({"check", "--quiet", "."}, options).errors,
              "./" + test::uuidText(1) +
                  ".xml: no problems found\n"
                  "qenxml: passed over 1 file not named .xml\n");
}

TEST_F(Check, RefusesOptionsThatContradictEachOther) {
    const auto refusal = [this](std::vector<std::string> arguments) {
        arguments.emplace_back("a.xml");
        const RunResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        return result.errors;
    };
    EXPECT_EQ(refusal({"--json", "--format", "text"}),
              "qenxml: --format excludes --json; try \"qenxml check --help\"\n");
    EXPECT_EQ(refusal({"--strict", "--fail-on", "note"}),
              "qenxml: --fail-on excludes --strict; try \"qenxml check --help\"\n");
    for (const std::string other : {"--statistics", "--verbose"})
        EXPECT_NE(refusal({"--quiet", other}).find("excludes"), std::string::npos);
    EXPECT_NE(refusal({"--statistics", "--verbose"}).find("excludes"), std::string::npos);
    for (const std::string option : {"--quiet", "--statistics", "--verbose"})
        EXPECT_EQ(refusal({"--json", option}),
                  "qenxml: --quiet, --statistics and --verbose are for the format text; "
                  "try \"qenxml check --help\"\n");
}

} // namespace
