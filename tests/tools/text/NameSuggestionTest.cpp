#include "tools/text/NameSuggestion.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(NameSuggestion, FindsTheNameThatNeedsTheFewestChanges) {
    EXPECT_EQ(nearestName("FieldNmae", {"FieldDate", "FieldName"}), "FieldName");
    EXPECT_EQ(nearestName("Feild", {"Farm", "Field"}), "Field");
    EXPECT_EQ(nearestName("CommercialFertiliser", {"Planting", "CommercialFertilizer"}),
              "CommercialFertilizer");
}

TEST(NameSuggestion, TakesNoNoticeOfCaseAndPrefixes) {
    EXPECT_EQ(nearestName("recid", {"MgmtZoneID", "RecID"}), "RecID");
    EXPECT_EQ(nearestName("p:Farm", {"Farm"}), "Farm");
}

TEST(NameSuggestion, TakesTheEndOfANameForIt) {
    EXPECT_EQ(nearestName("ID", {"MgmtZoneID", "RecID"}), "RecID");
    EXPECT_EQ(nearestName("name", {"FieldName", "FieldGeometry"}), "FieldName");
}

TEST(NameSuggestion, TakesAnotherEndForAName) {
    EXPECT_EQ(nearestName("RecStatistics", {"RecName", "RecStats"}), "RecStats");
}

TEST(NameSuggestion, FindsNothingThatIsFar) {
    EXPECT_EQ(nearestName("Remark", {"RecName", "FieldName"}), "");
    EXPECT_EQ(nearestName("x", {"UOM", "Rec"}), "");
    EXPECT_EQ(nearestName("", {"UOM"}), "");
    EXPECT_EQ(nearestName("Farm", {}), "");
    EXPECT_EQ(nearestName(std::string(100000, 'a'), {"a", "aaaaaaaaaa"}), "");
}

} // namespace
