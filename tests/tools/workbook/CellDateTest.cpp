#include "tools/workbook/CellDate.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(CellDate, IsADayOrADayWithATime) {
    const auto day = cellDate("2024-02-29");
    ASSERT_TRUE(day);
    EXPECT_EQ(day->day.year, 2024);
    EXPECT_EQ(day->day.month, 2);
    EXPECT_EQ(day->day.day, 29);
    EXPECT_FALSE(day->hasTime);
    const auto time = cellDate("2026-02-11T09:24:05");
    ASSERT_TRUE(time);
    EXPECT_TRUE(time->hasTime);
    EXPECT_EQ(time->hour, 9);
    EXPECT_EQ(time->minute, 24);
    EXPECT_EQ(time->second, 5);
}

TEST(CellDate, IsNoTextThatACellWouldSayLessThan) {
    for (const std::string text :
         {"", "2026-02-30", "1899-12-31", "2026-02-11T09:24:05Z", "2026-02-11T09:24:05.5",
          "2026-02-11T24:00:00", "2026-02-11T09:60:00", "2026-02-11T09:24", "2026-02-11 09:24:05",
          "20260211", "11.02.2026", " 2026-02-11", "2026-02-1x"})
        EXPECT_FALSE(cellDate(text)) << text;
}

} // namespace
