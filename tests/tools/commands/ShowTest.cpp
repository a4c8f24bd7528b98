// Runs the built command and compares all that it writes. How records are shown is TreeTextTest's.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/tools/RunCommand.h"

using test::Output;
using test::RunOptions;
using test::RunResult;

namespace {

const std::string nameA = "aaaaaaaa-0000-4000-8000-000000000001.xml";
const std::string nameB = "bbbbbbbb-0000-4000-8000-000000000002.xml";
const std::string nameC = "cccccccc-0000-4000-8000-000000000003.xml";

const std::string packageA =
    "<RecPackage>\n"
    "  <Grower GrowerID='10000000-0000-4000-8000-000000000001'>\n"
    "    <GrowerName>Hansen Farms</GrowerName>\n"
    "    <Farm FarmID='20000000-0000-4000-8000-000000000001'><FarmName>Home</FarmName></Farm>\n"
    "  </Grower>\n"
    "</RecPackage>\n";

const std::string headingA = "Package aaaaaaaa-0000-4000-8000-000000000001  " + nameA + "\n";

const std::string shownA = headingA +
                           "  Grower Hansen Farms  10000000-0000-4000-8000-000000000001\n"
                           "    Farm Home  20000000-0000-4000-8000-000000000001\n";

/// The farm of A under another name, and a grower of its own before it.
const std::string packageB =
    "<RecPackage>\n"
    "  <Grower GrowerID='10000000-0000-4000-8000-000000000002'><GrowerName>Olsen</GrowerName>"
    "</Grower>\n"
    "  <Grower GrowerID='10000000-0000-4000-8000-000000000001'>\n"
    "    <GrowerName>Hansen Ltd</GrowerName>\n"
    "    <Farm FarmID='20000000-0000-4000-8000-000000000001'><FarmName>Home "
    "Farm</FarmName></Farm>\n"
    "  </Grower>\n"
    "</RecPackage>\n";

const std::string headingB = "Package bbbbbbbb-0000-4000-8000-000000000002  " + nameB + "\n";

/// One good grower, then one without an identifier.
const std::string halfPackage = "<RecPackage>\n"
                                "  <Grower GrowerID=\"10000000-0000-4000-8000-000000000003\"/>\n"
                                "  <Grower/>\n"
                                "</RecPackage>\n";

class Show : public testing::Test {
protected:
    RunResult show(std::vector<std::string> arguments, RunOptions options = {}) {
        arguments.insert(arguments.begin(), "show");
        options.folder = folder_.path("");
        return test::runCommand(arguments, options);
    }

