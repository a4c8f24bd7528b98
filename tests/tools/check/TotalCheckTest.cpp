#include "tools/check/TotalCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

using test::element;

struct Statistics {
    std::string rate;
    std::string area;
    std::string total;
    std::string rateUnit = "kg/ha";
    std::string areaUnit = "ha";
    std::string totalUnit = "kg";
};

/// What is found about the total.
std::string found(const Statistics& of) {
    std::string text;
    for (const Finding& finding : test::findingsIn(test::packageWithRec(element(
             "RecStats", element("AverageRate", of.rate) + element("RateUOM", of.rateUnit) +
                             element("Total", of.total) + element("TotalUOM", of.totalUnit) +
                             element("Area", of.area) + element("AreaUOM", of.areaUnit))))) {
        const std::string step = finding.path.substr(finding.path.rfind('/') + 1);
        if (step == "Total" && finding.code != FindingCode::TotalWithoutUnit)
            text += std::string(kindOf(finding.code).code) + ": " + finding.found;
    }
    return text;
}

TEST(TotalCheck, FindsATotalThatIsNotRateTimesArea) {
    EXPECT_EQ(found({"135.5", "16.8", "2276.4"}), "");
    EXPECT_EQ(found({"135.5", "16.8", "2150"}),
              "total-mismatch: Total is 2150 kg, but AverageRate 135.5 kg/ha times Area 16.8 ha is "
              "2276.4 kg");
    EXPECT_EQ(found({"135.5", "16.8", "22764"}),
              "total-mismatch: Total is 22764 kg, but AverageRate 135.5 kg/ha times Area 16.8 ha "
              "is 2276.4 kg; the total is 10 times that");
    EXPECT_EQ(found({"135.5", "16.8", "22.764"}),
              "total-mismatch: Total is 22.764 kg, but AverageRate 135.5 kg/ha times Area 16.8 ha "
              "is 2276.4 kg; the total is 1/100 of that");
    EXPECT_EQ(found({"1234567.25", "100", "8"}),
              "total-mismatch: Total is 8 kg, but AverageRate 1234570 kg/ha times Area 100 ha is "
              "123457000 kg");
}

TEST(TotalCheck, AllowsTwoInAHundred) {
    EXPECT_EQ(found({"100.000", "10.000", "1019.000"}), "");
    EXPECT_NE(found({"100.000", "10.000", "1021.000"}), "");
    EXPECT_EQ(found({"100.000", "10.000", "981.000"}), "");
    EXPECT_NE(found({"100.000", "10.000", "979.000"}), "");
}

TEST(TotalCheck, AllowsThatEachNumberIsRoundedOrCutOff) {
    EXPECT_EQ(found({"2", "0.3", "0.8"}), ""); // 2.4 times 0.34
    EXPECT_EQ(found({"2", "0.3", "1.2"}), ""); // 2.99 times 0.399, both cut off
    EXPECT_NE(found({"2", "0.3", "6"}), "");
    EXPECT_EQ(found({"0.04", "0.1", "0.00"}), "");
    EXPECT_EQ(found({"0", "10", "4"}).substr(0, 10), "rates-zero");
}

TEST(TotalCheck, KnowsUnitsInTheirSpellings) {
    EXPECT_NE(found({"10", "10", "999", "lbs/acre", "ac", "Lb"}), "");
    EXPECT_NE(found({"10", "10", "999", "sack per ha", "Ha", "sacks"}), "");
    EXPECT_EQ(found({"10", "10", "999", "sack/ha", "ha", "box"}), "");
    EXPECT_EQ(found({"10", "10", "999", "kg", "ha", "kg"}), "");
    EXPECT_EQ(found({"10", "10", "999", "", "", ""}), "");
}

TEST(TotalCheck, ConvertsUnitsOfOneKind) {
    EXPECT_EQ(found({"135.5", "16.8", "2.28", "kg/ha", "ha", "t"}), "");
    EXPECT_EQ(found({"50", "24.7105", "500", "kg/ha", "ac", "kg"}), "");
    EXPECT_EQ(found({"50", "24.7105", "5000", "kg/ha", "ac", "kg"}).substr(0, 14),
              "total-mismatch");
    EXPECT_EQ(found({"10.0", "10.0", "379", "gal/ac", "ac", "L"}), "");
    EXPECT_EQ(found({"10.0", "10.0", "455", "gal/ac", "ac", "L"}), "");
    EXPECT_NE(found({"10.0", "10.0", "600", "gal/ac", "ac", "L"}), "");
}

TEST(TotalCheck, FindsNumbersThatFitWhenTheirUnitsDoNot) {
    EXPECT_EQ(found({"135.5", "16.8", "2276.4", "kg/ha", "ha", "t"}),
              "units-disagree: AverageRate 135.5 kg/ha times Area 16.8 ha is Total 2276.4 t by the "
              "numbers, but not by the units");
    EXPECT_EQ(found({"50", "24.7", "1235", "kg/ha", "ac", "kg"}).substr(0, 14), "units-disagree");
    EXPECT_EQ(found({"50", "24.7", "1235", "seeds/ha", "ha", "kg"}).substr(0, 14),
              "units-disagree");
    EXPECT_EQ(found({"50", "24.7", "1000", "seeds/ha", "ha", "kg"}), "");
}

