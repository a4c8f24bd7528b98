#include "tools/show/TreeText.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/PackageText.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

using test::uuid;

namespace {

constexpr const char* nilText = "00000000-0000-0000-0000-000000000000";

/// What is missing from a package with nothing but records and their identifiers.
GrowerGaps nothingGiven() {
    const test::Xml grower("<Grower><Farm FarmID='" + test::uuidText(2) + "'><Field FieldID='" +
                           test::uuidText(3) + "'><FieldGeometryID>" + test::uuidText(4) +
                           "</FieldGeometryID><Recommendations><Rec RecID='" + nilText +
                           "'/></Recommendations></Field></Farm></Grower>");
    return GrowerGaps::of(grower.root());
}

/// The lines about a rec, which is the only one of a grower, a farm and a field.
std::string recText(const QenRec& rec, const GrowerGaps& gaps = nothingGiven(),
                    const TreeLayout& layout = {}) {
    QenField field("", uuid(3), uuid(1), uuid(2));
    field.addRec(rec);
    QenFarm farm("", uuid(2), uuid(1));
    farm.addField(field);
    QenGrower grower("", uuid(1));
    grower.addFarm(farm);
    const std::string text = treeText(grower, gaps, layout);
    return text.substr(text.find("      Rec"));
}

/// The lines about a rec with the given product, and nothing else.
std::string productText(std::unique_ptr<QenRecData> data) {
    QenRec rec;
    rec.setRecData(data.release());
    const std::string text = recText(rec);
    return text.substr(text.find('\n') + 1);
}

std::unique_ptr<CustomFertilizerRec> blend(double spGravity, const std::string& name = "Mix") {
    return std::make_unique<CustomFertilizerRec>(uuid(5), uuid(6), name, 3, "gal", 4, spGravity, 0.,
                                                 0., 0., 0., 0., 0., 0., 0., 0., 0., 0., 0., 0.);
}

TEST(TreeText, ShowsNoMoreThanTheIdentifierOfAnEmptyGrower) {
    QenGrower grower("", uuid(1));
    EXPECT_EQ(treeText(grower, {}, {}), "Grower  00000000-0000-0000-0000-000000000001\n");
}

TEST(TreeText, ShowsAllLevelsOneDeeperThanTheOther) {
    LLA centroid{41.5, -93.25, 0};
    QenField field("North \xC2\xBD", uuid(3), uuid(1), uuid(2), "2014-03-01", uuid(4), uuid(5),
                   centroid);
    QenFarm farm("Home", uuid(2), uuid(1));
    farm.addField(field);
    QenGrower grower("Hansen", uuid(1));
    grower.addFarm(farm);
    grower.addFarm(QenFarm("Away", uuid(9), uuid(1)));
    EXPECT_EQ(treeText(grower, {}, TreeLayout{Style(), 1, false}),
              " Grower Hansen  00000000-0000-0000-0000-000000000001\n"
              "   Farm Home  00000000-0000-0000-0000-000000000002\n"
              "     Field North \xC2\xBD  00000000-0000-0000-0000-000000000003\n"
              "       Boundary 2014-03-01  00000000-0000-0000-0000-000000000004\n"
              "         file       00000000-0000-0000-0000-000000000005\n"
              "         centroid   41.5, -93.25\n"
              "   Farm Away  00000000-0000-0000-0000-000000000009\n");
}

TEST(TreeText, LeavesOutTheCentroidThatIsNotGiven) {
    QenField field("", uuid(3), uuid(1), uuid(2));
    field.addFieldGeometry(QenFieldGeometry(uuid(4), "", uuid(5), LLA{}));
    field.addFieldGeometry(QenFieldGeometry(uuid(6), "", uuid(7), LLA{0, 0, 0}));
    QenFarm farm("", uuid(2), uuid(1));
    farm.addField(field);
    QenGrower grower("", uuid(1));
    grower.addFarm(farm);
    const std::string text = treeText(grower, nothingGiven(), {});
    EXPECT_EQ(text.substr(text.find("      Boundary")),
              "      Boundary  00000000-0000-0000-0000-000000000004\n"
              "        file       00000000-0000-0000-0000-000000000005\n"
              "      Boundary  00000000-0000-0000-0000-000000000006\n"
              "        file       00000000-0000-0000-0000-000000000007\n"
              "        centroid   0, 0\n");
}

TEST(TreeText, ShowsOfARecWithoutAnythingOnlyThatItHasNoProduct) {
    EXPECT_EQ(recText(QenRec()), std::string("      Rec  ") + nilText +
                                     "\n"
                                     "        product    no product data\n");
}

TEST(TreeText, ShowsEverythingThatARecHas) {
    const QenRec rec(uuid(3), uuid(4), "Corn", uuid(10), uuid(11), "2014-02-01", "RATE", "Planting",
                     uuid(12), "2014", 14, uuid(13),
                     new CommercialFertilizerRec(uuid(10), 1, "Urea", 2, "lb"), 0.1, 3e10, 2.5,
                     "lb/ac", 1, 1234567.25, 2, "lb", 40.1, 3, "ac", false, uuid(14));
    EXPECT_EQ(recText(rec), "      Rec Corn  00000000-0000-0000-0000-00000000000a\n"
                            "        operation  Planting  00000000-0000-0000-0000-00000000000c\n"
                            "        season     2014\n"
                            "        zone       00000000-0000-0000-0000-00000000000d\n"
                            "        product    fertilizer: Urea, unit lb\n"
                            "        rate       min 0.1, avg 2.5, max 30000000000 lb/ac\n"
                            "        total      1234567.25 lb\n"
                            "        area       40.1 ac\n"
                            "        geometry   00000000-0000-0000-0000-00000000000b  column RATE\n"
                            "        created    2014-02-01\n");
}

TEST(TreeText, ShowsThePackageOfARecOnDemand) {
    QenRec rec;
    rec.setXmlFileName(uuid(14));
    TreeLayout layout;
    layout.showPackages = true;
    EXPECT_EQ(recText(rec, nothingGiven(), layout),
              std::string("      Rec  ") + nilText +
                  "\n"
                  "        package    00000000-0000-0000-0000-00000000000e\n"
                  "        product    no product data\n");
}

TEST(TreeText, ShowsTheBoundaryOfARecWhenItsFieldHasSeveral) {
    QenRec rec;
    rec.setFieldGeometryId(uuid(4));
    QenField field("", uuid(3), uuid(1), uuid(2));
    field.addRec(rec);
    const auto text = [&] {
        QenFarm farm("", uuid(2), uuid(1));
        farm.addField(field);
        QenGrower grower("", uuid(1));
        grower.addFarm(farm);
        return treeText(grower, {}, {});
    };
    const std::string line = "        boundary   00000000-0000-0000-0000-000000000004\n";
    field.addFieldGeometry(QenFieldGeometry(uuid(4), "", uuid(5), LLA{}));
    EXPECT_EQ(text().find(line), std::string::npos);
    field.addFieldGeometry(QenFieldGeometry(uuid(6), "", uuid(7), LLA{}));
    EXPECT_NE(text().find(line), std::string::npos);
}

TEST(TreeText, ShowsCodesWhereTextsAreMissing) {
    QenRec rec;
    rec.setSeasonId(0);
    rec.setRateUomId(9);
    rec.setTotalUomId(-2);
    rec.setAreaUomId(0);
    rec.setOperationId(uuid(12));
    EXPECT_EQ(recText(rec, {}), std::string("      Rec  ") + nilText +
                                    "\n"
                                    "        operation  00000000-0000-0000-0000-00000000000c\n"
                                    "        season     code 0\n"
                                    "        product    no product data\n"
                                    "        rate       min 0, avg 0, max 0 code 9\n"
                                    "        total      0 code -2\n"
                                    "        area       0\n");
}

TEST(TreeText, ShowsNumbersWithoutAUnit) {
    QenRec rec;
    rec.setAverageRate(-0.5);
    rec.setTotal(1e300);
    EXPECT_EQ(recText(rec, {}), std::string("      Rec  ") + nilText +
                                    "\n"
                                    "        product    no product data\n"
                                    "        rate       min 0, avg -0.5, max 0\n"
                                    "        total      1e+300\n"
                                    "        area       0\n");
}

TEST(TreeText, SaysWhatAPlantingPlants) {
    EXPECT_EQ(productText(std::make_unique<PlantingRec>(uuid(5), 1, "Corn", 2, "Prairie Seed", 3,
                                                        "PS 44", 4, "seeds")),
              "        product    planting: crop Corn, company Prairie Seed, variety PS 44, "
              "unit seeds\n");
    EXPECT_EQ(productText(std::make_unique<PlantingRec>(uuid(5), 1, "", 0, "", -1, "", 0, "")),
              "        product    planting: crop code 1\n");
    EXPECT_EQ(productText(std::make_unique<PlantingRec>(uuid(5), 0, "", 0, "", 0, "", 0, "")),
              "        product    planting\n");
}

TEST(TreeText, SaysWhichFertilizerItIs) {
    EXPECT_EQ(productText(std::make_unique<CommercialFertilizerRec>(uuid(5), 77, "", 2, "")),
              "        product    fertilizer: code 77, unit code 2\n");
}

TEST(TreeText, SaysWhatABlendIsMadeOf) {
    EXPECT_EQ(productText(std::make_unique<CustomFertilizerRec>(uuid(5), uuid(6), "Mix", 3, "gal",
                                                                4, 1.28, 28., .5, 1., 2., 3., 4.,
                                                                5., 6., 7., 8., 9., 10., 11.)),
              "        product    blend: Mix, unit gal  00000000-0000-0000-0000-000000000006\n"
              "                   specific gravity 1.28; N 28%, P 0.5%, K 1%, Ca 2%, Mg 3%, S 4%, "
              "Fe 5%, Mn 6%, Zn 7%, Cu 8%, B 9%, Mo 10%, Cl 11%\n");
}

TEST(TreeText, LeavesOutTheNutrientsThatABlendLacks) {
    auto some = blend(1);
    some->setPct_K(5.5);
    some->setPct_B(-1);
    EXPECT_EQ(productText(std::move(some)),
              "        product    blend: Mix, unit gal  00000000-0000-0000-0000-000000000006\n"
              "                   specific gravity 1; K 5.5%, B -1%\n");
    EXPECT_EQ(productText(blend(0, "")),
              "        product    blend: unit gal  00000000-0000-0000-0000-000000000006\n"
              "                   specific gravity 0; no nutrients\n");
}

TEST(TreeText, SaysWhichPesticideMixItIs) {
    EXPECT_EQ(productText(std::make_unique<PesticideRec>(uuid(5), std::vector<PesticideByPercent>(),
                                                         std::vector<PesticideByAmount>(), "Weeds",
                                                         2, "l")),
              "        product    pesticide mix: Weeds, unit l\n");
}

TEST(TreeText, EscapesEveryText) {
    const std::string bad = "a\nb";
    QenRec rec(uuid(3), uuid(4), bad, uuid(10), uuid(11), bad, bad, bad, uuid(12), bad, 14, {},
               new PlantingRec(uuid(10), 1, bad, 2, bad, 3, bad, 4, bad), 1, 2, 3, bad, 1, 4, 2,
               bad, 5, 3, bad, false, uuid(14));
    rec.setEditDate(bad);
    EXPECT_EQ(recText(rec),
              "      Rec a\\nb  00000000-0000-0000-0000-00000000000a\n"
              "        operation  a\\nb  00000000-0000-0000-0000-00000000000c\n"
              "        season     a\\nb\n"
              "        product    planting: crop a\\nb, company a\\nb, variety a\\nb, "
              "unit a\\nb\n"
              "        rate       min 1, avg 3, max 2 a\\nb\n"
              "        total      4 a\\nb\n"
              "        area       5 a\\nb\n"
              "        geometry   00000000-0000-0000-0000-00000000000b  column a\\nb\n"
              "        created    a\\nb\n"
              "        edited     a\\nb\n");
    EXPECT_EQ(productText(std::make_unique<CommercialFertilizerRec>(uuid(5), 1, bad, 2, bad)),
              "        product    fertilizer: a\\nb, unit a\\nb\n");
    EXPECT_EQ(
        productText(std::make_unique<PesticideRec>(uuid(5), std::vector<PesticideByPercent>(),
                                                   std::vector<PesticideByAmount>(), bad, 2, bad)),
        "        product    pesticide mix: a\\nb, unit a\\nb\n");
    EXPECT_EQ(productText(blend(1, bad)),
              "        product    blend: a\\nb, unit gal  00000000-0000-0000-0000-000000000006\n"
              "                   specific gravity 1; no nutrients\n");

    QenFarm farm(bad, uuid(2), uuid(1));
    LLA centroid{};
    farm.addField(QenField(bad, uuid(3), uuid(1), uuid(2), bad, uuid(4), uuid(5), centroid));
    QenGrower grower(bad, uuid(1));
    grower.addFarm(farm);
    EXPECT_EQ(treeText(grower, nothingGiven(), {}),
              "Grower a\\nb  00000000-0000-0000-0000-000000000001\n"
              "  Farm a\\nb  00000000-0000-0000-0000-000000000002\n"
              "    Field a\\nb  00000000-0000-0000-0000-000000000003\n"
              "      Boundary a\\nb  00000000-0000-0000-0000-000000000004\n"
              "        file       00000000-0000-0000-0000-000000000005\n");
}

TEST(TreeText, ColoursKindsNamesLabelsAndIdentifiers) {
    QenRec rec;
    rec.setName("Corn");
    QenField field("North", uuid(3), uuid(1), uuid(2));
    field.addFieldGeometry(QenFieldGeometry(uuid(4), "", uuid(5), LLA{}));
    field.addRec(rec);
    QenFarm farm("", uuid(2), uuid(1));
    farm.addField(field);
    QenGrower grower("", uuid(1));
    grower.addFarm(farm);
    const std::string dim = "\x1b[2m";
    const std::string end = "\x1b[0m";
    EXPECT_EQ(treeText(grower, nothingGiven(), TreeLayout{Style(true), 0, false}),
              "\x1b[36mGrower\x1b[0m  " + dim + "00000000-0000-0000-0000-000000000001" + end +
                  "\n" + "  \x1b[36mFarm\x1b[0m  " + dim + "00000000-0000-0000-0000-000000000002" +
                  end + "\n" + "    \x1b[36mField\x1b[0m \x1b[1mNorth\x1b[0m  " + dim +
                  "00000000-0000-0000-0000-000000000003" + end + "\n" +
                  "      \x1b[36mBoundary\x1b[0m  " + dim + "00000000-0000-0000-0000-000000000004" +
                  end + "\n" + "        " + dim + "file" + end + "       " + dim +
                  "00000000-0000-0000-0000-000000000005" + end + "\n" +
                  "      \x1b[36mRec\x1b[0m \x1b[1mCorn\x1b[0m  " + dim + nilText + end + "\n" +
                  "        " + dim + "product" + end + "    \x1b[33mno product data\x1b[0m\n");
}

} // namespace
