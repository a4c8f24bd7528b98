#include "tools/check/CentroidCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

std::string outOfRange(const std::string& latitude, const std::string& longitude) {
    std::string found;
    for (const Finding& finding : test::findingsIn(test::packageWithField(
             test::element("FieldCentroid", test::element("Latitude", latitude) +
                                                test::element("Longitude", longitude))))) {
        if (finding.code == FindingCode::CentroidRange)
            found += finding.found + "\n";
    }
    return found;
}

TEST(CentroidCheck, FindsCoordinatesThatAreNotOnTheEarth) {
    EXPECT_EQ(outOfRange("90", "180"), "");
    EXPECT_EQ(outOfRange("-90", "-180"), "");
    EXPECT_EQ(outOfRange("90.5", "-180.5"), "Latitude 90.5 is not between -90 and 90\n"
                                            "Longitude -180.5 is not between -180 and 180\n");
    EXPECT_EQ(outOfRange("-91", "181"), "Latitude -91 is not between -90 and 90\n"
                                        "Longitude 181 is not between -180 and 180\n");
    EXPECT_EQ(outOfRange("nan", "100"), "Latitude nan is not between -90 and 90\n");
}

TEST(CentroidCheck, FindsACentroidThatTellsNoPlace) {
    const auto found = [](const std::string& centroid) {
        const Finding finding =
            test::findingOf(test::packageWithField(centroid), FindingCode::CentroidZero);
        return finding.found + " -> " + test::toText(finding.consequence);
    };
    EXPECT_EQ(found(""), "FieldCentroid is missing -> read as (0, 0)");
    EXPECT_EQ(found("<FieldCentroid/>"),
              "Latitude is missing, Longitude is missing -> read as (0, 0)");
    EXPECT_EQ(found("<FieldCentroid><Longitude>16.5</Longitude></FieldCentroid>"),
              "Latitude is missing -> read as (0, 16.5)");
    EXPECT_EQ(
        found("<FieldCentroid><Latitude>0</Latitude><Longitude>0</Longitude></FieldCentroid>"),
        "latitude and longitude are 0 -> read as (0, 0)");
    EXPECT_TRUE(test::findingsOf(test::packageWithField("<FieldCentroid><Latitude>0</Latitude>"
                                                        "<Longitude>7</Longitude></FieldCentroid>"),
                                 FindingCode::CentroidZero)
                    .empty());
}

} // namespace
