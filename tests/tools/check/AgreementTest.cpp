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
#include <variant>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/RandomPackage.h"
#include "tests/support/SourceFolder.h"
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
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.severity() == Severity::Error;
    });
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

/// What the findings about a package that can be read claim to be lost.
RecordCounts claimedLost(const std::vector<Finding>& findings) {
    RecordCounts lost;
    for (const Finding& finding : findings) {
        if (const auto* const other = std::get_if<Replaces>(&finding.consequence)) {
            const std::string record = other->record;
            lost.farms += record == "farm" ? 1 : 0;
            lost.fields += other->fields + (record == "field" ? 1 : 0);
            lost.recs += other->recs + (record == "rec" ? 1 : 0);
        }
        if (const auto* const without = std::get_if<Without>(&finding.consequence)) {
            lost.recsWithoutProduct += without->part == RecPart::Product ? 1 : 0;
            lost.operations += without->part == RecPart::Operation ? 1 : 0;
            lost.seasons += without->part == RecPart::Season ? 1 : 0;
        }
    }
    return lost;
}

/// Whether some records are replaced, so that what is said of them is not in the tree.
bool replacesAny(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return std::holds_alternative<Replaces>(finding.consequence);
    });
}

/// Whether a finding is about an identifier that the tree shows.
bool isAboutShownIdentifier(const Finding& finding) {
    const bool identifier = finding.code == FindingCode::IdentifierDigit ||
                            finding.code == FindingCode::IdentifierTrailing;
    // A blend's own identifier shows only if the blend is read.
    return identifier && finding.path.find("OpID") == std::string::npos &&
           finding.path.find("ProductID") == std::string::npos;
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
        if (isAboutShownIdentifier(finding)) {
            EXPECT_NE(tree.find(std::get<ReadAs>(finding.consequence).value), std::string::npos)
                << test::toText(finding);
        }
    }
}

/// What the errors of a package come to that cannot be read.
void expectErrorsTellHowFarReadingComes(const std::vector<Finding>& findings,
                                        std::size_t growersRead) {
    std::size_t errors = 0;
    std::size_t firstLine = 0;
    for (const Finding& finding : findings) {
        if (finding.severity() != Severity::Error)
            continue;
        if (const auto* const end = std::get_if<ReadingEnds>(&finding.consequence)) {
            EXPECT_EQ(errors, 0U);
            EXPECT_EQ(end->growers, growersRead);
            firstLine = finding.location->begin.line;
        } else if (const auto* const later = std::get_if<NotReached>(&finding.consequence)) {
            EXPECT_EQ(later->errors, errors);
            EXPECT_EQ(later->line, firstLine);
        } else {
            EXPECT_TRUE(std::holds_alternative<NothingRead>(finding.consequence));
            EXPECT_EQ(growersRead, 0U);
        }
        ++errors;
    }
    EXPECT_GT(errors, 0U);
}

std::string textOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Expects that errors are found in a text if and only if the library cannot read it, and that
/// nothing is claimed that the tree contradicts.
class AgreementWithTheLibrary : public testing::Test {
protected:
    void expectAgreement(const std::string& text) {
        const std::string path = folder_.writePackage(text);
        const Reading reading = read(path);
        lastIsComplete_ = reading.complete;
        const std::vector<Finding> findings = checkPackage(path);
        ASSERT_EQ(!hasError(findings), reading.complete) << toText(findings) << text;
        if (reading.complete)
            expectClaimsHold(text, findings, reading.growers);
        else
            expectErrorsTellHowFarReadingComes(findings, reading.growers.size());
        ASSERT_FALSE(HasFailure()) << toText(findings) << text;
    }

    test::TemporaryFolder folder_;
    bool lastIsComplete_ = false; ///< Whether the last text could be read.
};

TEST_F(AgreementWithTheLibrary, FindsErrorsInASampleIfAndOnlyIfItCannotBeRead) {
    std::size_t samples = 0;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(test::inSources("examples/packages"))) {
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

TEST_F(AgreementWithTheLibrary, HoldsForRandomPackages) {
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

TEST_F(AgreementWithTheLibrary, HoldsForMutatedPackages) {
    std::mt19937 random(2); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same packages every time
    std::vector<std::string> sources;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(test::inSources("examples/packages/broken/rec-id")))
        sources.push_back(textOf(entry.path()));
    sources.push_back(
        textOf(test::inSources("examples/packages/32833106-536e-45df-80b2-d002cc92d33d.xml")));
    for (std::size_t i = 0; i < 1500; ++i) {
        const std::string text =
            i % 3 == 0 ? test::randomPackage(random) : sources[i % sources.size()];
        ASSERT_NO_FATAL_FAILURE(expectAgreement(test::mutated(text, random))) << "package " << i;
    }
}

} // namespace
