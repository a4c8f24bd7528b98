#include "tools/report/MapProjection.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(MapProjection, WritesDegreesWithTheirDirection) {
    EXPECT_EQ(latitudeText(44.7031, 2), "44.70\u00B0 N");
    EXPECT_EQ(latitudeText(-12.6, 0), "13\u00B0 S");
    EXPECT_EQ(longitudeText(12.5, 1), "12.5\u00B0 E");
    EXPECT_EQ(longitudeText(-95.02, 2), "95.02\u00B0 W");
}

TEST(MapProjection, WritesZeroAndHalfTheEarthWithoutADirection) {
    EXPECT_EQ(latitudeText(0.0, 2), "0\u00B0");
    EXPECT_EQ(latitudeText(-0.004, 2), "0\u00B0");
    EXPECT_EQ(latitudeText(-0.006, 2), "0.01\u00B0 S");
    EXPECT_EQ(longitudeText(-0.0, 0), "0\u00B0");
    EXPECT_EQ(longitudeText(360.0, 1), "0\u00B0");
    EXPECT_EQ(longitudeText(180.0, 1), "180\u00B0");
    EXPECT_EQ(longitudeText(-180.0, 1), "180\u00B0");
    EXPECT_EQ(longitudeText(-179.9, 1), "179.9\u00B0 W");
}

TEST(MapProjection, CountsLongitudesOnBeyondTheDateLine) {
    EXPECT_EQ(longitudeText(181.0, 0), "179\u00B0 W");
    EXPECT_EQ(longitudeText(-200.0, 0), "160\u00B0 E");
}

TEST(MapProjection, ShowsNothingBeyondThePoles) {
    const MapProjection projection({{"pole", {90.0, 0.0, 0.0}}});
    EXPECT_EQ(projection.shownLatitudes().to, 90.0);
    EXPECT_GT(projection.latitudes().to, 90.0);
    EXPECT_EQ(latitudeText(projection.latitudes().to, 3), "90.000\u00B0 N");
    const MapProjection south({{"pole", {-90.0, 0.0, 0.0}}});
    EXPECT_EQ(south.shownLatitudes().from, -90.0);
}

TEST(MapProjection, KeepsDistancesTrueInTheMiddle) {
    const MapProjection projection({{"a", {59.0, 10.0, 0.0}}, {"b", {61.0, 12.0, 0.0}}});
    EXPECT_NEAR(projection.perDegreeOfLongitude() / projection.perDegreeOfLatitude(), 0.5, 1e-9);
    EXPECT_NEAR(projection.x(11.0), 300.0, 1e-9);
    EXPECT_NEAR(projection.y(60.0), projection.height() / 2.0, 1e-9);
    EXPECT_NEAR(projection.y(61.0) - projection.y(60.0), -projection.perDegreeOfLatitude(), 1e-9);
}

} // namespace
