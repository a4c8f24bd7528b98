/// @file
/// The broken sample packages fail as their descriptions say.

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/package/Samples.h"
#include "tests/support/BrokenPackages.h"
#include "tests/support/CurrentFolder.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using test::broken;
using test::entries;
using test::outcomeOf;
using test::textOf;

const std::vector<std::string> first = {"Emil Åkesson"};

std::vector<std::string> namesOf(const std::vector<QenGrower>& growers) {
    std::vector<std::string> names;
    for (const QenGrower& grower : growers)
        names.push_back(grower.name());
    return names;
}

TEST(BrokenSamples, EveryFolderHasATestAndALineInTheReadme) {
    std::set<std::string> tested;
    const std::string readme = textOf(broken / "README.md");
    for (const test::BrokenPackage& package : test::brokenPackages()) {
        tested.insert(package.folder);
        EXPECT_NE(readme.find("\n| `" + package.folder + "` |"), std::string::npos)
            << package.folder;
    }
    EXPECT_EQ(entries(broken, true), tested);
    EXPECT_EQ(entries(broken, false), std::set<std::string>{"README.md"});
}

class BrokenSample : public testing::TestWithParam<test::BrokenPackage> {};

TEST_P(BrokenSample, FailsAsDescribedAndLeavesTheGrowersBeforeTheFailure) {
    const fs::path file = test::brokenSample(GetParam());
    const test::CurrentFolder folder(file.parent_path()); // for the path that is too short
    QenXmlParser parser;
    EXPECT_EQ(outcomeOf(parser, file.filename().string()), GetParam().outcome);
    EXPECT_EQ(namesOf(parser.getGrowers()), GetParam().survivors);
}

TEST_P(BrokenSample, ReadsCompletelyOnceMended) {
    const test::BrokenPackage& package = GetParam();
    const std::string text = textOf(test::brokenSample(package));
    const std::string mended = test::mended(package, text);
    EXPECT_EQ(mended == text, package.wrong.empty()); // the name was wrong, not the content
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    EXPECT_EQ(outcomeOf(parser, folder.writePackage(mended)), "true");
    EXPECT_EQ(namesOf(parser.getGrowers()), package.mendedGrowers);
}

INSTANTIATE_TEST_SUITE_P(Samples, BrokenSample, testing::ValuesIn(test::brokenPackages()),
                         [](const testing::TestParamInfo<test::BrokenPackage>& tested) {
                             std::string name = tested.param.folder;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(BrokenSamples, AShortNameInALongPathIsReadWithAPackageUuidMadeOfFolderNames) {
    QenXmlParser parser;
    EXPECT_EQ(outcomeOf(parser, (broken / "path-too-short/a.xml").string()), "true");
    EXPECT_EQ(namesOf(parser.getGrowers()), first);
}

TEST(BrokenSamples, AMissingFileIsReportedByFalse) {
    QenXmlParser parser;
    EXPECT_EQ(outcomeOf(parser, "00112233-4455-6677-8899-aabbccddeeff.xml"), "false");
    EXPECT_EQ(namesOf(parser.getGrowers()), std::vector<std::string>{});
}

} // namespace
