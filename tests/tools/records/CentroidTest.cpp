#include "tools/records/Centroid.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

TEST(Centroid, IsAPlaceWhenItIsOnEarthAndNotZero) {
    EXPECT_TRUE(isPlace({90.0, -180.0, 0.0}));
    EXPECT_TRUE(isPlace({0.0, 12.5, 0.0}));
    EXPECT_TRUE(isPlace({-12.5, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({0.0, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({-0.0, 0.0, 7.0}));
    EXPECT_FALSE(isPlace({90.001, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({0.0, -180.001, 0.0}));
    EXPECT_FALSE(isPlace({nan, 1.0, 0.0}));
    EXPECT_FALSE(isPlace({1.0, infinity, 0.0}));
}

} // namespace
