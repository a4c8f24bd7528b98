/// @file
/// The sample packages, good and broken, and the examples of docs/package-format.md read as their
/// descriptions say.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/exception/exception.hpp>
#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"
#include "parser/internal/TagConstants.h"
#include "tests/support/BrokenPackages.h"
#include "tests/support/Describe.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"

namespace fs = std::filesystem;
using test::describe;
using test::uuid;

namespace {

const fs::path packages = fs::path(QENXML_SOURCE_DIR) / "examples/packages";
const fs::path broken = packages / "broken";
const std::string smallFarm = "32833106-536e-45df-80b2-d002cc92d33d";
const std::string plan = "3ce1268c-9c80-42e3-bfec-3fee8ed2305d";
const std::string changes = "f08db22f-d293-456a-b170-fab23d90fbac";
const std::string contractor = "f3faa8e8-79ea-4723-8ad5-cfbc1d74bd1c";

/// The rec that both packages of the overlapping pair hold.
const std::string sharedRec = "7cce173a-0421-4117-a37c-f3ccd269f468";

std::string textOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot open " + path.string());
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<QenGrower> growersOf(const std::string& package) {
    QenXmlParser parser;
    EXPECT_TRUE(parser.parseFile((packages / (package + ".xml")).string()));
    return parser.getGrowers();
}

/// The one grower of a package that has one.
QenGrower growerOf(const std::string& package) {
    return growersOf(package).at(0);
}

/// The names of all records that have one, indented by level: the shape of a tree.
std::string outline(std::vector<QenGrower> growers) {
    std::string result;
    for (QenGrower& grower : growers) {
        result += grower.name() + '\n';
        for (QenFarm& farm : grower.farms()) {
            result += "  " + farm.name() + '\n';
            for (QenField& field : farm.fields()) {
                result += "    " + field.name() + '\n';
                for (QenRec& rec : field.recs())
                    result += "      " + rec.name() + '\n';
            }
        }
    }
    return result;
}

template <class Visit>
void forEachRec(std::vector<QenGrower> growers, Visit visit) {
    for (QenGrower& grower : growers)
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                for (QenRec& rec : field.recs())
                    visit(rec);
}

/// Names of the entries of a folder.
std::set<std::string> entries(const fs::path& folder, bool folders) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.is_directory() == folders)
            names.insert(entry.path().filename().string());
    return names;
}

// Good packages

TEST(Samples, EveryPackageHasATestAndALineInTheReadme) {
    EXPECT_EQ(entries(packages, false),
              (std::set<std::string>{"README.md", smallFarm + ".xml", plan + ".xml",
                                     changes + ".xml", contractor + ".xml"}));
    const std::string readme = textOf(packages / "README.md");
    for (const std::string& package : {smallFarm, plan, changes, contractor})
        EXPECT_NE(readme.find("`" + package + ".xml`"), std::string::npos) << package;
}

TEST(Samples, TheSmallFarmHasAllThreeKindsOfProducts) {
    EXPECT_EQ(outline(growersOf(smallFarm)), "Søren Lindqvist\n"
                                             "  Home Place\n"
                                             "    North Forty\n"
                                             "      Corn, North Forty\n"
                                             "      Urea before planting\n"
                                             "    Creek Bottom\n"
                                             "      Soybeans, Creek Bottom\n"
                                             "      Starter in the furrow\n");
    QenGrower grower = growerOf(smallFarm);
    std::vector<QenRec>& north = grower.farms().at(0).fields().at(0).recs();
    std::vector<QenRec>& creek = grower.farms().at(0).fields().at(1).recs();

    ASSERT_EQ(north.at(0).recData()->recType(), RecTypePlanting);
    auto& corn = static_cast<PlantingRec&>(*north.at(0).recData());
    EXPECT_EQ(corn.cropName(), "Corn");
    EXPECT_EQ(corn.companyName(), "Quillmark Seed");
    EXPECT_EQ(corn.varietyId(), 4417);
    EXPECT_EQ(corn.varietyName(), "QM 4417");
    EXPECT_EQ(north.at(0).averageRate(), 32400.0);
    EXPECT_EQ(north.at(0).rateUom(), "seeds/ac");
    EXPECT_EQ(north.at(0).total(), 1250640.0);

    ASSERT_EQ(north.at(1).recData()->recType(), RecTypeCommercialFertilizer);
    auto& urea = static_cast<CommercialFertilizerRec&>(*north.at(1).recData());
    EXPECT_EQ(urea.productId(), 46);
    EXPECT_EQ(urea.productName(), "Urea 46-0-0");

    ASSERT_EQ(creek.at(1).recData()->recType(), RecTypeCustomFertilizer);
    auto& starter = static_cast<CustomFertilizerRec&>(*creek.at(1).recData());
    EXPECT_EQ(starter.productId(), uuid("e07cb579-3e7f-497b-bcc1-c0c8b0cdf20a"));
    EXPECT_EQ(starter.spGravity(), 1.31);
    EXPECT_EQ(starter.pct_N(), 9.0);
    EXPECT_EQ(starter.pct_P(), 24.0);
    EXPECT_EQ(starter.pct_Zn(), 0.5);
    EXPECT_EQ(starter.pct_Cl(), 0.0);
}

