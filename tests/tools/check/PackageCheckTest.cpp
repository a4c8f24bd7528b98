/// @file
/// The check of packages against the library: what it says about a file is what reading it does.

#include "tools/check/PackageCheck.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/RandomPackage.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/check/Findings.h"
#include "tools/text/SourceText.h"

namespace fs = std::filesystem;

namespace {

/// What the library makes of a file.
struct Reading {
    bool complete = false;
    std::vector<QenGrower> growers;
};

Reading read(const std::string& path) {
    Reading reading;
    QenXmlParser parser;
    try {
        reading.complete = parser.parseFile(path);
    } catch (const std::exception&) {
        reading.complete = false;
    }
    reading.growers = parser.getGrowers();
    return reading;
}

bool hasError(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.severity == Severity::Error; });
}

std::string toText(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += test::toText(finding) + "\n";
    return text;
}

/// How many records there are, of each level.
struct RecordCounts {
    std::size_t farms = 0;
    std::size_t fields = 0;
    std::size_t recs = 0;
    std::size_t recsWithoutProduct = 0;
    std::size_t operations = 0;
    std::size_t seasons = 0;
};

RecordCounts countOf(std::vector<QenGrower>& growers) {
    RecordCounts counts;
    for (QenGrower& grower : growers) {
        for (QenFarm& farm : grower.farms()) {
            ++counts.farms;
            for (QenField& field : farm.fields()) {
                ++counts.fields;
                for (QenRec& rec : field.recs()) {
                    ++counts.recs;
                    counts.recsWithoutProduct += rec.recData() == nullptr ? 1 : 0;
                    counts.operations += rec.operationId().is_nil() ? 0 : 1;
                    counts.seasons += rec.seasonId() < 0 ? 0 : 1;
                }
            }
        }
    }
    return counts;
}

/// The items of a list in a document, whatever their names: those from the first one on.
std::vector<pugi::xml_node> items(pugi::xml_node parent, const char* name) {
    std::vector<pugi::xml_node> result;
    for (pugi::xml_node node = parent.child(name); node; node = node.next_sibling())
        result.push_back(node);
    return result;
}

/// How many records stand in a document that can be read.
RecordCounts countWritten(const pugi::xml_document& document) {
    RecordCounts counts;
    for (const pugi::xml_node grower : items(document.child("RecPackage"), "Grower")) {
        for (const pugi::xml_node farm : items(grower, "Farm")) {
            ++counts.farms;
            for (const pugi::xml_node field : items(farm, "Field")) {
                ++counts.fields;
                for (const pugi::xml_node rec : items(field.child("Recommendations"), "Rec")) {
                    ++counts.recs;
                    counts.operations += rec.child("Operation") ? 1 : 0;
                    counts.seasons += rec.child("Season") ? 1 : 0;
                }
            }
        }
    }
    return counts;
}

std::size_t numberBefore(const std::string& what, const std::string& text) {
    const std::size_t end = text.find(" " + what);
    const std::size_t begin = text.substr(0, end).find_last_not_of("0123456789") + 1;
    return end == std::string::npos ? 0 : std::stoul(text.substr(begin, end - begin));
}

/// What the findings about a package that can be read claim to be lost.
RecordCounts claimedLost(const std::vector<Finding>& findings) {
    RecordCounts lost;
    for (const Finding& finding : findings) {
        const std::string& claim = finding.consequence;
        if (finding.code == "duplicate-rec" || finding.code == "duplicate-field" ||
            finding.code == "duplicate-farm") {
            lost.farms += finding.code == "duplicate-farm" ? 1 : 0;
            lost.fields += finding.code == "duplicate-field" ? 1 : 0;
            lost.recs += finding.code == "duplicate-rec" ? 1 : 0;
            // After the place: "is replaced by this one and lost with its 2 fields and 3 recs".
            const std::string with = claim.substr(std::min(claim.find("lost"), claim.size()));
            lost.fields += numberBefore("field", with);
            lost.recs += numberBefore("rec", with);
        }
        lost.recsWithoutProduct += claim.find("the rec is kept without product data") == 0 ? 1 : 0;
        lost.operations += claim.find("the rec has no operation") == 0 ? 1 : 0;
        lost.seasons += claim.find("the rec has no season") == 0 ? 1 : 0;
    }
    return lost;
}

/// Whether some records are replaced, so that what is said of them is not in the tree.
bool replacesAny(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.code.find("duplicate-") == 0 && finding.code != "duplicate-grower";
    });
}

