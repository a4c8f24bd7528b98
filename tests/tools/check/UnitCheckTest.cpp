#include "tools/check/UnitCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

std::string packageWith(const std::string& statistics) {
    return test::packageWithRec(test::element("RecStats", statistics));
}

std::string rates(const std::string& minimum, const std::string& average,
                  const std::string& maximum) {
    return test::element("MinimumRate", minimum) + test::element("AverageRate", average) +
           test::element("MaximumRate", maximum);
}

std::string found(const std::string& statistics, FindingCode code) {
    std::string all;
    for (const Finding& finding : test::findingsOf(packageWith(statistics), code))
        all += finding.found + "\n";
    return all;
}

TEST(UnitCheck, MissesTheUnitOfRatesOnce) {
    const auto missed = [](const std::string& statistics) {
        return found(statistics, FindingCode::RateWithoutUnit);
    };
    EXPECT_EQ(missed(rates("0", "2", "3")), "AverageRate is 2, without RateUOM and RateUOMID\n");
    EXPECT_EQ(missed(rates("1", "2", "3")), "MinimumRate is 1, without RateUOM and RateUOMID\n");
    EXPECT_EQ(missed(rates("0", "0", "0")), "");
    EXPECT_EQ(missed(rates("1", "2", "3") + "<RateUOM>kg/ha</RateUOM>"), "");
    EXPECT_EQ(missed(rates("1", "2", "3") + "<RateUOMID>11</RateUOMID>"), "");
    EXPECT_EQ(missed(rates("1", "2", "3") + "<RateUOMID>0</RateUOMID>"),
              missed(rates("1", "", "")));
}

TEST(UnitCheck, MissesTheUnitsOfTotalAndArea) {
    EXPECT_EQ(found("<Total>5</Total>", FindingCode::TotalWithoutUnit),
              "Total is 5, without TotalUOM and TotalUOMID\n");
    EXPECT_EQ(found("<Area>2</Area>", FindingCode::AreaWithoutUnit),
              "Area is 2, without AreaUOM and AreaUOMID\n");
    EXPECT_EQ(found("<Total>0</Total>", FindingCode::TotalWithoutUnit), "");
    EXPECT_EQ(found("<Total>5</Total><TotalUOM>kg</TotalUOM>", FindingCode::TotalWithoutUnit), "");
    EXPECT_EQ(found("<AreaUOMID>2</AreaUOMID><Area>5</Area>", FindingCode::AreaWithoutUnit), "");
}

TEST(UnitCheck, TakesATextOfWhichNothingIsSeenForNoUnit) {
    EXPECT_EQ(found("<Total>5</Total><TotalUOM>&#160;</TotalUOM>", FindingCode::TotalWithoutUnit),
              "Total is 5, without TotalUOM and TotalUOMID\n");
}

} // namespace