TEST(TotalCheck, SaysNothingOfAWeightAndAVolumeThatMayBeTheSame) {
    EXPECT_EQ(found({"25.0", "10.0", "250", "m3/ha", "ha", "t"}), "");
    EXPECT_EQ(found({"25.0", "10.0", "255", "L/ha", "ha", "kg"}), "");
    EXPECT_EQ(found({"2.5", "1.0", "2.5", "L/ha", "ha", "kg"}), "");
    EXPECT_EQ(found({"25.0", "10.0", "250", "oz/ha", "ha", "fl oz"}), "");
    EXPECT_NE(found({"25.0", "10.0", "250", "L/ha", "ha", "t"}), "");
    EXPECT_EQ(found({"25.0", "10.0", "250", "L/ha", "ha", "kg"}).substr(0, 14), "units-disagree");
}

TEST(TotalCheck, FindsTheSameNumberInUnitsOfNoSizeThatIsTheSame) {
    const auto code = [](const Statistics& statistics) { return found(statistics).substr(0, 14); };
    EXPECT_EQ(code({"10.0", "10.0", "100", "qt/ac", "ac", "L"}), "units-disagree");
    EXPECT_EQ(code({"10.0", "10.0", "100", "qt/ac", "ac", "kg"}), "units-disagree");
    EXPECT_EQ(code({"10.0", "10.0", "100", "bags/ha", "ha", "gal"}), "units-disagree");
    EXPECT_EQ(code({"10.0", "10.0", "100", "lb/ac", "ha", "L"}), "units-disagree");
    EXPECT_EQ(code({"10.0", "10.0", "100", "bags/ha", "ha", "t"}), "");
    EXPECT_EQ(code({"10.0", "10.0", "100", "t/ac", "ac", "ton"}), "");
    EXPECT_EQ(code({"10.0", "10.0", "100", "sack/ha", "ha", "L"}), "");
    EXPECT_EQ(code({"10.0", "10.0", "95", "qt/ac", "ac", "L"}), "");
}

TEST(TotalCheck, SaysNothingOfUnitsOfAboutOneSizeWhereRateOrAreaWereRounded) {
    EXPECT_EQ(found({"4", "20", "80.2", "qt/ac", "ac", "L"}), "");
    EXPECT_EQ(found({"1", "50", "50.0", "qt/ac", "ac", "L"}), "");
}

TEST(TotalCheck, FindsSeedsInAnotherUnitWhateverWasRounded) {
    EXPECT_EQ(found({"123377", "0.1", "13018", "seeds/ha", "ha", "kg"}).substr(0, 14),
              "units-disagree");
    EXPECT_EQ(found({"123377", "0.1", "130", "seeds/ha", "ha", "kg"}), "");
}

TEST(TotalCheck, SaysNothingOfSeedsInAnotherUnitWhoseNumberIsOneByRoundingOnly) {
    EXPECT_EQ(found({"350", "1", "192.5", "seeds/m2", "ha", "kg"}), "");
    EXPECT_EQ(found({"33000", "0", "5", "seeds/ha", "ha", "bags"}), "");
    EXPECT_EQ(found({"450", "1", "225", "1000 seeds/ha", "ha", "kg"}), "");
    EXPECT_EQ(found({"80", "0", "25", "k seeds/ha", "ha", "kg"}), "");
}

TEST(TotalCheck, FindsATotalOfRatesThatAreAll0) {
    const auto zero = [](const std::string& rates, const std::string& total) {
        return test::findingsOf(
                   test::packageWithRec(element("RecStats", rates + element("Total", total))),
                   FindingCode::RatesZero)
            .size();
    };
    const std::string none = "<MinimumRate>0</MinimumRate><MaximumRate>0.00</MaximumRate>";
    EXPECT_EQ(zero(none, "12"), 1U);
    EXPECT_EQ(zero(none + "<AverageRate>0</AverageRate>", "12"), 1U);
    EXPECT_EQ(zero(none + "<AverageRate>3</AverageRate>", "12"), 0U);
    EXPECT_EQ(zero(none + "<AverageRate>n/a</AverageRate>", "12"), 0U);
    EXPECT_EQ(zero(none, "0"), 0U);
    EXPECT_EQ(zero("", "12"), 0U);
    EXPECT_EQ(found({"0", "5", "12"}), "rates-zero: Total is 12 kg, but all rates are 0");
}

TEST(TotalCheck, ComparesNothingThatIsNotGiven) {
    EXPECT_EQ(found({"", "5", "12"}), "");
    EXPECT_EQ(found({"5,5", "5", "120"}), "");
    EXPECT_EQ(found({"5", "n/a", "120"}), "");
    EXPECT_EQ(found({"5", "5", "-120"}), "");
}

} // namespace
