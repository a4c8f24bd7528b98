/// @file
/// The sizes of the public classes and the order of their members: hosts are compiled with them, so
/// that a change makes them read one thing for another. Each class is compared with a structure
/// that has the same members in the same order.

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "parser/QenXmlParser.h"
#include "parser/internal/TagConstants.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using std::vector;

/// What @p object holds where @p Layout has the member.
template <class Object, class Layout, class Member>
const Member& at(const Object& object, Member Layout::*member) {
    static_assert(sizeof(Object) == sizeof(Layout));
    static const Layout layout{};
    const auto* begin = reinterpret_cast<const char*>(&layout);
    const auto offset = reinterpret_cast<const char*>(&(layout.*member)) - begin;
    return *reinterpret_cast<const Member*>(reinterpret_cast<const char*>(&object) + offset);
}

// Everything below, and with it every host, counts on that.
static_assert(sizeof(uuid) == 16 && alignof(uuid) == 1);

struct GrowerLayout {
    string name;
    uuid id;
    vector<QenFarm> farms;
};

struct FarmLayout {
    string name;
    uuid id;
    uuid growerId;
    vector<QenField> fields;
};

/// The identifiers come before the name here.
struct FieldLayout {
    uuid id;
    uuid growerId;
    uuid farmId;
    string name;
    vector<QenFieldGeometry> geometries;
    vector<QenRec> recs;
};

struct GeometryLayout {
    uuid geometryId;
    string geometryDate;
    uuid geometry;
    LLA centroid;
};

/// The product data stands between what a rec says of itself and its statistics.
struct RecLayout {
    uuid fieldId;
    uuid fieldGeometryId;
    string name;
    uuid id;
    uuid recGeometry;
    string creationDate;
    string editDate;
    string recDbfCol;
    string operationName;
    uuid operationId;
    string seasonName;
    int seasonId;
    uuid mgmtZoneId;
    QenRecData* recData;
    double minimumRate;
    double maximumRate;
    double averageRate;
    int rateUomId;
    string rateUom;
    double total;
    int totalUomId;
    string totalUom;
    double area;
    int areaUomId;
    string areaUom;
    bool isUsed;
    uuid xmlFileName;
};

struct RecDataLayout {
    const void* virtualOperations;
    uuid recId;
    RecType recType;
};

struct PlantingLayout {
    const void* virtualOperations;
    uuid recId;
    RecType recType;
    int cropId;
    string cropName;
    int companyId;
    string companyName;
    int varietyId;
    string varietyName;
    int uomId;
    string uom;
};

struct CommercialFertilizerLayout {
    const void* virtualOperations;
    uuid recId;
    RecType recType;
    int productId;
    string productName;
    int uomId;
    string uom;
};

struct CustomFertilizerLayout {
    const void* virtualOperations;
    uuid recId;
    RecType recType;
    uuid productId;
    string productName;
    int uomId;
    string uom;
    int sFertT_ID;
    double spGravity;
    double percentages[13]; // N, P, K, Ca, Mg, S, Fe, Mn, Zn, Cu, B, Mo, Cl
};

struct PesticideLayout {
    const void* virtualOperations;
    uuid recId;
    RecType recType;
    vector<PesticideByPercent> pesticidesByPercent;
    vector<PesticideByAmount> pesticidesByAmount;
    string pesticideMixName;
    int uomId;
    string uom;
};

struct PestProductLayout {
    int productId;
    string productName;
    int regCodeId;
    string regCode;
    PesticideType pesticideType;
    double amount;
};

struct PesticideByAmountLayout {
    int productId;
    string productName;
    int regCodeId;
    string regCode;
    PesticideType pesticideType;
    double amount;
    int uomId;
    string uom;
};

struct ParserLayout {
    vector<QenGrower> growers;
    pugi::xml_document document;
    string tagNames[88];
    uuid xmlFileName;
};

TEST(Layout, AGrowerHoldsNameIdAndFarms) {
    QenGrower grower("Grower", test::uuid(1));
    EXPECT_EQ(at(grower, &GrowerLayout::name), "Grower");
    EXPECT_EQ(at(grower, &GrowerLayout::id), test::uuid(1));
    EXPECT_EQ(&at(grower, &GrowerLayout::farms), &grower.farms());
}

