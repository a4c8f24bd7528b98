/// @file
/// The sizes of the public classes and the order of their members: hosts are compiled with them, so
/// that a change makes them read one thing for another. Each class is compared with a list of what
/// its members hold, in their order.

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "parser/QenXmlParser.h"
#include "parser/internal/TagConstants.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using std::vector;
using namespace std::string_literals;

// Everything below, and with it every host, counts on that.
static_assert(sizeof(uuid) == 16 && alignof(uuid) == 1);

constexpr std::size_t aligned(std::size_t offset, std::size_t alignment) {
    return (offset + alignment - 1) / alignment * alignment;
}

/// Goes over the members of an object as a compiler lays them out: one behind the other, each where
/// its alignment allows it.
template <class Object>
class Members {
public:
    explicit Members(const Object& object) : object_(reinterpret_cast<const char*>(&object)) {
        if (std::is_polymorphic_v<Object>)
            next<const void*>();
    }

    ~Members() { EXPECT_EQ(aligned(offset_, alignof(Object)), sizeof(Object)); }

    Members(const Members&) = delete;
    Members& operator=(const Members&) = delete;

    template <class Member>
    const Member& next() {
        offset_ = aligned(offset_, alignof(Member));
        const auto& member = *reinterpret_cast<const Member*>(object_ + offset_);
        offset_ += sizeof(Member);
        return member;
    }

private:
    const char* object_;
    std::size_t offset_ = 0;
};

template <class Object, class... Values>
constexpr std::size_t sizeOfMembers() {
    std::size_t size = std::is_polymorphic_v<Object> ? sizeof(void*) : 0;
    ((size = aligned(size, alignof(Values)) + sizeof(Values)), ...);
    return aligned(size, alignof(Object));
}

/// That an object holds these values, in this order, and no others.
template <class Object, class... Values>
void expectMembers(const Object& object, const Values&... values) {
    static_assert(sizeOfMembers<Object, Values...>() == sizeof(Object));
    Members<Object> members(object);
    std::size_t number = 0;
    (([&] {
         ++number;
         EXPECT_EQ(members.template next<Values>(), values) << "member " << number;
     }()),
     ...);
}

TEST(Layout, AGrowerHoldsNameIdAndFarms) {
    QenGrower grower("Grower", test::uuid(1));
    grower.farms().resize(1);
    expectMembers(grower, "Grower"s, test::uuid(1), grower.farms());
}

TEST(Layout, AFarmHoldsNameIdGrowerIdAndFields) {
    QenFarm farm("Farm", test::uuid(1), test::uuid(2));
    farm.fields().resize(1);
    expectMembers(farm, "Farm"s, test::uuid(1), test::uuid(2), farm.fields());
}

TEST(Layout, AFieldHoldsItsIdentifiersBeforeItsName) {
    LLA centroid{};
    QenField field("Field", test::uuid(1), test::uuid(2), test::uuid(3), "", test::uuid(4),
                   test::uuid(5), centroid);
    field.recs().emplace_back();
    expectMembers(field, test::uuid(1), test::uuid(2), test::uuid(3), "Field"s, field.geometries(),
                  field.recs());
}

TEST(Layout, ACentroidHoldsLatitudeLongitudeAndAltitude) {
    const LLA centroid{1.5, 2.5, 3.5};
    EXPECT_EQ(centroid.latitude, 1.5);
    EXPECT_EQ(centroid.longitude, 2.5);
    EXPECT_EQ(centroid.altitude, 3.5);
    expectMembers(centroid, 1.5, 2.5, 3.5);
}

TEST(Layout, AGeometryHoldsItsDateBetweenItsIdentifiers) {
    const QenFieldGeometry geometry(test::uuid(1), "Date", test::uuid(2), LLA{1.5, 2.5, 3.5});
    expectMembers(geometry, test::uuid(1), "Date"s, test::uuid(2), 1.5, 2.5, 3.5);
}

