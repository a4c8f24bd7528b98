// Runs the built command. What is compared is PackageDiffTest's, how it is written the golden
// files'.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

namespace {

const std::string name = "00112233-4455-6677-8899-aabbccddeeff.xml";

std::string packageWithTotal(const std::string& total) {
    return test::packageWithRecs(
        test::rec(31, test::element("RecName", "Spring") +
                          test::element("RecStats", test::element("Total", total) +
                                                        test::element("TotalUOM", "kg"))));
}

test::RunResult diff(std::vector<std::string> arguments, const test::RunOptions& options = {}) {
    arguments.insert(arguments.begin(), "diff");
    return test::runCommand(arguments, options);
}

class Diff : public testing::Test {
protected:
    const test::TemporaryFolder a_;
    const test::TemporaryFolder b_;
    const std::string one_ = a_.writePackage(packageWithTotal("1"));
    const std::string two_ = b_.writePackage(packageWithTotal("2"));
};

TEST_F(Diff, EndsAsDiffDoes) {
    EXPECT_EQ(diff({one_, one_}).exitCode, 0);
    EXPECT_EQ(diff({one_, two_}).exitCode, 1);
    EXPECT_EQ(diff({one_, a_.path(name + ".not")}).exitCode, 2);
    EXPECT_EQ(diff({one_}).exitCode, 2);
    EXPECT_EQ(diff({"--merge", a_.path(""), b_.path("")}).exitCode, 1);
    EXPECT_EQ(diff({"--merge", a_.path(""), a_.path("")}).exitCode, 0);
}

TEST_F(Diff, SaysNothingWhenNothingDiffers) {
    const test::RunResult result = diff({a_.path(""), one_});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
}

TEST_F(Diff, SaysFromWhatToWhatAValueWasChanged) {
    EXPECT_EQ(diff({one_, two_}).output, "changed rec \"Spring\"  " + test::uuidText(31) +
                                             "\n    of grower \"\", farm \"\", " +
                                             "field \"\"\n    in " + one_ + " -> " + two_ +
                                             "\n    total 1 kg -> 2 kg\n\n1 record changed\n");
}

TEST_F(Diff, IsInColourOnATerminalOnly) {
    test::RunOptions options;
    options.output = test::Output::Terminal;
    options.environment = {"TERM=xterm"};
    EXPECT_NE(diff({one_, two_}, options).output.find("\x1b["), std::string::npos);
    options.environment.emplace_back("NO_COLOR=1");
    EXPECT_EQ(diff({one_, two_}, options).output.find("\x1b["), std::string::npos);
}

TEST_F(Diff, ComparesTheRestWhenAFileCannotBeRead) {
    b_.write("99999999-4455-6677-8899-aabbccddeeff.xml", "<RecPackage>");
    const test::RunResult result = diff({a_.path(""), b_.path("")});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.output.find("total 1 kg -> 2 kg"), std::string::npos);
    EXPECT_NE(result.errors.find("the file is skipped"), std::string::npos);
}

TEST_F(Diff, FailsWithItsOwnCodeWhenTheOutputCannotBeWritten) {
    test::RunOptions options;
    options.output = test::Output::FullDisk;
    EXPECT_EQ(diff({one_, two_}, options).exitCode, 2);
}

TEST_F(Diff, ReadsOneSideFromTheStandardInput) {
    test::RunOptions options;
    options.input = two_;
    const std::string uuid = name.substr(0, 36);
    EXPECT_EQ(diff({"--uuid", uuid, one_, "-"}, options).exitCode, 1);
    options.input = one_;
    EXPECT_EQ(diff({"--uuid", uuid, "-", one_}, options).exitCode, 0);
    EXPECT_EQ(diff({"--uuid", uuid, "-", "-"}, options).exitCode, 2);
}

} // namespace