TEST(Samples, TheContractorHasSeveralGrowersSeasonsAndZones) {
    EXPECT_EQ(outline(growersOf(contractor)), "Agrarhof Weißenfelde GbR\n"
                                              "  Hof Groß Ühlsdorf\n"
                                              "    Langer Schlag\n"
                                              "      Grunddüngung Herbst\n"
                                              "      Winterweizen\n"
                                              "      KAS, Zone lehmig\n"
                                              "      KAS, Zone sandig\n"
                                              "    Am Mühlenbach\n"
                                              "      Silomais\n"
                                              "      Winterraps\n"
                                              "  Vorwerk Süd\n"
                                              "    Dreieck\n"
                                              "      AHL mit Schwefel\n"
                                              "Jürgen Kröger\n"
                                              "  Krögerhof\n"
                                              "    Hauskoppel\n"
                                              "      Kohlensaurer Kalk\n"
                                              "    Moorwiese\n"
                                              "Łucja Wójcik\n"
                                              "  Neuhof\n"
                                              "    Schlag 3\n"
                                              "      Zuckerrüben\n"
                                              "      Bor auf das Blatt\n"
                                              "    Schlag 4\n"
                                              "      Wintergerste\n"
                                              "      Herbizid Herbst\n");
    std::vector<QenGrower> growers = growersOf(contractor);
    std::vector<QenRec>& recs = growers.at(0).farms().at(0).fields().at(0).recs();
    EXPECT_EQ(recs.at(0).seasonId(), 2025);
    EXPECT_EQ(recs.at(0).seasonName(), "Ernte 2025");
    EXPECT_EQ(recs.at(1).seasonId(), 2026);
    EXPECT_EQ(recs.at(1).operationName(), "Aussaat");
    EXPECT_TRUE(recs.at(1).mgmtZoneId().is_nil());
    EXPECT_EQ(recs.at(2).mgmtZoneId(), uuid("20b81d7f-8e9e-4bb8-b4a3-7b2b926271f2"));
    EXPECT_EQ(recs.at(3).mgmtZoneId(), uuid("61796ac4-1055-4b62-9804-abbec2b8c1c5"));

    const QenField& field = growers.at(0).farms().at(0).fields().at(0);
    const boost::uuids::uuid boundary = recs.at(1).fieldGeometryId();
    EXPECT_EQ(field.geometryDate(boundary), "2024-08-05");
    EXPECT_EQ(field.geometryFileName(boundary), "1e2ed6cb-6470-4f1f-934b-8db4b18fbdb1");
    EXPECT_EQ(field.centroid(boundary).latitude, 53.71846);
    EXPECT_EQ(field.centroid(boundary).longitude, 12.61207);
}

TEST(Samples, APesticideMixIsARecWithRatesAndWithoutProductData) {
    std::vector<QenGrower> growers = growersOf(contractor);
    QenRec& rec = growers.at(2).farms().at(0).fields().at(1).recs().at(1);
    EXPECT_EQ(rec.operationName(), "Pflanzenschutz");
    EXPECT_EQ(rec.averageRate(), 200.0);
    EXPECT_EQ(rec.recData(), nullptr);
}

