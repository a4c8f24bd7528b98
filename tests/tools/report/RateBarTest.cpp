#include "tools/report/RateBar.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::contains;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

RateScale scaleOf(const std::vector<Rates>& rates) {
    RateScale scale;
    for (const Rates& each : rates)
        scale.include(each);
    return scale;
}

TEST(RateBar, IsDrawnFromTheMinimumToTheMaximumWithTheAverage) {
    const Rates rates{50.0, 75.0, 100.0, "kg/ha"};
    const std::string bar = rateBar(rates, scaleOf({rates, {0.0, 0.0, 200.0, "kg/ha"}}));
    EXPECT_TRUE(contains(bar, "aria-label=\"Rates: minimum 50, average 75, maximum 100 kg/ha; the "
                              "scale is from 0 to 200\""));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"50.0\" y=\"3\" width=\"50.0\""));
    EXPECT_TRUE(contains(bar, "class=\"average\" x=\"74.0\""));
}

TEST(RateBar, ShowsASingleRateAtTheEndOfTheScale) {
    const Rates rates{80.0, 80.0, 80.0, ""};
    const std::string bar = rateBar(rates, scaleOf({rates}));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"198.0\" y=\"3\" width=\"2.0\""));
    EXPECT_TRUE(contains(bar, "class=\"average\" x=\"198.0\""));
}

TEST(RateBar, DrawsNegativeRatesAndRatesOutOfOrder) {
    const Rates rates{10.0, -10.0, 0.0, ""};
    const std::string bar = rateBar(rates, scaleOf({rates}));
    EXPECT_TRUE(contains(bar, "the scale is from -10 to 10"));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"0.0\" y=\"3\" width=\"200.0\""));
}

TEST(RateBar, TellsLargeRatesInGroupsOfDigits) {
    const Rates rates{28000.0, 32400.5, 36000.0, "seeds/ac"};
    EXPECT_EQ(ratesText(rates), "minimum 28\u202F000, average 32\u202F400.5, maximum 36\u202F000 "
                                "seeds/ac");
    EXPECT_TRUE(contains(rateBar(rates, scaleOf({rates})), "from 0 to 36\u202F000\""));
}

TEST(RateBar, TellsAndDrawsNoRateThatThePackageDoesNotGive) {
    const Rates noAverage{50.0, std::nullopt, 100.0, "kg"};
    const RateScale scale = scaleOf({noAverage});
    const std::string bar = rateBar(noAverage, scale);
    EXPECT_TRUE(contains(bar, "Rates: minimum 50, maximum 100 kg;"));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"100.0\" y=\"3\" width=\"100.0\""));
    EXPECT_FALSE(contains(bar, "average"));
    EXPECT_EQ(rateBar({std::nullopt, 60.0, 80.0, "kg"}, scale), "");
    EXPECT_EQ(rateBar({40.0, 60.0, std::nullopt, "kg"}, scale), "");
    EXPECT_EQ(ratesText({std::nullopt, 60.0, std::nullopt, "kg"}), "average 60 kg");
    EXPECT_EQ(ratesText({std::nullopt, std::nullopt, std::nullopt, "kg"}), "");
    EXPECT_EQ(scaleOf({{-5.0, 900.0, std::nullopt, ""}}).to, 0.0);
}

TEST(RateBar, IsLeftOutWithoutRatesThatCanBeDrawn) {
    for (const Rates& rates : {Rates{0.0, 0.0, 0.0, ""}, Rates{nan, 1.0, 2.0, ""},
                               Rates{0.0, 1.0, infinity, ""}, Rates{-1.7e308, 0.0, 1.7e308, ""}})
        EXPECT_EQ(rateBar(rates, scaleOf({rates})), "");
    EXPECT_EQ(ratesText({nan, 1.0, infinity, ""}), "minimum NaN, average 1, maximum Infinity");
}

} // namespace
