#include "tools/check/Units.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(Units, OfRatesAreTakenApart) {
    const auto parts = [](const std::string& text) {
        const auto unit = rateUnit(text);
        return unit ? std::string(unit->amount) + "|" + std::string(unit->area) : "none";
    };
    EXPECT_EQ(parts("kg/ha"), "kg|ha");
    EXPECT_EQ(parts("lb / 1000 sq ft"), "lb|1000 sq ft");
    EXPECT_EQ(parts("seeds per acre"), "seeds|acre");
    for (const char* text : {"", "kg", "kg/", "/ha", "kgha"})
        EXPECT_EQ(parts(text), "none") << text;
}

TEST(Units, AreTheSameInAllTheirSpellings) {
    EXPECT_TRUE(isSameUnit("kg", " KG. "));
    EXPECT_TRUE(isSameUnit("lb", "Pounds"));
    EXPECT_TRUE(isSameUnit("ac", "acres"));
    EXPECT_TRUE(isSameUnit("m3", "m\u00b3"));
    EXPECT_TRUE(isSameUnit("Sack", "sacks")); // one that is not known
    EXPECT_TRUE(isSameUnit("lbs/ac", "lb per acre"));
    EXPECT_FALSE(isSameUnit("kg", "g"));
    EXPECT_FALSE(isSameUnit("kg/ha", "kg/ac"));
    EXPECT_FALSE(isSameUnit("sack", "box"));
}

TEST(Units, OfAnyNumberOfSlashesAreComparedWithoutTakingAllOfThemApart) {
    std::string slashes;
    for (int i = 0; i < 500'000; ++i)
        slashes += "/a";
    EXPECT_FALSE(isSameUnit("x" + slashes, "y" + slashes));
    EXPECT_TRUE(isSameUnit("X" + slashes, "x" + slashes));
}

TEST(Units, AreTheSameTextOnlyInOneSpelling) {
    EXPECT_TRUE(isSameText("kg", " KG. "));
    EXPECT_FALSE(isSameText("lb", "lbs"));
}

TEST(Units, AreAmbiguousWhereTheirTextStandsForSeveral) {
    EXPECT_TRUE(isAmbiguousUnit("gal"));
    EXPECT_TRUE(isAmbiguousUnit("oz/ac"));
    EXPECT_FALSE(isAmbiguousUnit("kg"));
    EXPECT_FALSE(isAmbiguousUnit("sack"));
}

TEST(Units, MaySayTheSameWhenTheyAreOfOneSize) {
    EXPECT_TRUE(maySayTheSame("t", "m3"));
    EXPECT_TRUE(maySayTheSame("oz", "fl oz"));
    EXPECT_TRUE(maySayTheSame("bags", "t"));
    EXPECT_TRUE(maySayTheSame("sack", "kg"));
    EXPECT_FALSE(maySayTheSame("kg", "L"));
    EXPECT_FALSE(maySayTheSame("qt", "L"));
    EXPECT_FALSE(maySayTheSame("qt", "kg"));
    EXPECT_FALSE(maySayTheSame("bags", "gal"));
    EXPECT_FALSE(maySayTheSame("seeds", "kg"));
}

TEST(Units, OfOneKindAreConverted) {
    const auto expectRatio = [](const char* from, const char* to, double least, double most) {
        const auto ratio = unitRatio(from, to);
        ASSERT_TRUE(ratio) << from << " " << to;
        EXPECT_TRUE(ratio->sameKind);
        EXPECT_NEAR(ratio->least, least, least * 1e-6) << from << " " << to;
        EXPECT_NEAR(ratio->most, most, most * 1e-6) << from << " " << to;
    };
    expectRatio("kg", "g", 1000, 1000);
    expectRatio("lb", "kg", 0.45359237, 0.45359237);
    expectRatio("ac", "ha", 0.404686, 0.404686);
    expectRatio("1000 seeds", "seeds", 1000, 1000);
    expectRatio("gal", "L", 3.78, 4.55); // of the USA, and of Britain
    expectRatio("sack", "sacks", 1, 1);
}

TEST(Units, OfAWeightAndAVolumeAreThoseOfWater) {
    const auto ratio = unitRatio("L", "kg");
    ASSERT_TRUE(ratio);
    EXPECT_FALSE(ratio->sameKind);
    EXPECT_LT(ratio->least, 1);
    EXPECT_GT(ratio->most, 1);
    EXPECT_EQ(unitRatio("seeds", "kg")->most, 0);
}

TEST(Units, AreNotComparedWhereOneIsUnknownOrAnArea) {
    EXPECT_FALSE(unitRatio("kg", "sack"));
    EXPECT_FALSE(unitRatio("", "kg"));
    EXPECT_FALSE(unitRatio("kg", "ha"));
    EXPECT_FALSE(unitRatio("kg|g", "kg"));
}

} // namespace
