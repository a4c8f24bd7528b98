/// @file
/// The good sample packages read as their descriptions say.

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"
#include "tests/package/Samples.h"
#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"

namespace {

using test::describe;
using test::entries;
using test::forEachRec;
using test::outline;
using test::packages;
using test::textOf;
using test::uuid;

const std::string smallFarm = "32833106-536e-45df-80b2-d002cc92d33d";
const std::string plan = "3ce1268c-9c80-42e3-bfec-3fee8ed2305d";
const std::string changes = "f08db22f-d293-456a-b170-fab23d90fbac";
const std::string contractor = "f3faa8e8-79ea-4723-8ad5-cfbc1d74bd1c";

/// The rec that both packages of the overlapping pair hold.
const std::string sharedRec = "7cce173a-0421-4117-a37c-f3ccd269f468";

std::vector<QenGrower> growersOf(const std::string& package) {
    QenXmlParser parser;
    EXPECT_TRUE(parser.parseFile((packages / (package + ".xml")).string()));
    return parser.getGrowers();
}

/// The one grower of a package that has one.
QenGrower growerOf(const std::string& package) {
    return growersOf(package).at(0);
}

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

} // namespace