    test::TemporaryFolder folder_;
};

TEST_F(Show, PrintsTheTreeOfAPackage) {
    folder_.write(nameA, packageA);
    const RunResult result = show({nameA});
    EXPECT_EQ(result.output, shownA);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(Show, PrintsOneSectionPerFileInTheGivenOrder) {
    folder_.write(nameA, packageA);
    folder_.write(nameC, "<RecPackage/>");
    const RunResult result = show({nameC, nameA, nameC});
    const std::string shownC =
        "Package cccccccc-0000-4000-8000-000000000003  " + nameC + "\n  no growers\n";
    EXPECT_EQ(result.output, shownC + "\n" + shownA + "\n" + shownC);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(Show, MergesTheGrowersOfAllFiles) {
    folder_.write(nameA, packageA);
    folder_.write(nameB, packageB);
    const RunResult result = show({"--merge", nameA, nameB});
    EXPECT_EQ(result.output, headingA + headingB +
                                 "\n"
                                 "Grower Hansen Farms  10000000-0000-4000-8000-000000000001\n"
                                 "  Farm Home Farm  20000000-0000-4000-8000-000000000001\n"
                                 "Grower Olsen  10000000-0000-4000-8000-000000000002\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(show({nameA, "--merge", nameB}).output, result.output);
}

TEST_F(Show, MergesInTheOrderOfTheFiles) {
    folder_.write(nameA, packageA);
    folder_.write(nameB, packageB);
    EXPECT_EQ(show({"--merge", nameB, nameA}).output,
              headingB + headingA +
                  "\n"
                  "Grower Olsen  10000000-0000-4000-8000-000000000002\n"
                  "Grower Hansen Ltd  10000000-0000-4000-8000-000000000001\n"
                  "  Farm Home  20000000-0000-4000-8000-000000000001\n");
}

TEST_F(Show, SaysThatMergedPackagesHaveNoGrowers) {
    folder_.write(nameC, "<RecPackage/>");
    EXPECT_EQ(show({"--merge", nameC}).output,
              "Package cccccccc-0000-4000-8000-000000000003  " + nameC + "\n\nno growers\n");
}

TEST_F(Show, ReportsEveryKindOfFailureAndGoesOn) {
    folder_.write(nameA, packageA);
    folder_.write(nameB, "<RecPackage>\n  <Grower>\xC3\xA9</Farm>");
    folder_.write(nameC, "<Package/>");
    folder_.write("short.xml", packageA);
    folder_.write("00000000-00000000-0000-000000000000_.xml", packageA);
    std::filesystem::create_directory(folder_.path("folder"));
    const std::string nameD = "dddddddd-0000-4000-8000-000000000004.xml";
    folder_.write(nameD, "<RecPackage><Grower/></RecPackage>");
    const RunResult result =
        show({"missing.xml", nameB, nameC, "short.xml", "00000000-00000000-0000-000000000000_.xml",
              nameA, "folder", nameD});
    EXPECT_EQ(result.output, shownA);
    const std::string expected = "; a name such as 00112233-4455-6677-8899-aabbccddeeff.xml is "
                                 "expected; the file is skipped\n";
    EXPECT_EQ(
        result.errors,
        "qenxml: missing.xml: not found; the file is skipped\n"
        "qenxml: " +
            nameB +
            ":2:14: not well-formed: Start-end tags mismatch; Grower of line 2 has not ended here; "
            "the file is skipped\n"
            "qenxml: " +
            nameC +
            ":1:1: the root element is \"Package\" instead of RecPackage; the file is skipped\n"
            "qenxml: short.xml: the path has 9 of at least 40 bytes" +
            expected +
            "qenxml: 00000000-00000000-0000-000000000000_.xml: the file name holds no "
            "package UUID" +
            expected +
            "qenxml: folder: no visible file in it ends in .xml; nothing is read\n"
            "qenxml: " +
            nameD +
            ":1:13: invalid uuid string: /RecPackage/Grower[1]: Grower has no attribute GrowerID; "
            "the file is skipped\n"
            "qenxml: 6 of 7 files could not be read, or only in part\n");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(Show, ShowsTheGrowersThatWereReadBeforeAFailure) {
    folder_.write(nameC, halfPackage);
    const RunResult result = show({nameC});
    EXPECT_EQ(result.output, "Package cccccccc-0000-4000-8000-000000000003  " + nameC +
                                 "  (incomplete)\n"
                                 "  Grower  10000000-0000-4000-8000-000000000003\n");
    EXPECT_EQ(
        result.errors,
        "qenxml: " + nameC +
            ":3:3: invalid uuid string: /RecPackage/Grower[2]: Grower has no attribute GrowerID; "
            "the grower before it is shown\n");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(Show, MergesTheGrowersThatWereReadBeforeAFailure) {
    folder_.write(nameA, "<RecPackage><Grower GrowerID='10000000-0000-4000-8000-000000000003'>"
                         "<GrowerName>Lund</GrowerName></Grower></RecPackage>");
    folder_.write(nameC, halfPackage);
    const RunResult result = show({"--merge", nameC, nameB, nameA});
    EXPECT_EQ(result.output, "Package cccccccc-0000-4000-8000-000000000003  " + nameC +
                                 "  (incomplete)\n" + headingA +
                                 "\n"
                                 "Grower  10000000-0000-4000-8000-000000000003\n");
    EXPECT_EQ(
        result.errors,
        "qenxml: " + nameC +
            ":3:3: invalid uuid string: /RecPackage/Grower[2]: Grower has no attribute GrowerID; "
            "the grower before it is shown\n"
            "qenxml: " +
            nameB +
            ": not found; the file is skipped\n"
            "qenxml: 2 of 3 files could not be read, or only in part\n");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(Show, PrintsNothingWhenNoFileCanBeRead) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{nameA}, std::vector<std::string>{"--merge", nameA}}) {
        const RunResult result = show(arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "qenxml: " + nameA + ": not found; the file is skipped\n");
        EXPECT_EQ(result.exitCode, 1);
    }
}

TEST_F(Show, KeepsResultsAndMessagesInOrder) {
    folder_.write(nameA, packageA);
    RunOptions options;
    options.output = Output::SameAsErrors;
    EXPECT_EQ(show({nameA, "x.xml", nameA}, options).errors,
              shownA + "qenxml: x.xml: not found; the file is skipped\n\n" + shownA +
                  "qenxml: 1 of 3 files could not be read, or only in part\n");
}

TEST_F(Show, EscapesTextsAndFileNames) {
    folder_.write(nameA, "<RecPackage><Grower GrowerID='10000000-0000-4000-8000-000000000001'>"
                         "<GrowerName>a&#27;[31m\nGrower \xC2\x9B\xFF\u202E&#8232;\\</GrowerName>"
                         "</Grower></RecPackage>");
    std::filesystem::create_directory(folder_.path("\x1b[2J\n"));
    const std::string path = "\x1b[2J\n/" + nameA;
    std::filesystem::copy(folder_.path(nameA), folder_.path(path));
    const RunResult result = show({path, "x\ny\r.xml"});
    EXPECT_EQ(result.output,
              "Package aaaaaaaa-0000-4000-8000-000000000001  \\x1B[2J\\n/" + nameA +
                  "\n"
                  "  Grower a\\x1B[31m\\nGrower \\u{009B}\\xFF\\u{202E}\\u{2028}\\\\  "
                  "10000000-0000-4000-8000-000000000001\n");
    EXPECT_EQ(result.errors, "qenxml: x\\ny\\x0D.xml: not found; the file is skipped\n"
                             "qenxml: 1 of 2 files could not be read, or only in part\n");
}

TEST_F(Show, ColoursItsOutputOnATerminalOnly) {
    folder_.write(nameC, halfPackage);
    RunOptions options;
    options.output = Output::Terminal;
    options.environment = {"TERM=xterm"};
    const std::string coloured =
        "\x1b[36mPackage\x1b[0m \x1b[2mcccccccc-0000-4000-8000-000000000003\x1b[0m  \x1b[1m" +
        nameC +
        "\x1b[0m\x1b[33m  (incomplete)\x1b[0m\n"
        "  \x1b[36mGrower\x1b[0m  \x1b[2m10000000-0000-4000-8000-000000000003\x1b[0m\n";
    const RunResult result = show({nameC}, options);
    EXPECT_EQ(result.output, coloured);
    EXPECT_EQ(result.errors.find('\x1b'), std::string::npos);

    const std::string plain = "Package cccccccc-0000-4000-8000-000000000003  " + nameC +
                              "  (incomplete)\n"
                              "  Grower  10000000-0000-4000-8000-000000000003\n";
    options.environment = {"TERM=xterm", "NO_COLOR=1"};
    EXPECT_EQ(show({nameC}, options).output, plain);
    options.environment = {"TERM=xterm", "NO_COLOR="};
    EXPECT_EQ(show({nameC}, options).output, coloured);
    options.environment = {"TERM=dumb"};
    EXPECT_EQ(show({nameC}, options).output, plain);
    options.environment = {"TERM=xterm"};
    options.output = Output::File;
    EXPECT_EQ(show({nameC}, options).output, plain);
}

TEST_F(Show, TakesFileNamesThatBeginWithAHyphen) {
    folder_.write("-" + nameA, "<RecPackage/>");
    const std::string shown =
        "Package aaaaaaaa-0000-4000-8000-000000000001  -" + nameA + "\n  no growers\n";
    EXPECT_EQ(show({"--", "-" + nameA}).output, shown);
    const RunResult several = show({"--", "-" + nameA, "--merge"});
    EXPECT_EQ(several.output, shown);
    EXPECT_EQ(several.errors, "qenxml: --merge: not found; the file is skipped\n"
                              "qenxml: 1 of 2 files could not be read, or only in part\n");
    EXPECT_EQ(several.exitCode, 1);
}

TEST_F(Show, TakesAFileNamedAsACommand) {
    EXPECT_EQ(show({"show"}).errors, "qenxml: show: not found; the file is skipped\n");
}

TEST_F(Show, ReportsAFullDisk) {
    folder_.write(nameA, packageA);
    RunOptions options;
    options.output = Output::FullDisk;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{nameA}, std::vector<std::string>{"--merge", nameA}}) {
        const RunResult result = show(arguments, options);
        EXPECT_EQ(result.errors,
                  "qenxml: the output could not be written: No space left on device\n");
        EXPECT_EQ(result.exitCode, 1);
    }
}

TEST_F(Show, EndsInSilenceWhenTheReaderOfAPipeHasSeenEnough) {
    folder_.write(nameA, packageA);
    RunOptions options;
    options.output = Output::ClosedPipe;
    const RunResult result = show({nameA}, options);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(Show, RemarksThatAFileIsNotNamedByAUuid) {
    const std::string name = "recommendations-of-spring-2026-north-side.xml";
    folder_.write(name, packageA);
    const RunResult result = show({name});
    EXPECT_EQ(result.errors,
              "qenxml: " + name +
                  ": file name without a proper package UUID: a name such as "
                  "00112233-4455-6677-8899-aabbccddeeff.xml is expected; the file is shown, its "
                  "recs carry the UUID fefdffff-ffff-ffff-ffff-f202ffffffff\n");
    EXPECT_EQ(result.exitCode, 0);
}

} // namespace
