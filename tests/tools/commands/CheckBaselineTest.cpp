/// @file
/// The option --baseline of `qenxml check`.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

namespace {

class CheckBaseline : public testing::Test {
protected:
    /// Writes the log of what is found in a package.
    void writeBaseline(const std::string& package) {
        folder_.write("old.sarif", check(package, {"--format", "sarif"}).output);
    }

    test::RunResult check(const std::string& package, std::vector<std::string> options) {
        const std::string path = folder_.writePackage(package);
        options.insert(options.begin(), "check");
        options.push_back(path.substr(path.rfind('/') + 1));
        test::RunOptions inFolder;
        inFolder.folder = folder_.path("");
        return test::runCommand(options, inFolder);
    }

    test::TemporaryFolder folder_;
};

std::string packageWith(const std::string& farms) {
    return test::package(test::grower(1, "<GrowerName>Ana</GrowerName>" + farms));
}

const std::string broken = "<Farm><FarmName>Nord</FarmName></Farm>";
const std::string odd = "<Farm FarmID='" + test::uuidText(2) + "'><FarmName/></Farm>";

TEST_F(CheckBaseline, LeavesOutWhatIsKnownAlthoughItHasMoved) {
    writeBaseline(packageWith(broken));
    const test::RunResult result =
        check(packageWith(std::string(100, '\n') + broken), {"--baseline", "old.sarif"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("no problems found"), std::string::npos) << result.output;
    EXPECT_EQ(result.errors, "qenxml: 1 finding left out, which the baseline has\n");
}

TEST_F(CheckBaseline, CountsWhatIsNew) {
    writeBaseline(packageWith(odd));
    for (const std::string format : {"text", "json", "sarif"}) {
        const test::RunResult result =
            check(packageWith(odd + broken), {"--format", format, "--baseline", "old.sarif"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.output.find("farm-id"), std::string::npos) << result.output;
        EXPECT_EQ(result.output.find("empty-name"), std::string::npos) << result.output;
        EXPECT_EQ(result.errors, "qenxml: 1 finding left out, which the baseline has\n");
    }
}

TEST_F(CheckBaseline, KnowsASecondEqualFindingForNew) {
    writeBaseline(packageWith(broken));
    const test::RunResult result =
        check(packageWith(broken + broken), {"--json", "--baseline", "old.sarif"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output)["errors"], 1);
}

TEST_F(CheckBaseline, ShowsTenNewFindingsBehindKnownOnes) {
    std::string known;
    std::string added;
    for (unsigned i = 0; i < 20; ++i) {
        (i < 10 ? known : added) +=
            "<Farm FarmID='" + test::uuidText(10 + i) + "'><FarmName/></Farm>";
    }
    writeBaseline(packageWith(known));
    const test::RunResult result = check(packageWith(known + added), {"--baseline", "old.sarif"});
    EXPECT_NE(result.output.find("Farm[20]"), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("more of these"), std::string::npos) << result.output;
}

TEST_F(CheckBaseline, DoesNotCountWhatIsIgnoredAsKnown) {
    writeBaseline(packageWith(odd));
    const test::RunResult result =
        check(packageWith(odd), {"--ignore", "empty-name", "--baseline", "old.sarif"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
}

TEST_F(CheckBaseline, IsWrongUsageWhenTheFileIsNone) {
    folder_.write("old.sarif", "{}");
    const test::RunResult result = check(packageWith(broken), {"--baseline", "old.sarif"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "qenxml: --baseline: old.sarif was not written by qenxml check "
                             "--format sarif; try \"qenxml check --help\"\n");
    EXPECT_EQ(check(packageWith(broken), {"--baseline", ""}).errors,
              "qenxml: --baseline: the name of the file is empty; try \"qenxml check --help\"\n");
}

} // namespace