void expectClaimsHold(const std::string& text, const std::vector<Finding>& findings,
                      std::vector<QenGrower> growers) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_buffer(text.data(), text.size()));
    const RecordCounts written = countWritten(document);
    const RecordCounts lost = claimedLost(findings);
    const RecordCounts kept = countOf(growers);
    EXPECT_EQ(kept.farms, written.farms - lost.farms);
    EXPECT_EQ(kept.fields, written.fields - lost.fields);
    EXPECT_EQ(kept.recs, written.recs - lost.recs);
    if (replacesAny(findings))
        return;
    EXPECT_EQ(kept.recsWithoutProduct, lost.recsWithoutProduct);
    EXPECT_EQ(kept.operations, written.operations - lost.operations);
    EXPECT_EQ(kept.seasons, written.seasons - lost.seasons);
    const std::string tree = test::describe(growers);
    for (const Finding& finding : findings) {
        const std::string readAs = "it is read as ";
        const std::size_t place = finding.consequence.find(readAs);
        if (place == std::string::npos || finding.code.find("identifier") != 0 ||
            finding.path.find("OpID") != std::string::npos)
            continue;
        const std::string uuid = finding.consequence.substr(place + readAs.size());
        // A blend's own identifier shows only if the blend is read.
        EXPECT_TRUE(tree.find(uuid) != std::string::npos ||
                    finding.path.find("ProductID") != std::string::npos)
            << toText({finding});
    }
}

std::string textOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Expects that errors are found in a text if and only if the library cannot read it, and that
/// nothing is claimed that the tree contradicts.
class PackageCheck : public testing::Test {
protected:
    void expectAgreement(const std::string& text) {
        const std::string path = folder_.writePackage(text);
        const Reading reading = read(path);
        lastIsComplete_ = reading.complete;
        const std::vector<Finding> findings = checkPackage(path);
        ASSERT_EQ(!hasError(findings), reading.complete) << toText(findings) << text;
        if (reading.complete)
            expectClaimsHold(text, findings, reading.growers);
        ASSERT_FALSE(HasFailure()) << toText(findings) << text;
    }

    test::TemporaryFolder folder_;
    bool lastIsComplete_ = false; ///< Whether the last text could be read.
};

TEST_F(PackageCheck, FindsErrorsInASampleIfAndOnlyIfItCannotBeRead) {
    std::size_t samples = 0;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(fs::path(QENXML_SOURCE_DIR) / "examples/packages")) {
        if (entry.path().extension() != ".xml")
            continue;
        ++samples;
        SCOPED_TRACE(entry.path().string());
        EXPECT_EQ(!hasError(checkPackage(entry.path().string())),
                  read(entry.path().string()).complete);
        expectAgreement(textOf(entry.path()));
    }
    EXPECT_GE(samples, 20U);
}

TEST_F(PackageCheck, AgreesWithTheLibraryOnRandomPackages) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same packages every time
    std::size_t complete = 0;
    const std::size_t packages = 1200;
    for (std::size_t i = 0; i < packages; ++i) {
        const std::string text = test::randomPackage(random);
        ASSERT_NO_FATAL_FAILURE(expectAgreement(text)) << "package " << i;
        complete += lastIsComplete_ ? 1 : 0;
    }
    // Both kinds are among them.
    EXPECT_GT(complete, packages / 4);
    EXPECT_LT(complete, packages * 3 / 4);
}

TEST_F(PackageCheck, AgreesWithTheLibraryOnMutatedPackages) {
    std::mt19937 random(2); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same packages every time
    std::vector<std::string> sources;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(QENXML_SOURCE_DIR) / "examples/packages/broken/rec-id"))
        sources.push_back(textOf(entry.path()));
    sources.push_back(textOf(fs::path(QENXML_SOURCE_DIR) /
                             "examples/packages/32833106-536e-45df-80b2-d002cc92d33d.xml"));
    for (std::size_t i = 0; i < 1500; ++i) {
        const std::string text =
            i % 3 == 0 ? test::randomPackage(random) : sources[i % sources.size()];
        ASSERT_NO_FATAL_FAILURE(expectAgreement(test::mutated(text, random))) << "package " << i;
    }
}

/// Counts all findings and keeps the last one.
class LastFinding : public FindingSink {
public:
    bool wants(FindingCode) override {
        ++count;
        return true;
    }
    void add(const Finding& finding) override { last = finding; }

    std::size_t count = 0;
    Finding last;
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
    EXPECT_EQ(sink.last.code, "duplicate-farm");
    EXPECT_EQ(sink.last.path, "/RecPackage/Grower[1]/Farm[30000]/@FarmID");
    EXPECT_EQ(sink.last.position->line, 1U);
}

