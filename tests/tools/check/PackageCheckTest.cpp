#include "tools/check/PackageCheck.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/check/Findings.h"
#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingText.h"

namespace fs = std::filesystem;

namespace {

std::string toText(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += test::toText(finding) + "\n";
    return text;
}

class PackageCheck : public testing::Test {
protected:
    test::TemporaryFolder folder_;
};

/// Counts all findings and keeps the last one.
class LastFinding : public FindingSink {
public:
    bool wants(FindingCode) const override { return true; }
    void add(const Finding& finding) override {
        ++count;
        last = finding;
    }

    std::size_t count = 0;
    Finding last{};
};

TEST_F(PackageCheck, FindsItsWayInListsOfAnyLength) {
    // Anything that goes over the siblings, or the text, of each finding would not end today.
    const std::size_t farms = 30000;
    std::string content;
    for (std::size_t i = 0; i < farms; ++i)
        content += "<Farm FarmID='" + test::uuidText(7) + "'><FarmName>a</FarmName></Farm>";
    LastFinding sink;
    checkPackage(folder_.writePackage(test::package(test::grower(1, content))), sink);
    EXPECT_EQ(sink.count, 1 + farms - 1); // the grower has no name
    EXPECT_EQ(sink.last.code, FindingCode::DuplicateFarm);
    EXPECT_EQ(sink.last.path, "/RecPackage/Grower[1]/Farm[30000]/@FarmID");
    EXPECT_EQ(sink.last.location->begin.line, 1U);
}

TEST_F(PackageCheck, SaysOfEachErrorWhatItCosts) {
    const std::string path = folder_.writePackage(
        test::package(test::grower(1, "<GrowerName>a</GrowerName>") +
                      "\n<Grower><GrowerName>b</GrowerName><Farm/></Grower>\n<Grower/>"));
    EXPECT_EQ(toText(checkPackage(path)),
              "2:1 grower-id /RecPackage/Grower[2]: Grower has no attribute GrowerID -> reading "
              "ends after 1\n"
              "2:35 empty-name /RecPackage/Grower[2]/Farm[1]: FarmName is missing -> kept\n"
              "2:35 farm-id /RecPackage/Grower[2]/Farm[1]: Farm has no attribute FarmID -> behind "
              "error 1 since line 2 of this grower\n"
              "3:1 empty-name /RecPackage/Grower[3]: GrowerName is missing -> kept\n"
              "3:1 grower-id /RecPackage/Grower[3]: Grower has no attribute GrowerID -> behind "
              "error 2 since line 2\n");
}

TEST_F(PackageCheck, DoesNotReadTheIdentifierOfAnIncompleteBlend) {
    const std::string text = test::packageWithRec(
        "<RecData><CustomFertilizer><ProductID>4711</ProductID></CustomFertilizer></RecData>");
    EXPECT_TRUE(test::findingsOf(text, FindingCode::BlendId).empty());
    const Finding incomplete = test::findingOf(text, FindingCode::ProductIncomplete);
    EXPECT_EQ(
        incomplete.found,
        "CustomFertilizer has no ProductName, UOMID, UOM, SFertT_ID, SpGravity, Pct_N, Pct_P, "
        "Pct_K, Pct_Ca, Pct_Mg, Pct_S, Pct_Fe, Pct_Mn, Pct_Zn, Pct_Cu, Pct_B, Pct_Mo and "
        "Pct_Cl");
    EXPECT_EQ(
        test::toText(incomplete.consequence),
        "without product, then ProductID \"4711\" is too short: it ends after 4 of 32 digits");
}

TEST_F(PackageCheck, SaysOfAFileThatIsNotThereNoMoreThanThat) {
    // It may be its name that is mistyped.
    for (const std::string name : {"missing.xml", "missing-with-a-name-that-is-much-longer.xml"}) {
        const std::string path = folder_.path(name);
        EXPECT_EQ(toText(checkPackage(path)), "unreadable : not found -> nothing read\n");
    }
}

TEST_F(PackageCheck, CountsThePathInBytes) {
    const std::string path = fs::path(folder_.write("\u00e9.xml", "<RecPackage/>")).filename();
    const fs::path before = fs::current_path();
    fs::current_path(folder_.path(""));
    const std::string found = checkPackage(path).front().found;
    fs::current_path(before);
    EXPECT_EQ(found.substr(0, found.find(';')), "the path has 6 of at least 40 bytes");
}

/// What is found in the name of a copy of a good package.
std::string foundInName(const std::string& name) {
    FindingCollection all;
    checkPackage(
        name, FileContent{test::package(test::grower(1, "<GrowerName>a</GrowerName>")), ""}, all);
    return all.kept().empty() ? "" : test::toText(all.kept().front());
}

TEST_F(PackageCheck, SaysWhatToRenameACopyTo) {
    const std::string uuid = "00112233-4455-6677-8899-aabbccddeeff";
    const std::string rename = "; rename it to " + uuid + ".xml -> ";
    const std::string invented = "name-not-uuid : the file is not named by a UUID" + rename;
    EXPECT_EQ(foundInName(uuid + " (1).xml"),
              invented + "read as 2233f445-ff66-77f8-89ff-aabbccddeeff");
    EXPECT_EQ(foundInName(uuid + " - Copy.xml"),
              invented + "read as ff4455f6-67ff-8899-faab-bccddeefffff");
    EXPECT_EQ(foundInName(uuid + " - Copy (2).xml"),
              invented + "read as 55f667ff-8899-faab-bccd-deefffffffff");
    EXPECT_EQ(foundInName(uuid + ".xml.txt"),
              invented + "read as 2233f445-ff66-77f8-89ff-aabbccddeeff");
    EXPECT_EQ(foundInName("{" + uuid + "}.xml"),
              invented + "read as 011223ff-4455-f667-ff88-99faabbccdde");
    EXPECT_EQ(foundInName("{" + uuid + "} (1).xml"),
              "name-without-uuid : the file name holds no package UUID" + rename + "nothing read");
    EXPECT_EQ(foundInName(uuid),
              "path-too-short : the path has 36 of at least 40 bytes" + rename + "nothing read");
}

TEST_F(PackageCheck, FindsNothingInTheNameOfACopyThatIsReadWithItsUuid) {
    const std::string uuid = "00112233-4455-6677-8899-aabbccddeeff";
    for (const std::string& copy :
         {"Kopie von " + uuid + ".xml", "Copy of " + uuid + ".xml", uuid + ".XML", uuid + ".txt",
          std::string("00112233-4455-6677-8899-AABBCCDDEEFF.XML"),
          std::string("00112233445566778899aabbccddeeff (1).xml")})
        EXPECT_EQ(foundInName(copy), "") << copy;
}

TEST_F(PackageCheck, NamesTheDeclaredEncodingAsTheCauseOfBytesThatAreNotUtf8) {
    const auto found = [&](const std::string& declaration) {
        const std::vector<Finding> findings = checkPackage(folder_.writePackage(
            declaration + test::package(test::grower(1, "<GrowerName>\xE9</GrowerName>"))));
        EXPECT_EQ(findings.size(), 1U);
        return findings.front().found;
    };
    const std::string byte = "the byte \\xE9 is not UTF-8, in which the file is read ";
    const std::string seeming = "; it seems to be in an encoding such as windows-1252";
    EXPECT_EQ(found(""), byte + "because it declares no encoding" + seeming);
    EXPECT_EQ(found("<?xml version='1.0' encoding='utf-8'?>"),
              byte + "as its declaration says" + seeming);
    EXPECT_EQ(found("<?xml version='1.0' encoding='utf-8'?><!-- \u00e9 -->"),
              byte + "as its declaration says");
    EXPECT_EQ(found("<?xml version='1.0' encoding='windows-1252'?>"),
              byte + "although its declaration says \"windows-1252\"");
}

TEST_F(PackageCheck, NamesBothEncodingsWhereTheDeclaredOneIsAnother) {
    const auto found = [&](const std::string& encoding, const std::string& name) {
        std::string all;
        for (const Finding& finding : checkPackage(folder_.writePackage(
                 "<?xml version='1.0' encoding='" + encoding + "'?>" +
                 test::package(test::grower(1, test::element("GrowerName", name))))))
            all += std::string(kindOf(finding.code).code) + ": " + finding.found;
        return all;
    };
    EXPECT_EQ(found("ISO-8859-1", "Jos\u00e9"),
              "encoding-mistaken: the declaration says \"ISO-8859-1\", but the file is in UTF-8: "
              "\"\u00e9\" is read as \"\u00c3\u00a9\"");
    EXPECT_EQ(found("ISO-8859-1", "Jos\xE9"), "");
    EXPECT_EQ(found("ISO-8859-1", "Jose"), "");
    EXPECT_EQ(found("windows-1252", "Jos\u00e9"),
              "encoding-ignored: the declaration says \"windows-1252\", but the file is in UTF-8, "
              "and read as that");
}

TEST_F(PackageCheck, FindsEveryByteThatIsNoCharacterByItself) {
    for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
        const std::string name =
            test::element("GrowerName", "a" + std::string(1, static_cast<char>(byte)) + "b");
        const std::vector<Finding> findings =
            checkPackage(folder_.writePackage(test::package(test::grower(1, name))));
        ASSERT_EQ(findings.size(), 1U) << byte;
        EXPECT_EQ(findings.front().code, FindingCode::InvalidUtf8);
    }
}

