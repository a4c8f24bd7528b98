#include "tools/report/MapLettering.h"

#include <gtest/gtest.h>

namespace {

// The advances of DejaVu Sans Bold, the widest of the faces that the page asks for.
TEST(MapLettering, ReservesAsMuchAsTheWidestUsualFaceNeedsAndLittleMore) {
    struct {
        const char* text;
        double width;
    } const measured[] = {
        {"North Forty", 6.508},
        {"Langer Schlag +6", 9.900},
        {"Schlag 31 Oberfeld", 10.756},
        {"Creek Bottom", 7.731},
        {"95.020\u00B0 W", 5.811},
        {"\u00DCn\u00EFc\u00F6d\u00E9 N\u00F6me von der Wi\u2026", 15.562},
        {"\u0422\u0430\u043B\u0445\u0430\u043E 7 \u041F\u043E\u043B\u0435", 8.423},
    };
    for (const auto& [text, width] : measured) {
        EXPECT_GE(textWidth(text), width) << text;
        EXPECT_LE(textWidth(text), 1.2 * width) << text;
    }
}

TEST(MapLettering, GivesLettersTheRoomOfTheirKind) {
    EXPECT_DOUBLE_EQ(textWidth("ii"), 2 * 0.4);
    EXPECT_DOUBLE_EQ(textWidth("rt"), 2 * 0.5);
    EXPECT_DOUBLE_EQ(textWidth("\u00B0"), 0.5);
    EXPECT_DOUBLE_EQ(textWidth("a0z9"), 4 * 0.72);
    EXPECT_DOUBLE_EQ(textWidth("Wm"), 2 * 1.11);
    EXPECT_DOUBLE_EQ(textWidth("A\u0416\u05D0"), 3 * 0.85);
    EXPECT_DOUBLE_EQ(textWidth("\u5317\u306E\xFF"), 3 * 1.05);
    EXPECT_DOUBLE_EQ(textWidth("\U0001F33D"), 1.4);
    EXPECT_DOUBLE_EQ(textWidth(""), 0.0);
}

TEST(MapLettering, GivesNoRoomToAccentsAndToSignsOfDirection) {
    EXPECT_DOUBLE_EQ(textWidth("e\u0301"), textWidth("e"));
    EXPECT_DOUBLE_EQ(textWidth("\u2068a\u2069\u200F\uFEFF"), textWidth("a"));
}

TEST(MapLettering, CutsOnlyTextsThatAreTooLong) {
    EXPECT_EQ(shortened("", 5), "");
    EXPECT_EQ(shortened("abcde", 5), "abcde");
    EXPECT_EQ(shortened("abcdef", 5), "abcd\u2026");
    EXPECT_EQ(shortened("\u00E9\u00E9\u00E9\u00E9\u00E9", 5), "\u00E9\u00E9\u00E9\u00E9\u00E9");
    EXPECT_EQ(shortened("\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9", 5),
              "\u00E9\u00E9\u00E9\u00E9\u2026");
    EXPECT_EQ(shortened("abc  def", 6), "abc\u2026");
}

TEST(FreeRoom, IsTakenWhereSomethingWasPut) {
    FreeRoom room(600.0, 260.0);
    room.take({100.0, 50.0, 200.0, 70.0});
    EXPECT_FALSE(room.isFree({150.0, 55.0, 160.0, 60.0}));
    EXPECT_FALSE(room.isFree({90.0, 40.0, 210.0, 80.0}));
    EXPECT_FALSE(room.isFree({199.0, 69.0, 300.0, 90.0}));
    EXPECT_FALSE(room.isFree({50.0, 30.0, 101.0, 51.0}));
    EXPECT_TRUE(room.isFree({200.0, 50.0, 300.0, 70.0}));
    EXPECT_TRUE(room.isFree({100.0, 70.0, 200.0, 90.0}));
    EXPECT_TRUE(room.isFree({50.0, 50.0, 100.0, 70.0}));
    EXPECT_TRUE(room.isFree({100.0, 30.0, 200.0, 50.0}));
}

TEST(FreeRoom, EndsWithTheMap) {
    const FreeRoom room(601.0, 261.0);
    EXPECT_TRUE(room.isFree({0.0, 0.0, 601.0, 261.0}));
    EXPECT_FALSE(room.isFree({-1.0, 0.0, 10.0, 10.0}));
    EXPECT_FALSE(room.isFree({0.0, -1.0, 10.0, 10.0}));
    EXPECT_FALSE(room.isFree({590.0, 0.0, 602.0, 10.0}));
    EXPECT_FALSE(room.isFree({0.0, 250.0, 10.0, 262.0}));
}

TEST(FreeRoom, TakesWhatLiesPartlyBeyondTheMap) {
    FreeRoom room(601.0, 261.0);
    room.take({590.0, 250.0, 700.0, 300.0});
    room.take({-50.0, -50.0, 5.0, 5.0});
    EXPECT_FALSE(room.isFree({595.0, 255.0, 601.0, 261.0}));
    EXPECT_FALSE(room.isFree({0.0, 0.0, 3.0, 3.0}));
    EXPECT_TRUE(room.isFree({6.0, 6.0, 590.0, 250.0}));
}

} // namespace
