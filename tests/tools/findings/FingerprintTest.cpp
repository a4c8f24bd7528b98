#include "tools/findings/Fingerprint.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/BrokenPackages.h"
#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/Uuids.h"
#include "tools/check/FindingCollection.h"
#include "tools/check/PackageCheck.h"

namespace {

namespace fs = std::filesystem;

const std::string name = "00112233-4455-6677-8899-aabbccddeeff.xml";

/// Of all findings, in order of their numbers.
std::vector<std::uint64_t> fingerprints(const std::string& content) {
    FindingCollection findings;
    checkPackage(name, FileContent{content, ""}, findings);
    std::vector<std::uint64_t> all;
    for (const Finding& finding : findings.kept())
        all.push_back(fingerprintOf(finding, name));
    std::sort(all.begin(), all.end());
    return all;
}

Finding findingInRec() {
    Finding finding{FindingCode::NotANumber, "Total \"n/a\" is no number", ReadAs{"0"}};
    finding.path = "/RecPackage/Grower[1]/Farm[2]/Field[3]/Recommendations/Rec[4]/RecStats/Total";
    finding.records = {{"rec", "spring", test::uuid(4)}};
    return finding;
}

TEST(Fingerprint, IsTheSameOnAllMachines) {
    EXPECT_EQ(fingerprintOf(findingInRec(), name), 0x6A1E47F9BBF06F12U);
}

TEST(Fingerprint, TellsFindingsFromEachOther) {
    const Finding finding = findingInRec();
    const std::uint64_t fingerprint = fingerprintOf(finding, name);
    Finding other = finding;
    other.code = FindingCode::NumberCutOff;
    EXPECT_NE(fingerprintOf(other, name), fingerprint);
    other = finding;
    other.found = "Total \"n.a.\" is no number";
    EXPECT_NE(fingerprintOf(other, name), fingerprint);
    other = finding;
    other.path += "UOM";
    EXPECT_NE(fingerprintOf(other, name), fingerprint);
    other = finding;
    other.records.front().id = test::uuid(5);
    EXPECT_NE(fingerprintOf(other, name), fingerprint);
    EXPECT_NE(fingerprintOf(finding, "00112233-4455-6677-8899-aabbccddee00.xml"), fingerprint);
}

TEST(Fingerprint, DoesNotDependOnPlaces) {
    const Finding finding = findingInRec();
    const std::uint64_t fingerprint = fingerprintOf(finding, name);
    EXPECT_EQ(fingerprintOf(finding, "/media/stick/" + name), fingerprint);
    Finding other = finding;
    other.location = Location{{100, 5}, {7, 1}, {7, 6}, {}};
    other.path = "/RecPackage/Grower[12]/Farm[1]/Field[1]/Recommendations/Rec[77]/RecStats/Total";
    other.records.front().name = "autumn"; // The identifier tells which rec it is.
    other.consequence = ReadAs{"1"};
    EXPECT_EQ(fingerprintOf(other, name), fingerprint);
    Finding duplicate{FindingCode::DuplicateRec, "RecID is that of the rec at line 5", Kept{}};
    Finding moved{FindingCode::DuplicateRec, "RecID is that of the rec at line 105", Kept{}};
    EXPECT_EQ(fingerprintOf(duplicate, name), fingerprintOf(moved, name));
}

TEST(Fingerprint, GoesByTheNameOfARecordWithoutAnIdentifier) {
    Finding finding = findingInRec();
    finding.records.front().id.reset();
    Finding other = finding;
    other.records.front().name = "autumn";
    EXPECT_NE(fingerprintOf(other, name), fingerprintOf(finding, name));
}

/// A broken package, with 100 lines before the first "<Rec " or the first element in the root.
std::string pushedDown(std::string text) {
    std::size_t place = text.find("<Rec ");
    if (place == std::string::npos)
        place = text.find("<Grower");
    return place == std::string::npos ? text : text.insert(place, std::string(100, '\n'));
}

TEST(Fingerprint, SurvivesMovingRecsDownByAHundredLines) {
    int compared = 0;
    for (const test::BrokenPackage& package : test::brokenPackages()) {
        for (const auto& entry : fs::directory_iterator(
                 test::inSources("examples/packages/broken/") + package.folder)) {
            const std::string text = test::contentOf(entry.path());
            EXPECT_EQ(fingerprints(pushedDown(text)), fingerprints(text)) << package.folder;
            compared += fingerprints(text).empty() ? 0 : 1;
        }
    }
    EXPECT_GT(compared, 40);
}

TEST(Fingerprint, SurvivesMovingARecBehindAnother) {
    const auto package = [](const std::string& recs) {
        return test::package(
            test::grower(1, test::farm(2, test::field(3, test::recommendations(recs)))));
    };
    const std::string spring = "<Rec RecID='" + test::uuidText(4) + "'><RecName>a</RecName></Rec>";
    const std::string autumn = "<Rec RecID='" + test::uuidText(5) + "'><Typo/></Rec>";
    const std::string lines(100, '\n');
    const std::vector<std::uint64_t> before = fingerprints(package(spring + autumn));
    EXPECT_GT(before.size(), 4U);
    EXPECT_EQ(fingerprints(package(autumn + lines + spring)), before);
    EXPECT_NE(fingerprints(package(autumn)), before);
}

} // namespace
