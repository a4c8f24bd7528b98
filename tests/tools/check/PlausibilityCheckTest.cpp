#include "tools/check/PlausibilityCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

using test::element;

/// The codes of what is odd in a package, in their order, without what is missing.
std::string oddities(const std::string& content) {
    std::string codes;
    for (const Finding& finding : test::findingsIn(content)) {
        if (finding.severity() == Severity::Note && finding.code != FindingCode::EmptyName &&
            finding.code != FindingCode::CentroidZero &&
            finding.code != FindingCode::StatisticsIncomplete)
            codes += std::string(codes.empty() ? "" : " ") + kindOf(finding.code).code;
    }
    return codes;
}

TEST(PlausibilityCheck, FindsOdditiesOfARecWhereTheyStand) {
    EXPECT_EQ(oddities(test::packageWithRec(
                  "<EditDate>2026-02-01</EditDate><RecDBFCol>A B</RecDBFCol><CreationDate>?"
                  "</CreationDate><RecStats><Total>70</Total><MinimumRate>3</MinimumRate>"
                  "<MaximumRate>1</MaximumRate><AverageRate>3</AverageRate><Area>1</Area>"
                  "<RateUOM>kg/ha</RateUOM><AreaUOM>ha</AreaUOM><TotalUOM>kg</TotalUOM>"
                  "</RecStats>")),
              "dbf-column not-a-date total-mismatch rate-order");
}

TEST(PlausibilityCheck, LooksAtValuesOnlyWhereTheyAreRead) {
    const std::string date = "<EditDate>?</EditDate>";
    EXPECT_EQ(oddities(test::packageWithRec(element("Season", date))), "");
    EXPECT_EQ(oddities(test::packageWithRec(date)), "not-a-date");
    EXPECT_EQ(oddities(test::packageWithRec("<EditDate>2026</EditDate>" + date)), "");
}

TEST(PlausibilityCheck, ComparesFieldsOfOneFarmOnly) {
    const auto field = [](unsigned number, const std::string& longitude) {
        return test::field(number, element("FieldCentroid", element("Latitude", "45") +
                                                                element("Longitude", longitude)));
    };
    const std::string here = field(1, "18.1") + field(2, "18.2");
    const std::string there = field(3, "-18.1") + field(4, "-18.2");
    EXPECT_EQ(oddities(test::package(test::grower(1, test::farm(1, here) + test::farm(2, there)))),
              "");
    EXPECT_EQ(oddities(test::package(test::grower(1, test::farm(1, here + field(3, "-18.1"))))),
              "centroid-far");
}

} // namespace
