// Runs the built command where it writes to a file, or reads what is not among the samples.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

using test::contentOf;
using test::RunOptions;
using test::RunResult;

namespace {

const std::string name = "aaaaaaaa-0000-4000-8000-000000000001.xml";
const std::vector<std::vector<std::string>> commands = {
    {"export", "--format", "json"},    {"export", "--format", "csv"},
    {"export", "--format", "geojson"}, {"report"},
    {"export", "--format", "jsonl"},   {"export", "--format", "geojsonl"}};
const std::vector<std::vector<std::string>> allCommands = {
    {"show"}, {"check"}, {"export", "--format", "json"}, {"report"}};

/// export and report: what they have in common.
class WritingCommand : public testing::Test {
protected:
    RunResult run(std::vector<std::string> arguments, const std::vector<std::string>& more,
                  RunOptions options = {}) {
        arguments.insert(arguments.end(), more.begin(), more.end());
        options.folder = folder_.path("");
        return test::runCommand(arguments, options);
    }

    test::TemporaryFolder folder_;
};

const std::string package = test::package(
    test::grower(1, test::farm(2, test::field(3, test::recommendations(test::rec(4))))));

TEST_F(WritingCommand, WritesTheSameToAFileAsToTheStandardOutput) {
    folder_.write(name, package);
    for (const std::vector<std::string>& command : commands) {
        const RunResult printed = run(command, {name});
        EXPECT_EQ(printed.exitCode, 0);
        for (const std::string option : {"-o", "--output"}) {
            const RunResult written = run(command, {option, "out", name});
            EXPECT_EQ(written.output + written.errors, printed.errors);
            EXPECT_EQ(written.exitCode, 0);
            EXPECT_EQ(contentOf(folder_.path("out")), printed.output);
            std::filesystem::remove(folder_.path("out"));
        }
        EXPECT_EQ(run(command, {"-o", "-", name}).output, printed.output);
    }
}

TEST_F(WritingCommand, ReadsTheStandardInputAsAFile) {
    folder_.write(name, package);
    RunOptions options;
    options.input = folder_.path(name);
    for (const std::vector<std::string>& command : commands) {
        const RunResult result = run(command, {"--uuid", name.substr(0, 36), "-"}, options);
        EXPECT_NE(result.output.find(test::uuidText(4)), std::string::npos);
        EXPECT_EQ(result.exitCode, 0);
    }
}

TEST_F(WritingCommand, LeavesThePresentFileWhenTheOutputCannotBeWritten) {
    folder_.write(name, package);
    std::filesystem::create_directory(folder_.path("out"));
    for (const std::vector<std::string>& command : commands) {
        const RunResult result = run(command, {"-o", "out", name});
        EXPECT_EQ(result.errors, "qenxml: out: cannot be written: Is a directory\n");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(std::filesystem::is_directory(folder_.path("out")));
    }
}

TEST_F(WritingCommand, RefusesToReplaceAPackageThatItReads) {
    folder_.write(name, package);
    std::filesystem::create_symlink(name, folder_.path("link"));
    for (const std::vector<std::string>& command : commands) {
        for (const std::string& output : {name, std::string("./link")}) {
            EXPECT_EQ(run(command, {"-o", output, name}).exitCode, 2);
            EXPECT_EQ(contentOf(folder_.path(name)), package);
        }
    }
}

TEST_F(WritingCommand, RefusesToReplaceThePackageOnItsStandardInput) {
    RunOptions options;
    options.input = folder_.write("in.xml", package);
    std::filesystem::create_symlink("in.xml", folder_.path("link"));
    std::filesystem::create_hard_link(folder_.path("in.xml"), folder_.path("other"));
    for (const std::vector<std::string>& command : commands) {
        for (const std::string output : {"in.xml", "link", "other"}) {
            const RunResult result =
                run(command, {"-o", output, "--uuid", name.substr(0, 36), "-"}, options);
            EXPECT_NE(result.errors.find("the output would replace a package that is to be read"),
                      std::string::npos);
            EXPECT_EQ(result.exitCode, 2);
            EXPECT_EQ(contentOf(folder_.path("in.xml")), package);
        }
    }
}

TEST_F(WritingCommand, RefusesToWriteIntoAPackageByItsStandardOutput) {
    const std::string refusal = "qenxml: the standard output is a package that is to be read";
    const std::string uuid = name.substr(0, 36);
    RunOptions options;
    options.input = folder_.write(name, package);
    options.appendTo = options.input;
    for (const std::vector<std::string>& command : allCommands) {
        for (const std::vector<std::string>& input :
             {std::vector<std::string>{name}, {"--uuid", uuid, "-"}}) {
            const RunResult result = run(command, input, options);
            EXPECT_EQ(result.errors.substr(0, result.errors.find("; try")), refusal);
            EXPECT_EQ(result.exitCode, 2);
            EXPECT_EQ(contentOf(folder_.path(name)), package);
        }
    }
    folder_.write(name, ""); // as "> FILE" leaves it
    EXPECT_EQ(run({"report"}, {name}, options).errors,
              refusal + ", and the shell has emptied it already: \">\" does so before qenxml "
                        "begins; try \"qenxml report --help\"\n");
    folder_.write("other", "");
    folder_.write(name, package);
    options.appendTo = folder_.path("other");
    for (const std::vector<std::string>& command : allCommands)
        EXPECT_EQ(run(command, {name}, options).exitCode, 0);
}

TEST_F(WritingCommand, SaysWhenTheStandardOutputIsClosedThatItIsToWriteTo) {
    folder_.write(name, package);
    RunOptions options;
    options.closed = {1};
    for (const std::vector<std::string>& command : commands) {
        EXPECT_EQ(run(command, {"-o", "/dev/stdout", name}, options).errors,
                  "qenxml: /dev/stdout: cannot be written: it is closed, or open for reading "
                  "only\n");
        EXPECT_EQ(run(command, {"-o", "/dev/stdin", name}).errors,
                  "qenxml: /dev/stdin: cannot be written: it is closed, or open for reading "
                  "only\n");
    }
}

TEST_F(WritingCommand, ReadsFilesFoldersAndListsAlike) {
    std::filesystem::create_directory(folder_.path("season"));
    folder_.write("season/" + name, package);
    folder_.write("season/._" + name, package);
    RunOptions options;
    options.input = folder_.write("list", "season/" + name + "\n");
    for (const std::vector<std::string>& command : allCommands) {
        const RunResult expected = run(command, {"season/" + name});
        EXPECT_EQ(expected.exitCode, 0);
        EXPECT_EQ(run(command, {"--files-from", "list"}).output, expected.output);
        EXPECT_EQ(run(command, {"--files-from", "-"}, options).output, expected.output);
        const RunResult folder = run(command, {"season"});
        EXPECT_EQ(folder.output, expected.output);
        EXPECT_EQ(folder.errors, "qenxml: passed over 1 side file of macOS (._NAME)\n");
        EXPECT_EQ(folder.exitCode, 0);
    }
}

TEST_F(WritingCommand, NamesWhatAListNamesInVainAndReadsTheRest) {
    std::filesystem::create_directory(folder_.path("folder"));
    std::filesystem::create_symlink("circle.xml", folder_.path("circle.xml"));
    folder_.write(name, package);
    folder_.write("list", "missing.xml\nfolder\ncircle.xml\n" + name + "\n");
    for (const std::vector<std::string>& command : commands) {
        const RunResult result = run(command, {"--files-from", "list"});
        EXPECT_EQ(result.errors.find(
                      "qenxml: missing.xml: not found; the file is skipped\n"
                      "qenxml: folder: is a directory; the file is skipped\n"
                      "qenxml: circle.xml: cannot be read: Too many levels of symbolic links; the "
                      "file is skipped\n"),
                  0U);
        EXPECT_NE(result.errors.find("qenxml: 3 of 4 files could not be read, or only in part\n"),
                  std::string::npos);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.output.find(test::uuidText(4)), std::string::npos);
    }
    const RunResult result = run({"check"}, {"--files-from", "list", "--quiet"});
    EXPECT_EQ(result.output, "4 files: 3 errors, 2 warnings, 5 notes; 3 cannot be read\n");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(WritingCommand, LeavesThePresentFileWhenNoPackageCanBeRead) {
    folder_.write("out", "old");
    std::filesystem::create_directory(folder_.path("folder"));
    for (const std::vector<std::string>& command : commands) {
        for (const std::string output : {"out", "new"}) {
            const RunResult result = run(command, {"-o", output, "missing.xml", "folder"});
            EXPECT_EQ(result.errors,
                      "qenxml: missing.xml: not found; the file is skipped\n"
                      "qenxml: folder: no visible file in it ends in .xml; nothing is read\n"
                      "qenxml: " +
                          output +
                          ": not written, as no package could be read; a file that is there has "
                          "not changed\n");
            EXPECT_EQ(result.exitCode, 1);
        }
        EXPECT_EQ(contentOf(folder_.path("out")), "old");
        EXPECT_FALSE(std::filesystem::exists(folder_.path("new")));
    }
}

TEST_F(WritingCommand, ReplacesThePresentFileByAPageAboutABrokenPackage) {
    folder_.write("out", "old");
    folder_.write(name, "<RecPackage><Grower");
    EXPECT_EQ(run({"export", "--format", "csv"}, {"-o", "out", name}).exitCode, 1);
    EXPECT_EQ(contentOf(folder_.path("out")), "old");
    EXPECT_EQ(run({"report"}, {"-o", "out", name}).exitCode, 1);
    EXPECT_NE(contentOf(folder_.path("out")).find("the file is cut off"), std::string::npos);
}

TEST_F(WritingCommand, WritesToWhatTheStandardOutputIs) {
    folder_.write(name, package);
    for (const std::vector<std::string>& command : commands) {
        const std::string printed = run(command, {name}).output;
        EXPECT_EQ(run(command, {"-o", "/dev/stdout", name}).output, printed);
        RunOptions options;
        options.appendTo = folder_.write("log", "before\n");
        EXPECT_EQ(run(command, {"-o", "/dev/stdout", name}, options).exitCode, 0);
        EXPECT_EQ(contentOf(folder_.path("log")), "before\n" + printed);
    }
}

TEST_F(WritingCommand, KeepsMessagesOutOfTheOutputWhereStandardStreamsAreClosed) {
    folder_.write(name, package);
    for (const std::vector<std::string>& command : commands) {
        const std::string printed = run(command, {name}).output;
        for (const std::vector<int>& closed :
             std::vector<std::vector<int>>{{2}, {1, 2}, {0, 1, 2}}) {
            RunOptions options;
            options.closed = closed;
            EXPECT_EQ(run(command, {"-o", "out", "missing.xml", name}, options).exitCode, 1);
            const std::string content = contentOf(folder_.path("out"));
            EXPECT_EQ(content.find("qenxml: "), std::string::npos);
            EXPECT_EQ(run(command, {"-o", "out", name}, options).exitCode, 0);
            EXPECT_EQ(contentOf(folder_.path("out")), printed);
        }
    }
}

TEST_F(WritingCommand, FailsWhereTheOutputIsClosed) {
    folder_.write(name, package);
    RunOptions options;
    options.closed = {1};
    for (const std::vector<std::string>& command : commands) {
        const RunResult result = run(command, {name}, options);
        EXPECT_NE(
            result.errors.find("qenxml: the output could not be written: Bad file descriptor"),
            std::string::npos);
        EXPECT_EQ(result.exitCode, 1);
    }
}

TEST_F(WritingCommand, LeavesNothingBehindWhenTheOutputIsTooLarge) {
    std::string recs;
    for (unsigned i = 0; i < 100; ++i)
        recs += test::rec(1000 + i);
    folder_.write(name, test::package(test::grower(
                            1, test::farm(2, test::field(3, test::recommendations(recs))))));
    folder_.write("out", "old");
    RunOptions options;
    options.fileSize = 5000;
    for (const std::vector<std::string>& command :
         {commands[0], commands[1], commands[3], commands[4]}) {
        const RunResult result = run(command, {"-o", "out", name}, options);
        EXPECT_EQ(result.errors, "qenxml: out: cannot be written: File too large\n");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(contentOf(folder_.path("out")), "old");
        EXPECT_EQ(test::namesIn(folder_.path("")), (std::vector<std::string>{name, "out"}));
    }
}

TEST_F(WritingCommand, TakesTheNameOfAFormatInAnyCase) {
    folder_.write(name, package);
    for (const std::string format : {"csv", "json", "jsonl", "geojson", "geojsonl", "xlsx"}) {
        std::string capitals = format;
        std::transform(format.begin(), format.end(), capitals.begin(),
                       [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        const RunResult expected = run({"export", "--format", format}, {name});
        EXPECT_EQ(run({"export", "--format", capitals}, {name}).output, expected.output);
        EXPECT_EQ(expected.exitCode, 0);
    }
}

// NOLINTBEGIN(misc-misleading-bidirectional): they are what the test is about
TEST_F(WritingCommand, ShowsATerminalNothingThatItMightActOnOrHide) {
    const std::string texts = "\x7F\xC2\x9B\u202E\u200B\uFEFF\U000E0041&#13;x";
    folder_.write(name,
                  test::package(test::grower(
                      1, test::element("GrowerName", texts) +
                             test::farm(2, test::field(3, test::recommendations(test::rec(4)))))));
    RunOptions terminal;
    terminal.output = test::Output::Terminal;
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"export", "--format", "json"},
          {"export", "--format", "csv"},
          {"export", "--format", "geojson"},
          {"show"},
          {"report", "-o", "-"}}) {
        std::string output = run(command, {name}, terminal).output;
        EXPECT_NE(output.find(command.back() == "csv" ? "\\u{202E}" : "202"), std::string::npos);
        for (const std::string unseen :
             {"\x7F", "\xC2\x9B", "\u202E", "\u200B", "\uFEFF", "\U000E0041", "\rx"})
            EXPECT_EQ(output.find(unseen), std::string::npos) << command.back();
    }
}
// NOLINTEND(misc-misleading-bidirectional)