TEST_F(PackageCheck, SaysOfEachErrorWhatItCosts) {
    const std::string path = folder_.writePackage(
        test::package(test::grower(1, "<GrowerName>a</GrowerName>") +
                      "\n<Grower><GrowerName>b</GrowerName><Farm/></Grower>\n<Grower/>"));
    EXPECT_EQ(
        toText(checkPackage(path)),
        "2:1 grower-id /RecPackage/Grower[2]: Grower has no attribute GrowerID -> this grower and "
        "the rest of the file are not read; the grower before it is\n"
        "2:35 empty-name /RecPackage/Grower[2]/Farm[1]: FarmName is missing -> hosts can show no "
        "name\n"
        "2:35 farm-id /RecPackage/Grower[2]/Farm[1]: Farm has no attribute FarmID -> this grower "
        "is not read because of line 2; it is not enough to mend that alone\n"
        "3:1 empty-name /RecPackage/Grower[3]: GrowerName is missing -> hosts can show no name\n"
        "3:1 grower-id /RecPackage/Grower[3]: Grower has no attribute GrowerID -> reading ends "
        "before this, because of line 2; once the 2 errors before it are mended, it ends here\n");
}

TEST_F(PackageCheck, DoesNotReadTheIdentifierOfAnIncompleteBlend) {
    const std::string path = folder_.writePackage(test::package(test::grower(
        1, test::farm(2, test::field(3, test::recommendations(test::rec(
                                            4, "<RecData><CustomFertilizer><ProductID>4711"
                                               "</ProductID></CustomFertilizer></RecData>")))))));
    EXPECT_TRUE(read(path).complete);
    const std::vector<Finding> findings = checkPackage(path);
    EXPECT_FALSE(hasError(findings));
    const auto incomplete =
        std::find_if(findings.begin(), findings.end(),
                     [](const Finding& finding) { return finding.code == "product-incomplete"; });
    ASSERT_NE(incomplete, findings.end());
    EXPECT_EQ(
        incomplete->found,
        "CustomFertilizer has no ProductName, UOMID, UOM, SFertT_ID, SpGravity, Pct_N, Pct_P, "
        "Pct_K, Pct_Ca, Pct_Mg, Pct_S, Pct_Fe, Pct_Mn, Pct_Zn, Pct_Cu, Pct_B, Pct_Mo and "
        "Pct_Cl");
    EXPECT_EQ(incomplete->consequence,
              "the rec is kept without product data; once it is complete, reading fails because "
              "ProductID \"4711\" is too short: it ends after 4 of 32 digits");
}

TEST_F(PackageCheck, SaysOfAFileThatIsNotThereNoMoreThanThat) {
    // It may be its name that is mistyped.
    for (const std::string name : {"missing.xml", "missing-with-a-name-that-is-much-longer.xml"}) {
        const std::string path = folder_.path(name);
        EXPECT_EQ(toText(checkPackage(path)),
                  "unreadable : not found -> nothing of the file is read\n");
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

TEST_F(PackageCheck, NamesTheDeclaredEncodingAsTheCauseOfBytesThatAreNotUtf8) {
    const auto found = [&](const std::string& declaration) {
        const std::vector<Finding> findings = checkPackage(folder_.writePackage(
            declaration + test::package(test::grower(1, "<GrowerName>\xE9</GrowerName>"))));
        EXPECT_EQ(findings.size(), 1U);
        return findings.front().found;
    };
    const std::string byte = "the byte \\xE9 is not UTF-8, in which the file is read";
    EXPECT_EQ(found(""), byte);
    EXPECT_EQ(found("<?xml version='1.0' encoding='utf-8'?>"), byte);
    EXPECT_EQ(found("<?xml version='1.0' encoding='windows-1252'?>"),
              byte + " although its declaration says \"windows-1252\"");
}

TEST_F(PackageCheck, FindsEveryByteThatIsNoCharacterByItself) {
    for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
        const std::string name =
            test::element("GrowerName", "a" + std::string(1, static_cast<char>(byte)) + "b");
        const std::vector<Finding> findings =
            checkPackage(folder_.writePackage(test::package(test::grower(1, name))));
        ASSERT_EQ(findings.size(), 1U) << byte;
        EXPECT_EQ(findings.front().code, "invalid-utf8");
    }
}

TEST_F(PackageCheck, FindsBytesThatAreNotUtf8InTheirPlace) {
    const auto codes = [&](const std::string& text) {
        std::string all;
        for (const Finding& finding : checkPackage(folder_.writePackage(text)))
            all += finding.code + " ";
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
        for (const std::string& text : {finding.path, finding.records, finding.found,
                                        finding.consequence, finding.excerpt.line}) {
            EXPECT_EQ(text.find('\x1b'), std::string::npos) << text;
            EXPECT_EQ(text.find('\xFF'), std::string::npos) << text;
        }
    }
}

} // namespace
