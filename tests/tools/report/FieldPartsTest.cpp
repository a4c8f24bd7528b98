#include "tools/report/FieldParts.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tools/report/MapProjection.h"

namespace {

using Names = std::vector<std::vector<std::string>>;

Names namesOf(const std::vector<std::vector<MapPoint>>& parts) {
    Names names;
    for (const std::vector<MapPoint>& part : parts) {
        names.emplace_back();
        for (const MapPoint& point : part)
            names.back().push_back(point.name);
        std::sort(names.back().begin(), names.back().end());
    }
    return names;
}

TEST(FieldParts, AreOneForFieldsThatLieKilometresApart) {
    EXPECT_EQ(namesOf(fieldParts({{"a", {44.70, -95.00, 0.0}},
                                  {"b", {44.85, -95.10, 0.0}},
                                  {"c", {44.62, -94.90, 0.0}}})),
              (Names{{"a", "b", "c"}}));
}

TEST(FieldParts, BeginWithTheLargest) {
    EXPECT_EQ(namesOf(fieldParts({{"sign lost", {44.70, 95.00, 0.0}},
                                  {"a", {44.70, -95.00, 0.0}},
                                  {"b", {44.71, -95.01, 0.0}},
                                  {"swapped", {-85.0, 44.70, 0.0}}})),
              (Names{{"a", "b"}, {"swapped"}, {"sign lost"}}));
}

TEST(FieldParts, GoOnAcrossTheDateLine) {
    EXPECT_EQ(
        namesOf(fieldParts(
            {{"a", {-17.0, 179.95, 0.0}}, {"b", {-17.0, -179.95, 0.0}}, {"c", {-17.0, 0.0, 0.0}}})),
        (Names{{"a", "b"}, {"c"}}));
}

// What is near in one direction may hide a gap in the other.
TEST(FieldParts, AreCutOnceMoreWhereACutShowsAnotherGap) {
    EXPECT_EQ(
        namesOf(fieldParts({{"south-west", {10.0, 10.0, 0.0}},
                            {"north-west", {11.0, 10.0, 0.0}},
                            {"middle", {10.5, 20.0, 0.0}},
                            {"south of it", {10.25, 20.0, 0.0}},
                            {"north of it", {10.75, 20.0, 0.0}}})),
        (Names{{"south-west"}, {"south of it"}, {"middle"}, {"north of it"}, {"north-west"}}));
}

double kilometresBetween(const LLA& a, const LLA& b) {
    const double north = (b.latitude - a.latitude) * radiansPerDegree;
    const double east = (b.longitude - a.longitude) * radiansPerDegree;
    const double half =
        std::pow(std::sin(north / 2.0), 2.0) + std::cos(a.latitude * radiansPerDegree) *
                                                   std::cos(b.latitude * radiansPerDegree) *
                                                   std::pow(std::sin(east / 2.0), 2.0);
    return 2.0 * std::asin(std::sqrt(half)) / radiansPerDegree * kilometresPerDegree;
}

TEST(FieldParts, KeepAllFieldsAndThoseTogetherThatAreNear) {
    std::mt19937 random(2026);
    for (int round = 0; round < 100; ++round) {
        const double south = std::uniform_real_distribution<>(-70.0, 70.0)(random);
        std::uniform_real_distribution<> offset(0.0, 2.0);
        std::vector<MapPoint> points;
        for (int i = 0; i < 40; ++i)
            points.push_back({std::to_string(i),
                              {south + offset(random),
                               std::remainder(179.0 + offset(random), degreesAround), 0.0}});
        std::map<std::string, std::size_t> partOf;
        const std::vector<std::vector<MapPoint>> parts = fieldParts(points);
        for (std::size_t i = 0; i < parts.size(); ++i)
            for (const MapPoint& point : parts[i])
                EXPECT_TRUE(partOf.emplace(point.name, i).second) << point.name;
        ASSERT_EQ(partOf.size(), points.size());
        for (const MapPoint& a : points)
            for (const MapPoint& b : points)
                EXPECT_TRUE(kilometresBetween(a.centroid, b.centroid) > 0.999 * partingKilometres ||
                            partOf[a.name] == partOf[b.name]);
    }
}

} // namespace
