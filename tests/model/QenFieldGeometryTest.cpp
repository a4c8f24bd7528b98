#include "model/QenFieldGeometry.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::hasType;

static_assert(std::is_aggregate_v<LLA>);
static_assert(std::is_trivially_copyable_v<LLA> && std::is_standard_layout_v<LLA>);
static_assert(std::is_same_v<decltype(LLA::latitude), double>);
static_assert(std::is_same_v<decltype(LLA::longitude), double>);
static_assert(std::is_same_v<decltype(LLA::altitude), double>);

static_assert(!std::is_polymorphic_v<QenFieldGeometry>);
static_assert(!std::is_default_constructible_v<QenFieldGeometry>);
static_assert(
    std::is_constructible_v<QenFieldGeometry, const uuid&, const string&, const uuid&, const LLA&>);
static_assert(hasType<test::Getter<QenFieldGeometry, LLA>>(&QenFieldGeometry::centroid));
static_assert(hasType<test::Comparison<QenFieldGeometry>>(&QenFieldGeometry::operator==));
static_assert(!test::hasNotEqual<QenFieldGeometry>);

} // namespace

TEST(LLA, HoldsLatitudeLongitudeAndAltitudeInThisOrder) {
    const LLA point{1.5, 2.5, 3.5};
    EXPECT_EQ(point.latitude, 1.5);
    EXPECT_EQ(point.longitude, 2.5);
    EXPECT_EQ(point.altitude, 3.5);
}

TEST(LLA, IsAllZerosWhenValueInitialised) {
    const LLA point{};
    EXPECT_EQ(point.latitude, 0.0);
    EXPECT_EQ(point.longitude, 0.0);
    EXPECT_EQ(point.altitude, 0.0);
}

TEST(QenFieldGeometry, ReturnsEveryValueThatItWasBuiltWith) {
    QenFieldGeometry geometry(test::uuid(1), "date", test::uuid(2), LLA{1.5, 2.5, 3.5});
    EXPECT_EQ(test::valueOf<uuid>(geometry, &QenFieldGeometry::geometryId), test::uuid(1));
    EXPECT_EQ(test::valueOf<string>(geometry, &QenFieldGeometry::geometryDate), "date");
    EXPECT_EQ(test::valueOf<uuid>(geometry, &QenFieldGeometry::geometry), test::uuid(2));
    EXPECT_EQ(geometry.centroid().latitude, 1.5);
    EXPECT_EQ(geometry.centroid().longitude, 2.5);
    EXPECT_EQ(geometry.centroid().altitude, 3.5);
}

TEST(QenFieldGeometry, KeepsADateThatIsNone) {
    EXPECT_EQ(QenFieldGeometry(uuid{}, " 31/02 \n", uuid{}, LLA{}).geometryDate(), " 31/02 \n");
}

TEST(QenFieldGeometry, KeepsACentroidThatIsOffTheEarth) {
    QenFieldGeometry geometry(uuid{}, "", uuid{}, LLA{-1000.0, 1e300, -1.0});
    EXPECT_EQ(geometry.centroid().latitude, -1000.0);
    EXPECT_EQ(geometry.centroid().longitude, 1e300);
    EXPECT_EQ(geometry.centroid().altitude, -1.0);
}

TEST(QenFieldGeometry, EqualityComparesTheGeometryIdAlone) {
    const QenFieldGeometry geometry(test::uuid(1), "date", test::uuid(2), LLA{1, 2, 3});
    EXPECT_TRUE(geometry ==
                QenFieldGeometry(test::uuid(1), "other date", test::uuid(3), LLA{4, 5, 6}));
    EXPECT_FALSE(geometry == QenFieldGeometry(test::uuid(4), "date", test::uuid(2), LLA{1, 2, 3}));
}

TEST(QenFieldGeometry, AConstGeometryIsReadByWayOfACopy) {
    const QenFieldGeometry geometry(test::uuid(1), "date", test::uuid(2), LLA{1, 2, 3});
    EXPECT_EQ(QenFieldGeometry(geometry).geometryDate(), "date");
}