TEST(Layout, AFarmHoldsNameIdGrowerIdAndFields) {
    QenFarm farm("Farm", test::uuid(1), test::uuid(2));
    EXPECT_EQ(at(farm, &FarmLayout::name), "Farm");
    EXPECT_EQ(at(farm, &FarmLayout::id), test::uuid(1));
    EXPECT_EQ(at(farm, &FarmLayout::growerId), test::uuid(2));
    EXPECT_EQ(&at(farm, &FarmLayout::fields), &farm.fields());
}

TEST(Layout, AFieldHoldsItsIdentifiersBeforeItsName) {
    LLA centroid{};
    QenField field("Field", test::uuid(1), test::uuid(2), test::uuid(3), "", test::uuid(4),
                   test::uuid(5), centroid);
    EXPECT_EQ(at(field, &FieldLayout::id), test::uuid(1));
    EXPECT_EQ(at(field, &FieldLayout::growerId), test::uuid(2));
    EXPECT_EQ(at(field, &FieldLayout::farmId), test::uuid(3));
    EXPECT_EQ(at(field, &FieldLayout::name), "Field");
    EXPECT_EQ(at(field, &FieldLayout::geometries), field.geometries());
    EXPECT_EQ(&at(field, &FieldLayout::recs), &field.recs());
}

TEST(Layout, ACentroidHoldsLatitudeLongitudeAndAltitude) {
    EXPECT_EQ(sizeof(LLA), 3 * sizeof(double));
    EXPECT_EQ(offsetof(LLA, latitude), 0U);
    EXPECT_EQ(offsetof(LLA, longitude), sizeof(double));
    EXPECT_EQ(offsetof(LLA, altitude), 2 * sizeof(double));
}

TEST(Layout, AGeometryHoldsItsDateBetweenItsIdentifiers) {
    const QenFieldGeometry geometry(test::uuid(1), "Date", test::uuid(2), LLA{1.5, 2.5, 3.5});
    EXPECT_EQ(at(geometry, &GeometryLayout::geometryId), test::uuid(1));
    EXPECT_EQ(at(geometry, &GeometryLayout::geometryDate), "Date");
    EXPECT_EQ(at(geometry, &GeometryLayout::geometry), test::uuid(2));
    EXPECT_EQ(at(geometry, &GeometryLayout::centroid).latitude, 1.5);
    EXPECT_EQ(at(geometry, &GeometryLayout::centroid).altitude, 3.5);
}

TEST(Layout, ARecHoldsItsProductDataBeforeItsStatistics) {
    auto* data = new QenRecData;
    QenRec rec(test::uuid(1), test::uuid(2), "Name", test::uuid(3), test::uuid(4), "Created",
               "Column", "Operation", test::uuid(5), "Season", 6, test::uuid(7), data, 1.5, 2.5,
               3.5, "Rate", 8, 4.5, 9, "Total", 5.5, 10, "Area", true, test::uuid(11));
    rec.setEditDate("Edited");
    EXPECT_EQ(at(rec, &RecLayout::fieldId), test::uuid(1));
    EXPECT_EQ(at(rec, &RecLayout::fieldGeometryId), test::uuid(2));
    EXPECT_EQ(at(rec, &RecLayout::name), "Name");
    EXPECT_EQ(at(rec, &RecLayout::id), test::uuid(3));
    EXPECT_EQ(at(rec, &RecLayout::recGeometry), test::uuid(4));
    EXPECT_EQ(at(rec, &RecLayout::creationDate), "Created");
    EXPECT_EQ(at(rec, &RecLayout::editDate), "Edited");
    EXPECT_EQ(at(rec, &RecLayout::recDbfCol), "Column");
    EXPECT_EQ(at(rec, &RecLayout::operationName), "Operation");
    EXPECT_EQ(at(rec, &RecLayout::operationId), test::uuid(5));
    EXPECT_EQ(at(rec, &RecLayout::seasonName), "Season");
    EXPECT_EQ(at(rec, &RecLayout::seasonId), 6);
    EXPECT_EQ(at(rec, &RecLayout::mgmtZoneId), test::uuid(7));
    EXPECT_EQ(at(rec, &RecLayout::recData), data);
    EXPECT_EQ(at(rec, &RecLayout::minimumRate), 1.5);
    EXPECT_EQ(at(rec, &RecLayout::maximumRate), 2.5);
    EXPECT_EQ(at(rec, &RecLayout::averageRate), 3.5);
    EXPECT_EQ(at(rec, &RecLayout::rateUomId), 8);
    EXPECT_EQ(at(rec, &RecLayout::rateUom), "Rate");
    EXPECT_EQ(at(rec, &RecLayout::total), 4.5);
    EXPECT_EQ(at(rec, &RecLayout::totalUomId), 9);
    EXPECT_EQ(at(rec, &RecLayout::totalUom), "Total");
    EXPECT_EQ(at(rec, &RecLayout::area), 5.5);
    EXPECT_EQ(at(rec, &RecLayout::areaUomId), 10);
    EXPECT_EQ(at(rec, &RecLayout::areaUom), "Area");
    EXPECT_EQ(at(rec, &RecLayout::isUsed), true);
    EXPECT_EQ(at(rec, &RecLayout::xmlFileName), test::uuid(11));
}

