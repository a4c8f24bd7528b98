#include "tools/report/FarmPlaces.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::fieldOf;
using test::growerOf;

namespace {

FarmPlaces placesOf(std::vector<QenGrower> growers, const std::vector<GrowerGaps>& gaps = {}) {
    FarmPlaces places;
    forEachField(growers, gaps, [&](const FieldContext& context) { places.add(context); });
    return places;
}

TEST(FarmPlaces, MakeOneFarmOfThoseWithTheSameIdentifierAndGrower) {
    const FarmPlaces places = placesOf({growerOf(1, 2, {fieldOf(3, "North", {44.7, -95.0, 0.0})}),
                                        growerOf(9, 2, {fieldOf(3, "Other", {10.0, 10.0, 0.0})}),
                                        growerOf(1, 2, {fieldOf(4, "South", {44.6, -95.0, 0.0})})});
    ASSERT_EQ(places.farms().size(), 2U);
    EXPECT_EQ(places.farms()[0].grower, "Grower 1");
    EXPECT_EQ(places.farms()[0].name, "Farm 2");
    ASSERT_EQ(places.farms()[0].points.size(), 2U);
    EXPECT_EQ(places.farms()[0].points[1].name, "South");
    EXPECT_EQ(places.farms()[1].points[0].name, "Other");
}

TEST(FarmPlaces, HoldAFieldOfSeveralPackagesOnce) {
    const QenGrower grower = growerOf(1, 2, {fieldOf(3, "North", {44.7, -95.0, 0.0})});
    EXPECT_EQ(placesOf({grower, grower}).farms().at(0).points.size(), 1U);
}

TEST(FarmPlaces, CountFieldsWithoutAPlace) {
    const FarmPlaces places = placesOf({growerOf(1, 2, {fieldOf(3, "", {0.0, 0.0, 0.0})}),
                                        growerOf(1, 4, {fieldOf(5, "", {91.0, 0.0, 0.0})})});
    EXPECT_EQ(places.farms().size(), 0U);
    EXPECT_EQ(places.moreFarms(), 0U);
    EXPECT_EQ(places.withoutPlace(), 2U);
}

TEST(FarmPlaces, CountTheFarmsBeyondTheFirstOnes) {
    std::vector<QenGrower> growers;
    for (unsigned i = 0; i < 2 * FarmPlaces::mostFarms; ++i)
        growers.push_back(growerOf(1, 100 + i, {fieldOf(3, "", {44.7, -95.0, 0.0})}));
    growers.insert(growers.end(), growers.begin(), growers.end());
    const FarmPlaces places = placesOf(growers);
    EXPECT_EQ(places.farms().size(), FarmPlaces::mostFarms);
    EXPECT_EQ(places.farms().back().points.size(), 1U);
    EXPECT_EQ(places.moreFarms(), FarmPlaces::mostFarms);
}

} // namespace