TEST_F(PackageCheck, FindsBytesThatAreNotUtf8InTheirPlace) {
    const auto codes = [&](const std::string& text) {
        std::string all;
        for (const Finding& finding : checkPackage(folder_.writePackage(text)))
            all += std::string(kindOf(finding.code).code) + " ";
        return all;
    };
    EXPECT_EQ(codes("<RecPackage><x/>\xE9<y/></RecPackage>"),
              "no-grower unknown-element stray-text invalid-utf8 unknown-element ");
    EXPECT_EQ(codes("<RecPackage><x>\xE9</x></RecPackage>"),
              "no-grower unknown-element invalid-utf8 ");
    EXPECT_EQ(codes("<RecPackage>\xE9</x>"), "invalid-utf8 not-well-formed ");
    EXPECT_EQ(codes("</x>\xE9"), "not-well-formed invalid-utf8 ");
}

TEST_F(PackageCheck, EscapesWhatComesFromThePackage) {
    const std::string path = folder_.writePackage(
        test::package(test::grower(1, "<GrowerName>\x1b[2J\xFF</GrowerName><\x1b/>")));
    for (const Finding& finding : checkPackage(path)) {
        for (const std::string& text : {finding.path, recordsText(finding), finding.found,
                                        consequenceText(finding), finding.location->excerpt.line}) {
            EXPECT_EQ(text.find('\x1b'), std::string::npos) << text;
            EXPECT_EQ(text.find('\xFF'), std::string::npos) << text;
        }
    }
}

} // namespace
