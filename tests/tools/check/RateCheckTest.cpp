#include "tools/check/RateCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

std::string packageWithRates(const std::string& rates) {
    return test::packageWithRec(test::element("RecStats", rates));
}

std::string rates(const std::string& minimum, const std::string& average,
                  const std::string& maximum) {
    return test::element("MinimumRate", minimum) + test::element("AverageRate", average) +
           test::element("MaximumRate", maximum);
}

std::string disorder(const std::string& rates) {
    std::string found;
    for (const Finding& finding : test::findingsIn(packageWithRates(rates))) {
        if (finding.code == FindingCode::RateOrder)
            found += finding.found + "\n";
    }
    return found;
}

TEST(RateCheck, FindsNothingOddAboutRatesInOrder) {
    EXPECT_EQ(disorder(rates("1", "2", "3")), "");
}

TEST(RateCheck, FindsNothingOddAboutAUniformRate) {
    EXPECT_EQ(disorder(rates("135.5", "135.5", "135.5")), "");
    EXPECT_EQ(disorder("<MinimumRate>7</MinimumRate><MaximumRate>7</MaximumRate>"), "");
}

TEST(RateCheck, FindsEveryPairOfRatesOutOfOrder) {
    EXPECT_EQ(disorder(rates("2", "1", "3")), "MinimumRate 2 is above AverageRate 1\n");
    EXPECT_EQ(disorder(rates("1", "3", "2")), "AverageRate 3 is above MaximumRate 2\n");
    EXPECT_EQ(disorder(rates("3", "2", "1")), "MinimumRate 3 is above AverageRate 2\n"
                                              "AverageRate 2 is above MaximumRate 1\n");
    EXPECT_EQ(disorder("<MinimumRate>3</MinimumRate><MaximumRate>1</MaximumRate>"),
              "MinimumRate 3 is above MaximumRate 1\n");
    EXPECT_EQ(disorder("<MinimumRate>3</MinimumRate>"), "");
    EXPECT_EQ(disorder("<AverageRate>3</AverageRate>"), "");
}

TEST(RateCheck, PointsAtTheRateThatIsAboveAnother) {
    const Finding finding = test::findingOf(
        packageWithRates("<MaximumRate>1</MaximumRate>\n<AverageRate>3</AverageRate>"),
        FindingCode::RateOrder);
    EXPECT_EQ(test::excerptOf(finding).substr(0, 13), "<AverageRate>");
    EXPECT_EQ(finding.location->begin.line, 2U);
    EXPECT_EQ(finding.path.substr(finding.path.rfind('/')), "/AverageRate");
    EXPECT_EQ(test::toText(finding.consequence), "kept");
}

} // namespace