TEST_F(WritingCommand, ReportsAFullDisk) {
    folder_.write(name, package);
    RunOptions options;
    options.output = test::Output::FullDisk;
    for (const std::vector<std::string>& command : commands) {
        const RunResult printed = run(command, {name}, options);
        EXPECT_NE(printed.errors.find("qenxml: the output could not be written: No space left"),
                  std::string::npos);
        EXPECT_EQ(printed.exitCode, 1);
        const RunResult written = run(command, {"-o", "/dev/full", name});
        EXPECT_NE(written.errors.find("qenxml: /dev/full: cannot be written: No space left"),
                  std::string::npos);
        EXPECT_EQ(written.exitCode, 1);
    }
}

TEST_F(WritingCommand, WritesWhatCanBeReadBesideWhatCannot) {
    folder_.write(name, package);
    for (const std::vector<std::string>& command : commands) {
        const RunResult result = run(command, {"missing.xml", name});
        EXPECT_NE(result.output.find(test::uuidText(4)), std::string::npos);
        EXPECT_NE(result.errors.find("qenxml: missing.xml: not found"), std::string::npos);
        EXPECT_EQ(result.exitCode, 1);
    }
}

TEST_F(WritingCommand, ReportsPackagesOfThousandsOfRecsInAPageThatABrowserCanOpen) {
    std::string recs;
    for (unsigned i = 0; i < 20'000; ++i)
        recs += test::rec(1000 + i);
    folder_.write(name, test::package(test::grower(
                            1, test::farm(2, test::field(3, test::recommendations(recs))))));
    const RunResult result = run({"report"}, {name});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("<li>Recs <b>20\u202F000</b></li>"), std::string::npos);
    EXPECT_NE(result.output.find("Not shown: 0 more fields and 19\u202F600 more recs."),
              std::string::npos);
    EXPECT_LT(result.output.size(), 1'000'000U);
}

