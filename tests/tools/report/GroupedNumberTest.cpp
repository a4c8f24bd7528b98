#include "tools/report/GroupedNumber.h"

#include <gtest/gtest.h>

namespace {

TEST(GroupedNumber, PutsNarrowSpacesBetweenGroupsOfThreeDigits) {
    EXPECT_EQ(groupedText(999.0), "999");
    EXPECT_EQ(groupedText(1000.0), "1\u202F000");
    EXPECT_EQ(groupedText(123456.0), "123\u202F456");
    EXPECT_EQ(groupedText(66297500.0), "66\u202F297\u202F500");
    EXPECT_EQ(groupedText(-1234.0), "-1\u202F234");
    EXPECT_EQ(groupedText(std::size_t{1250640}), "1\u202F250\u202F640");
    EXPECT_EQ(groupedText(std::size_t{0}), "0");
}

TEST(GroupedNumber, KeepsAllDecimals) {
    EXPECT_EQ(groupedText(1234.56789), "1\u202F234.56789");
    EXPECT_EQ(groupedText(0.123456789), "0.123456789");
}

TEST(GroupedNumber, LeavesOtherTextsAsTheyAre) {
    EXPECT_EQ(grouped("NaN"), "NaN");
    EXPECT_EQ(grouped("-Infinity"), "-Infinity");
    EXPECT_EQ(grouped("1e+20"), "1e+20");
    EXPECT_EQ(grouped("1.2345678e-05"), "1.2345678e-05");
    EXPECT_EQ(grouped(""), "");
}

TEST(GroupedNumber, CountsThings) {
    EXPECT_EQ(groupedQuantity(1, "rec"), "1 rec");
    EXPECT_EQ(groupedQuantity(12'345, "rec"), "12\u202F345 recs");
}

} // namespace
