#include "tools/check/UnitCodes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

struct Unit {
    std::string code;
    std::string text;
};

/// What is found in a package of recs with these units, one rec a line.
std::string found(const std::vector<Unit>& units, const std::string& kind = "TotalUOM") {
    std::string recs;
    unsigned number = 100;
    for (const Unit& unit : units)
        recs +=
            test::rec(number++, test::element("RecStats", test::element(kind + "ID", unit.code) +
                                                              test::element(kind, unit.text))) +
            "\n";
    std::string text;
    for (const Finding& finding :
         test::findingsOf(test::packageWithRecs(recs), FindingCode::UnitCode))
        text += std::to_string(finding.location->begin.line) + ": " + finding.found + "\n";
    return text;
}

TEST(UnitCodes, StandForOneUnitEach) {
    EXPECT_EQ(found({{"21", "kg"}, {"22", "t"}, {"21", "kg"}}), "");
    EXPECT_EQ(found({{"21", "kg"}, {"22", "t"}, {"21", "t"}}),
              "3: TotalUOMID 21 is \"t\" here and \"kg\" at line 1\n");
    EXPECT_EQ(found({{"12", "kg/ha"}, {"12", "t/ha"}}, "RateUOM"),
              "2: RateUOMID 12 is \"t/ha\" here and \"kg/ha\" at line 1\n");
}

TEST(UnitCodes, AreTheSameForTheSameUnit) {
    EXPECT_EQ(found({{"1", "ha"}, {"2", "HA "}}, "AreaUOM"),
              "2: AreaUOM \"HA\" has the AreaUOMID 2 here and 1 at line 1\n");
    EXPECT_EQ(found({{"26", "oz"}, {"27", "oz"}}), ""); // a weight, and a volume
    EXPECT_EQ(found({{"20", "lb"}, {"28", "pounds"}}), "");
}

TEST(UnitCodes, MayHaveTextsInSeveralSpellings) {
    EXPECT_EQ(found({{"20", "lb"}, {"20", "Lbs"}, {"20", "pound"}}), "");
    EXPECT_EQ(found({{"10", "lb/ac"}, {"10", "lbs per acre"}}, "RateUOM"), "");
}

TEST(UnitCodes, ContradictEachOtherOnceAPair) {
    EXPECT_EQ(found({{"21", "kg"}, {"21", "t"}, {"21", "t"}, {"21", "g"}}),
              "2: TotalUOMID 21 is \"t\" here and \"kg\" at line 1\n"
              "4: TotalUOMID 21 is \"g\" here and \"kg\" at line 1\n");
}

TEST(UnitCodes, AreNotComparedWhereTheyAreNotGiven) {
    EXPECT_EQ(found({{"", "kg"}, {"", "t"}, {"0", "kg"}, {"21", ""}, {"21", "kg"}}), "");
}

TEST(UnitCodes, OfOneKindSayNothingOfAnother) {
    EXPECT_EQ(test::findingsOf(
                  test::packageWithRec("<RecStats><TotalUOMID>1</TotalUOMID><TotalUOM>kg</TotalUOM>"
                                       "<AreaUOMID>1</AreaUOMID><AreaUOM>ha</AreaUOM></RecStats>"),
                  FindingCode::UnitCode)
                  .size(),
              0U);
}

TEST(UnitCodes, AreRememberedOnlySoFar) {
    std::vector<Unit> units = {{"1", "kg"}};
    for (int code = 2; code < 1000; ++code)
        units.push_back({std::to_string(code), "unit " + std::to_string(code)});
    units.push_back({"1", "t"});
    EXPECT_EQ(found(units), "");
}

} // namespace