TEST(Samples, EveryRecIsPlausible) {
    for (const std::string& package : {smallFarm, plan, changes, contractor})
        forEachRec(growersOf(package), [&](QenRec& rec) {
            SCOPED_TRACE(package + ": " + rec.name());
            EXPECT_EQ(rec.xmlFileName(), uuid(package));
            EXPECT_LE(rec.minimumRate(), rec.averageRate());
            EXPECT_LE(rec.averageRate(), rec.maximumRate());
            EXPECT_NEAR(rec.total(), rec.averageRate() * rec.area(), rec.total() * 1e-9);
            EXPECT_EQ(rec.rateUom(), rec.totalUom() + "/" + rec.areaUom());
            EXPECT_LE(rec.creationDate(), rec.editDate().empty() ? "9999" : rec.editDate());
        });
}

TEST(Samples, MergingTheChangesIntoThePlanAlternatesTheNames) {
    QenGrower grower = growerOf(plan);
    grower.merge(growerOf(changes));
    EXPECT_EQ(outline({grower}), "Irmãos Conceição\n"
                                 "  Sto. Antônio (sede)\n"
                                 "    Talhão 12\n"
                                 "      Milho safrinha\n"
                                 "    Talhão 7\n"
                                 "      Soja talhão 7\n"
                                 "      MAP no sulco\n"
                                 "      KCl em cobertura\n"
                                 "    Talhão 8\n"
                                 "      Soja talhão 8\n"
                                 "  Fazenda Boa Vista\n"
                                 "    Pivô central\n"
                                 "      Fertirrigação\n");
}

TEST(Samples, MergingThePlanIntoTheChangesAlternatesTheNamesTheOtherWayRound) {
    QenGrower grower = growerOf(changes);
    grower.merge(growerOf(plan));
    EXPECT_EQ(outline({grower}), "Conceição & Irmãos Ltda.\n"
                                 "  Fazenda Santo Antônio\n"
                                 "    T7 várzea\n"
                                 "      Soja talhão 7, revisada\n"
                                 "      KCl em cobertura\n"
                                 "      MAP no sulco\n"
                                 "    Talhão 8\n"
                                 "      Soja talhão 8\n"
                                 "    Talhão 12\n"
                                 "      Milho safrinha\n"
                                 "  Fazenda Boa Vista\n"
                                 "    Pivô central\n"
                                 "      Fertirrigação\n");
}

TEST(Samples, TheRecInBothPackagesKeepsTheContentOfTheGrowerThatMerges) {
    QenGrower planned = growerOf(plan);
    QenGrower changed = growerOf(changes);
    const QenRec first = planned.farms().at(0).fields().at(0).recs().at(0);
    const QenRec second = changed.farms().at(0).fields().at(1).recs().at(0);
    ASSERT_EQ(QenRec(first).id(), uuid(sharedRec));
    ASSERT_EQ(QenRec(first).averageRate(), 280000.0);
    ASSERT_EQ(QenRec(second).id(), uuid(sharedRec));
    ASSERT_EQ(QenRec(second).averageRate(), 265000.0);

    QenGrower merged = planned;
    merged.merge(changed);
    EXPECT_EQ(describe(merged.farms().at(0).fields().at(1).rec(uuid(sharedRec))), describe(first));
    merged = changed;
    merged.merge(planned);
    EXPECT_EQ(describe(merged.farms().at(0).fields().at(0).rec(uuid(sharedRec))), describe(second));
}

