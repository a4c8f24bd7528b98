#include "tools/check/FarmSpread.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

using Places = std::vector<std::pair<std::string, std::string>>;

/// What is found of the fields of a farm, each with the number of the field.
std::string found(const Places& places) {
    std::string fields;
    unsigned number = 100;
    for (const auto& [latitude, longitude] : places)
        fields += test::field(
            number++, test::element("FieldCentroid", test::element("Latitude", latitude) +
                                                         test::element("Longitude", longitude)));
    std::string text;
    for (const Finding& finding : test::findingsOf(
             test::package(test::grower(1, test::farm(2, fields))), FindingCode::CentroidFar)) {
        const std::size_t step = finding.path.find("Field[");
        text += finding.path.substr(step, finding.path.find(']', step) + 1 - step) + finding.found;
    }
    return text;
}

const std::string lat = "45.55";

TEST(FarmSpread, FindsAFieldThatASlipBroughtFarAway) {
    EXPECT_EQ(found({{"45.51", "18.61"}, {"45.52", "18.62"}, {"45.53", "-18.63"}}).substr(8),
              "the centroid (45.53, -18.63) is 2,875 km from the other fields of the farm; with "
              "the other sign of its longitude it would be near");
    EXPECT_EQ(found({{"-45.51", "18.61"}, {"45.52", "18.62"}, {"45.53", "18.63"}}).substr(8),
              "the centroid (-45.51, 18.61) is 10,122 km from the other fields of the farm; with "
              "the other sign of its latitude it would be near");
    EXPECT_EQ(found({{"45.51", "18.61"}, {"-45.52", "-18.62"}, {"45.53", "18.63"}}).substr(8, 30),
              "the centroid (-45.52, -18.62) ");
    EXPECT_EQ(found({{"45.51", "18.61"}, {"45.52", "18.62"}, {"18.63", "45.53"}}).substr(8),
              "the centroid (18.63, 45.53) is 3,882 km from the other fields of the farm; with "
              "latitude and longitude swapped it would be near");
}

TEST(FarmSpread, FindsAFieldThatIsFarAwayForAnyReason) {
    EXPECT_EQ(found({{"45.51", "18.61"}, {"45.52", "18.62"}, {"4.553", "18.63"}}).substr(8),
              "the centroid (4.553, 18.63) is 4,554 km from the other fields of the farm");
    EXPECT_EQ(found({{"45.51", "18.61"}, {"45.52", "18.62"}, {"49", "18.63"}}), ""); // 387 km
}

TEST(FarmSpread, FindsSwappedCoordinatesThatAreNotOnTheEarth) {
    EXPECT_EQ(found({{"44.7", "-95.01"}, {"44.71", "-95.02"}, {"-95.03", "44.72"}}).substr(8),
              "the centroid (-95.03, 44.72) would be near the other fields of the farm with "
              "latitude and longitude swapped");
    EXPECT_EQ(found({{"44.7", "-95.01"}, {"-95.03", "44.72"}}).substr(8, 29),
              "the centroid (-95.03, 44.72) ");
    EXPECT_EQ(found({{"44.7", "-95.01"}, {"95.03", "-44.72"}}), "");
}

TEST(FarmSpread, FindsOneOfTwoFieldsOnlyWhereASlipExplainsIt) {
    EXPECT_EQ(found({{"45.51", "18.61"}, {"45.52", "-18.62"}}),
              "Field[2]the centroid (45.52, -18.62) is 2,874 km from the other field of the farm; "
              "with the other sign of its longitude it would be near; the other one may be wrong "
              "instead");
    EXPECT_EQ(found({{"45.51", "18.61"}, {"4.552", "18.62"}}), "");
    EXPECT_EQ(found({{"45.51", "18.61"}}), "");
}

TEST(FarmSpread, FindsNothingWhereFieldsAreSpreadOverALine) {
    EXPECT_EQ(found({{"0.3", "30.1"}, {"0.31", "30.1"}, {"-0.3", "30.1"}}), "");
    EXPECT_EQ(found({{"51.5", "0.8"}, {"51.5", "0.81"}, {"51.5", "-0.8"}}), "");
    EXPECT_EQ(found({{"-17", "179.9"}, {"-17", "179.95"}, {"-17", "-179.9"}}), "");
}

TEST(FarmSpread, TakesNoSideWhereHalfOfTheFieldsAreElsewhere) {
    EXPECT_EQ(found({{lat, "18.61"}, {lat, "18.62"}, {lat, "-18.61"}, {lat, "-18.62"}}), "");
}

TEST(FarmSpread, FindsSeveralFields) {
    const std::string text = found({{lat, "18.61"},
                                    {lat, "18.62"},
                                    {lat, "-18.61"},
                                    {lat, "18.63"},
                                    {lat, "18.64"},
                                    {lat, "-18.62"},
                                    {lat, "18.65"}});
    EXPECT_NE(text.find("Field[3]"), std::string::npos) << text;
    EXPECT_NE(text.find("Field[6]"), std::string::npos) << text;
}

TEST(FarmSpread, LeavesOutCentroidsThatTellNoPlace) {
    EXPECT_EQ(found({{"45.51", "18.61"},
                     {"45.52", "18.62"},
                     {"45.53", "18.63"},
                     {"0", "0"},
                     {"", ""},
                     {"45.5", ""},
                     {"nan", "18"},
                     {"45", "inf"}}),
              "");
}

} // namespace