TEST_F(WritingCommand, ReportsAPackageWithoutGrowers) {
    folder_.write(name, "<RecPackage/>");
    const RunResult result = run({"report"}, {name});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("<p>There are no recs.</p>"), std::string::npos);
    EXPECT_NE(result.output.find("<p>There are no fields.</p>"), std::string::npos);
    EXPECT_NE(result.output.find("<p>No field has a centroid that could be drawn.</p>"),
              std::string::npos);
}

TEST_F(WritingCommand, ExportsNumbersAsTheyWereReadToTheLastBit) {
    folder_.write(
        name,
        test::package(test::grower(
            1,
            test::farm(2, test::field(3, test::recommendations(test::rec(
                                             4, "<RecStats><MinimumRate>0.1</MinimumRate>"
                                                "<AverageRate>4.9406564584124654e-324</AverageRate>"
                                                "<MaximumRate>-0</MaximumRate>"
                                                "<Total>1.7976931348623157e308</Total>"
                                                "<Area>9007199254740993</Area></RecStats>")))))));
    const auto document = nlohmann::json::parse(run({"export", "--format", "json"}, {name}).output);
    const auto& rec = document["packages"][0]["growers"][0]["farms"][0]["fields"][0]["recs"][0];
    EXPECT_EQ(rec["minimumRate"], 0.1);
    EXPECT_EQ(rec["averageRate"], 4.9406564584124654e-324);
    EXPECT_EQ(rec["maximumRate"].dump(), "-0.0");
    EXPECT_EQ(rec["total"], 1.7976931348623157e308);
    EXPECT_EQ(rec["area"], 9007199254740992.0);
}

} // namespace