TEST(Samples, TheMergedFieldAnswersForBothBoundaries) {
    QenGrower grower = growerOf(plan);
    grower.merge(growerOf(changes));
    QenField& field = grower.farms().at(0).fields().at(1);
    ASSERT_EQ(field.geometries().size(), 2U);
    const boost::uuids::uuid planned = field.recs().at(1).fieldGeometryId();
    const boost::uuids::uuid surveyed = field.recs().at(2).fieldGeometryId();
    EXPECT_EQ(field.geometryDate(planned), "2025-08-20");
    EXPECT_EQ(field.geometryFileName(planned), "d12c0c3e-250c-4913-b4ff-6a0bcf545cd0");
    EXPECT_EQ(field.geometryDate(surveyed), "2026-01-15");
    EXPECT_EQ(field.geometryFileName(surveyed), "265c7d63-3a34-404b-ba97-6fed00da4609");
}

// Broken packages

/// How a call of parseFile() ends.
std::string outcomeOf(QenXmlParser& parser, const std::string& path) {
    try {
        return parser.parseFile(path) ? "true" : "false";
    } catch (const std::out_of_range&) {
        return "out of range";
    } catch (const std::runtime_error& error) {
        const bool boosted = dynamic_cast<const boost::exception*>(&error) != nullptr;
        return error.what() + std::string(boosted ? "" : ", no boost::exception");
    }
}

const std::string invalid = "invalid uuid string";
const std::vector<std::string> first = {"Emil Åkesson"};

std::vector<std::string> namesOf(const std::vector<QenGrower>& growers) {
    std::vector<std::string> names;
    for (const QenGrower& grower : growers)
        names.push_back(grower.name());
    return names;
}

/// Goes into a folder until the end of the test.
class WorkingFolder {
public:
    explicit WorkingFolder(const fs::path& folder) { fs::current_path(folder); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        std::error_code ignored;
        fs::current_path(previous_, ignored);
    }

private:
    fs::path previous_ = fs::current_path();
};

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
    const WorkingFolder folder(file.parent_path()); // for the path that is too short
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

// docs/package-format.md

/// The XML examples of the description of the format that begin with one of the texts given.
std::vector<std::string> formatExamples(const std::vector<std::string>& beginnings) {
    const std::string document = textOf(fs::path(QENXML_SOURCE_DIR) / "docs/package-format.md");
    const std::string opening = "\n```xml\n";
    std::vector<std::string> examples;
    std::size_t begin = document.find(opening);
    while (begin != std::string::npos) {
        begin += opening.size();
        const std::size_t end = document.find("```\n", begin);
        const std::string example = document.substr(begin, end - begin);
        if (std::any_of(beginnings.begin(), beginnings.end(), [&](const std::string& text) {
                return example.compare(0, text.size(), text) == 0;
            }))
            examples.push_back(example);
        begin = document.find(opening, end);
    }
    return examples;
}

/// Reads a package from a text; how that ended is added to the growers' description.
std::string readText(const std::string& text) {
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    const std::string outcome = outcomeOf(parser, folder.writePackage(text));
    return outline(parser.getGrowers()) + outcome;
}

TEST(PackageFormat, EveryNameOfTheFormatIsDescribed) {
    const std::string document = textOf(fs::path(QENXML_SOURCE_DIR) / "docs/package-format.md");
    for (const char* name : qenxml::tag::all)
        EXPECT_NE(document.find("| `" + std::string(name) + "` |"), std::string::npos) << name;
}

TEST(PackageFormat, TheMinimalExampleReads) {
    const std::vector<std::string> examples = formatExamples({"<RecPackage"});
    ASSERT_EQ(examples.size(), 1U);
    EXPECT_EQ(readText(examples[0]), "\n  \n    \n      \ntrue");
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    ASSERT_TRUE(parser.parseFile(folder.writePackage(examples[0])));
    QenGrower grower = parser.getGrowers().at(0);
    QenField& field = grower.farms().at(0).fields().at(0);
    EXPECT_EQ(field.centroid(field.recs().at(0).fieldGeometryId()).latitude, 0.0);
    EXPECT_EQ(field.geometryDate(field.recs().at(0).fieldGeometryId()), "");
    EXPECT_EQ(field.recs().at(0).seasonId(), -1);
    EXPECT_EQ(field.recs().at(0).rateUomId(), 0);
    EXPECT_EQ(field.recs().at(0).recData(), nullptr);
}