TEST(Layout, ProductDataHoldsTheRecAndTheKind) {
    const QenRecData data(test::uuid(1), RecTypePlanting);
    EXPECT_EQ(at(data, &RecDataLayout::recId), test::uuid(1));
    EXPECT_EQ(at(data, &RecDataLayout::recType), RecTypePlanting);
}

TEST(Layout, APlantingHoldsCodesBeforeNames) {
    const PlantingRec planting(test::uuid(1), 2, "Crop", 3, "Company", 4, "Variety", 5, "Unit");
    EXPECT_EQ(at(planting, &PlantingLayout::recType), RecTypePlanting);
    EXPECT_EQ(at(planting, &PlantingLayout::cropId), 2);
    EXPECT_EQ(at(planting, &PlantingLayout::cropName), "Crop");
    EXPECT_EQ(at(planting, &PlantingLayout::companyId), 3);
    EXPECT_EQ(at(planting, &PlantingLayout::companyName), "Company");
    EXPECT_EQ(at(planting, &PlantingLayout::varietyId), 4);
    EXPECT_EQ(at(planting, &PlantingLayout::varietyName), "Variety");
    EXPECT_EQ(at(planting, &PlantingLayout::uomId), 5);
    EXPECT_EQ(at(planting, &PlantingLayout::uom), "Unit");
}

TEST(Layout, ACommercialFertilizerHoldsProductAndUnit) {
    const CommercialFertilizerRec fertilizer(test::uuid(1), 2, "Product", 3, "Unit");
    EXPECT_EQ(at(fertilizer, &CommercialFertilizerLayout::recType), RecTypeCommercialFertilizer);
    EXPECT_EQ(at(fertilizer, &CommercialFertilizerLayout::productId), 2);
    EXPECT_EQ(at(fertilizer, &CommercialFertilizerLayout::productName), "Product");
    EXPECT_EQ(at(fertilizer, &CommercialFertilizerLayout::uomId), 3);
    EXPECT_EQ(at(fertilizer, &CommercialFertilizerLayout::uom), "Unit");
}

TEST(Layout, ACustomFertilizerHoldsItsNutrientsInTheOrderOfTheFormat) {
    const CustomFertilizerRec blend(test::uuid(1), test::uuid(2), "Product", 3, "Unit", 4, 0.5, 1.5,
                                    2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5, 11.5, 12.5, 13.5);
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::recType), RecTypeCustomFertilizer);
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::productId), test::uuid(2));
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::productName), "Product");
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::uomId), 3);
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::uom), "Unit");
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::sFertT_ID), 4);
    EXPECT_EQ(at(blend, &CustomFertilizerLayout::spGravity), 0.5);
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(at(blend, &CustomFertilizerLayout::percentages)[i], i + 1.5);
}

