#include "tools/text/DateText.h"

#include <string>

#include <gtest/gtest.h>

namespace {

double beginOf(const std::string& text) {
    const DateText date = readDate(text);
    EXPECT_EQ(date.kind, DateKind::Iso) << text;
    return date.span.begin;
}

TEST(DateText, CountsTheSecondsOfDaysFrom1970On) {
    EXPECT_EQ(beginOf("1970-01-01"), 0);
    EXPECT_EQ(beginOf("1969-12-31"), -86400);
    EXPECT_EQ(beginOf("2000-02-29"), 951782400);
    EXPECT_EQ(beginOf("2000-03-01"), 951868800);
    EXPECT_EQ(beginOf("2026-11-22"), 1795305600);
    EXPECT_EQ(beginOf("1600-03-01"), -11670912000);
}

TEST(DateText, CountsTheSecondsOfTimes) {
    EXPECT_EQ(beginOf("1970-01-01T01:02:03"), 3723);
    EXPECT_EQ(beginOf("1970-01-01T01:02"), 3720);
    EXPECT_EQ(beginOf("1970-01-01T01"), 3600);
    EXPECT_EQ(beginOf("1970-01-01T00:00:01.25"), 1.25);
    EXPECT_EQ(beginOf("1970-01-01T00:00:01,5"), 1.5);
    EXPECT_EQ(beginOf("1970-01-01T24:00:00"), 86400);
}

TEST(DateText, TakesTheZoneOffTimes) {
    EXPECT_EQ(beginOf("1970-01-01T02:00:00Z"), 7200);
    EXPECT_EQ(beginOf("1970-01-01T02:00:00+02:00"), 0);
    EXPECT_EQ(beginOf("1970-01-01T02:00:00.000-0330"), 7200 + 3.5 * 3600);
    EXPECT_EQ(beginOf("1970-01-01T02:00:00+02"), 0);
    EXPECT_TRUE(readDate("1970-01-01T02:00:00Z").span.hasZone);
    EXPECT_FALSE(readDate("1970-01-01T02:00:00").span.hasZone);
}

TEST(DateText, ReadsOtherFormsOfIso8601) {
    EXPECT_EQ(beginOf("20261122"), 1795305600);
    EXPECT_EQ(beginOf("20261122T000001Z"), 1795305601);
    EXPECT_EQ(beginOf("2026-11-22 00:00:01"), 1795305601);
    EXPECT_EQ(beginOf(" \n2026-11-22\t"), 1795305600);
}

TEST(DateText, KnowsHowLongADateLasts) {
    const auto length = [](const std::string& text) {
        const TimeSpan span = readDate(text).span;
        return span.end - span.begin;
    };
    EXPECT_EQ(length("2026-11-22"), 86400);
    EXPECT_EQ(length("2026-11-22T10"), 3600);
    EXPECT_EQ(length("2026-11-22T10:15"), 60);
    EXPECT_EQ(length("2026-11-22T10:15:00"), 0);
}

TEST(DateText, RefusesDaysAndTimesThatThereAreNot) {
    for (const char* text :
         {"2026-13-05", "2026-02-30", "2026-02-29", "1900-02-29", "2026-11-31", "2026-00-10",
          "2026-11-00", "0000-00-00", "2026-11-22T25:00:00", "2026-11-22T24:00:01",
          "2026-11-22T10:60", "2026-11-22T10:15:61", "2026-11-22T10:15:00+15:00"})
        EXPECT_EQ(readDate(text).kind, DateKind::Impossible) << text;
}

TEST(DateText, ComparesDatesOnlyAsFarAsTheyGo) {
    const auto before = [](const std::string& a, const std::string& b) {
        return isBefore(readDate(a).span, readDate(b).span);
    };
    EXPECT_TRUE(before("2026-11-21", "2026-11-22T00:00:01"));
    EXPECT_FALSE(before("2026-11-22", "2026-11-22T23:59:59"));
    EXPECT_FALSE(before("2026-11-22T10:15:00", "2026-11-22T10:15:00"));
    EXPECT_TRUE(before("2026-11-22T10:15:00", "2026-11-22T10:15:01"));
    EXPECT_TRUE(before("2026-11-22T10:15:00+02:00", "2026-11-22T08:15:01Z"));
    // A time without a zone may be one anywhere.
    EXPECT_FALSE(before("2026-11-22T10:15:00", "2026-11-22T23:00:00Z"));
    EXPECT_TRUE(before("2026-11-22T10:15:00", "2026-11-23T01:00:00Z"));
}

} // namespace