TEST(PackageFormat, TheFullExampleReadsWithNothingLeftOut) {
    const std::vector<std::string> examples = formatExamples({"<?xml"});
    ASSERT_EQ(examples.size(), 1U);
    EXPECT_EQ(readText(examples[0]), "Käthe Brandl\n"
                                     "  Brandlhof\n"
                                     "    Obere Breite\n"
                                     "      Winterweizen\n"
                                     "      KAS, Zone Hang\n"
                                     "      Herbstmischung\n"
                                     "true");
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    ASSERT_TRUE(parser.parseFile(folder.writePackage(examples[0])));
    forEachRec(parser.getGrowers(), [](QenRec& rec) {
        SCOPED_TRACE(rec.name());
        ASSERT_NE(rec.recData(), nullptr);
        EXPECT_EQ(rec.recData()->recId(), rec.id());
        EXPECT_FALSE(rec.operationId().is_nil());
        EXPECT_EQ(rec.seasonId(), 2026);
        EXPECT_NEAR(rec.total(), rec.averageRate() * rec.area(), rec.total() * 1e-9);
    });
    // It shows every name but those that belong to pesticide mixes.
    bool ofPesticides = false;
    for (const char* name : qenxml::tag::all) {
        ofPesticides = ofPesticides || name == qenxml::tag::PesticideProductID;
        if (name == qenxml::tag::RecStats)
            ofPesticides = false;
        if (ofPesticides || name == qenxml::tag::Percent || name == qenxml::tag::Amount)
            continue;
        const bool shown = examples[0].find("<" + std::string(name)) != std::string::npos ||
                           examples[0].find(" " + std::string(name) + "=") != std::string::npos;
        EXPECT_TRUE(shown) << name;
    }
}

TEST(PackageFormat, TheGoodListReadsAndTheBadOneDoesNot) {
    const std::vector<std::string> good = formatExamples({"<!-- Good"});
    const std::vector<std::string> bad = formatExamples({"<!-- Bad"});
    ASSERT_EQ(good.size(), 1U);
    ASSERT_EQ(bad.size(), 1U);
    EXPECT_EQ(readText("<RecPackage>" + good[0] + "</RecPackage>"),
              "Ingrid Holm\n  Holmgård\n  Nyborg\ntrue");
    EXPECT_EQ(readText("<RecPackage>" + bad[0] + "</RecPackage>"), invalid);
}

// Schema.cmake tests that the schema accepts these.
TEST(PackageFormat, WhatTheSchemaDoesNotSeeIsAnErrorOrLost) {
    const std::vector<std::string> minimal = formatExamples({"<RecPackage"});
    const std::vector<std::string> full = formatExamples({"<?xml"});
    ASSERT_EQ(minimal.size(), 1U);
    ASSERT_EQ(full.size(), 1U);
    const auto changed = [](std::string text, const std::string& from, const std::string& to) {
        return text.replace(text.find(from), from.size(), to);
    };
    for (const char* split : {"<!-- -->30bf", "<?split?>30bf", "<![CDATA[30bf]]>"})
        EXPECT_EQ(readText(changed(minimal[0], "30bf", split)), invalid) << split;
    EXPECT_EQ(readText(changed(minimal[0], "a97c", "<![CDATA[]]>a97c")), invalid);

    // The growers before the broken one are kept: here the one that has been read.
    EXPECT_EQ(readText(changed(minimal[0], "</Grower>", "</Grower>&#32;")),
              "\n  \n    \n      \n" + invalid);
    for (const char* item : {"</Farm>", "</Field>", "</Rec>"})
        EXPECT_EQ(readText(changed(minimal[0], item, item + std::string("&#32;"))), invalid)
            << item;

    const test::TemporaryFolder folder;
    QenXmlParser parser;
    ASSERT_TRUE(
        parser.parseFile(folder.writePackage(changed(full[0], "<Planting>", "&#32;<Planting>"))));
    QenGrower grower = parser.getGrowers().at(0);
    EXPECT_EQ(grower.farms().at(0).fields().at(0).recs().at(0).recData(), nullptr);
    EXPECT_NE(grower.farms().at(0).fields().at(0).recs().at(1).recData(), nullptr);
}

} // namespace