TEST(Layout, APesticideMixHoldsItsLinesBeforeItsName) {
    const PesticideByPercent byPercent(1, "Product", 2, "Code", Herbicide, 3.5);
    const PesticideByAmount byAmount(4, "Product", 5, "Code", Carrier, 6.5, 7, "Unit");
    const PesticideRec mix(test::uuid(1), {byPercent}, {byAmount, byAmount}, "Mix", 8, "Unit");
    EXPECT_EQ(at(mix, &PesticideLayout::recType), RecTypePesticide);
    EXPECT_EQ(at(mix, &PesticideLayout::pesticidesByPercent).size(), 1U);
    EXPECT_EQ(at(mix, &PesticideLayout::pesticidesByAmount).size(), 2U);
    EXPECT_EQ(at(mix, &PesticideLayout::pesticideMixName), "Mix");
    EXPECT_EQ(at(mix, &PesticideLayout::uomId), 8);
    EXPECT_EQ(at(mix, &PesticideLayout::uom), "Unit");
}

TEST(Layout, APesticideLineHoldsItsUnitBehindTheProduct) {
    const PesticideByAmount line(1, "Product", 2, "Code", Fungicide, 3.5, 4, "Unit");
    EXPECT_EQ(at(line, &PesticideByAmountLayout::productId), 1);
    EXPECT_EQ(at(line, &PesticideByAmountLayout::productName), "Product");
    EXPECT_EQ(at(line, &PesticideByAmountLayout::regCodeId), 2);
    EXPECT_EQ(at(line, &PesticideByAmountLayout::regCode), "Code");
    EXPECT_EQ(at(line, &PesticideByAmountLayout::pesticideType), Fungicide);
    EXPECT_EQ(at(line, &PesticideByAmountLayout::amount), 3.5);
    EXPECT_EQ(at(line, &PesticideByAmountLayout::uomId), 4);
    EXPECT_EQ(at(line, &PesticideByAmountLayout::uom), "Unit");
    EXPECT_EQ(sizeof(PestProduct), sizeof(PestProductLayout));
    EXPECT_EQ(sizeof(PesticideByPercent), sizeof(PestProduct));
}

TEST(Layout, AParserHoldsGrowersDocumentTagNamesAndFileName) {
    QenXmlParser parser;
    const string package = "32833106-536e-45df-80b2-d002cc92d33d";
    ASSERT_TRUE(parser.parseFile(QENXML_SOURCE_DIR "/examples/packages/" + package + ".xml"));
    EXPECT_EQ(at(parser, &ParserLayout::growers), parser.getGrowers());
    EXPECT_TRUE(at(parser, &ParserLayout::document).child("RecPackage"));
    for (std::size_t i = 0; i < qenxml::tag::all.size(); ++i)
        EXPECT_EQ(at(parser, &ParserLayout::tagNames)[i], qenxml::tag::all[i]);
    EXPECT_EQ(at(parser, &ParserLayout::xmlFileName), test::uuid(package));
}

// The structures above would not notice a member that changes its own size.
#if defined(__x86_64__) && defined(__LP64__) && defined(_GLIBCXX_USE_CXX11_ABI) &&                 \
    _GLIBCXX_USE_CXX11_ABI
TEST(Layout, TheSizesAreThoseOfTheFirstRelease) {
    EXPECT_EQ(sizeof(LLA), 24U);
    EXPECT_EQ(sizeof(QenGrower), 72U);
    EXPECT_EQ(sizeof(QenFarm), 88U);
    EXPECT_EQ(sizeof(QenField), 128U);
    EXPECT_EQ(sizeof(QenFieldGeometry), 88U);
    EXPECT_EQ(sizeof(QenRec), 488U);
    EXPECT_EQ(sizeof(QenRecData), 32U);
    EXPECT_EQ(sizeof(PlantingRec), 184U);
    EXPECT_EQ(sizeof(CommercialFertilizerRec), 104U);
    EXPECT_EQ(sizeof(CustomFertilizerRec), 240U);
    EXPECT_EQ(sizeof(PesticideRec), 152U);
    EXPECT_EQ(sizeof(PestProduct), 96U);
    EXPECT_EQ(sizeof(PesticideByPercent), 96U);
    EXPECT_EQ(sizeof(PesticideByAmount), 136U);
    EXPECT_EQ(sizeof(QenXmlParser), 3064U);
}
#endif

} // namespace