TEST(Layout, ARecHoldsItsProductDataBeforeItsStatistics) {
    auto* data = new QenRecData;
    QenRec rec(test::uuid(1), test::uuid(2), "Name", test::uuid(3), test::uuid(4), "Created",
               "Column", "Operation", test::uuid(5), "Season", 6, test::uuid(7), data, 1.5, 2.5,
               3.5, "Rate", 8, 4.5, 9, "Total", 5.5, 10, "Area", true, test::uuid(11));
    rec.setEditDate("Edited");
    expectMembers(rec, test::uuid(1), test::uuid(2), "Name"s, test::uuid(3), test::uuid(4),
                  "Created"s, "Edited"s, "Column"s, "Operation"s, test::uuid(5), "Season"s, 6,
                  test::uuid(7), data, 1.5, 2.5, 3.5, 8, "Rate"s, 4.5, 9, "Total"s, 5.5, 10,
                  "Area"s, true, test::uuid(11));
}

TEST(Layout, ProductDataHoldsTheRecAndTheKind) {
    const QenRecData data(test::uuid(1), RecTypePlanting);
    expectMembers(data, test::uuid(1), RecTypePlanting);
}

TEST(Layout, APlantingHoldsCodesBeforeNames) {
    const PlantingRec planting(test::uuid(1), 2, "Crop", 3, "Company", 4, "Variety", 5, "Unit");
    expectMembers(planting, test::uuid(1), RecTypePlanting, 2, "Crop"s, 3, "Company"s, 4,
                  "Variety"s, 5, "Unit"s);
}

TEST(Layout, ACommercialFertilizerHoldsProductAndUnit) {
    const CommercialFertilizerRec fertilizer(test::uuid(1), 2, "Product", 3, "Unit");
    expectMembers(fertilizer, test::uuid(1), RecTypeCommercialFertilizer, 2, "Product"s, 3,
                  "Unit"s);
}

TEST(Layout, ACustomFertilizerHoldsItsNutrientsInTheOrderOfTheFormat) {
    const CustomFertilizerRec blend(test::uuid(1), test::uuid(2), "Product", 3, "Unit", 4, 0.5, 1.5,
                                    2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5, 11.5, 12.5, 13.5);
    expectMembers(blend, test::uuid(1), RecTypeCustomFertilizer, test::uuid(2), "Product"s, 3,
                  "Unit"s, 4, 0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5, 11.5, 12.5,
                  13.5);
}

TEST(Layout, APesticideMixHoldsItsLinesBeforeItsName) {
    const vector<PesticideByPercent> byPercent{{1, "Product", 2, "Code", Herbicide, 3.5}};
    const vector<PesticideByAmount> byAmount(2, {4, "Product", 5, "Code", Carrier, 6.5, 7, "Unit"});
    const PesticideRec mix(test::uuid(1), byPercent, byAmount, "Mix", 8, "Unit");
    Members<PesticideRec> members(mix);
    EXPECT_EQ(members.next<uuid>(), test::uuid(1));
    EXPECT_EQ(members.next<RecType>(), RecTypePesticide);
    EXPECT_EQ(members.next<vector<PesticideByPercent>>().size(), 1U);
    EXPECT_EQ(members.next<vector<PesticideByAmount>>().size(), 2U);
    EXPECT_EQ(members.next<string>(), "Mix");
    EXPECT_EQ(members.next<int>(), 8);
    EXPECT_EQ(members.next<string>(), "Unit");
}

TEST(Layout, APesticideLineHoldsItsUnitBehindTheProduct) {
    const PesticideByAmount line(1, "Product", 2, "Code", Fungicide, 3.5, 4, "Unit");
    expectMembers(line, 1, "Product"s, 2, "Code"s, Fungicide, 3.5, 4, "Unit"s);
    const PesticideByPercent byPercent(1, "Product", 2, "Code", Herbicide, 3.5);
    expectMembers(byPercent, 1, "Product"s, 2, "Code"s, Herbicide, 3.5);
}

TEST(Layout, AParserHoldsGrowersDocumentTagNamesAndFileName) {
    QenXmlParser parser;
    const string package = "32833106-536e-45df-80b2-d002cc92d33d";
    ASSERT_TRUE(parser.parseFile(test::inSources("examples/packages/") + package + ".xml"));
    Members<QenXmlParser> members(parser);
    EXPECT_EQ(members.next<vector<QenGrower>>(), parser.getGrowers());
    EXPECT_TRUE(members.next<pugi::xml_document>().child("RecPackage"));
    for (const char* name : qenxml::tag::all)
        EXPECT_EQ(members.next<string>(), name);
    EXPECT_EQ(members.next<uuid>(), test::uuid(package));
}

// The lists above would not notice a member that changes its own size.
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
