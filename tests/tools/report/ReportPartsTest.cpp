// The parts of the report that are drawn or summed up; the page as a whole is a golden file.

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Uuids.h"
#include "tools/records/Centroid.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/RateBar.h"
#include "tools/report/ReportData.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(Centroid, IsAPlaceWhenItIsOnEarthAndNotZero) {
    EXPECT_TRUE(isPlace({90.0, -180.0, 0.0}));
    EXPECT_TRUE(isPlace({0.0, 12.5, 0.0}));
    EXPECT_TRUE(isPlace({-12.5, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({0.0, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({-0.0, 0.0, 7.0}));
    EXPECT_FALSE(isPlace({90.001, 0.0, 0.0}));
    EXPECT_FALSE(isPlace({0.0, -180.001, 0.0}));
    EXPECT_FALSE(isPlace({nan, 1.0, 0.0}));
    EXPECT_FALSE(isPlace({1.0, infinity, 0.0}));
}

RateScale scaleOf(const std::vector<Rates>& rates) {
    RateScale scale;
    for (const Rates& each : rates)
        scale.include(each);
    return scale;
}

TEST(RateBar, IsDrawnFromTheMinimumToTheMaximumWithTheAverage) {
    const Rates rates{50.0, 75.0, 100.0, "kg/ha"};
    const std::string bar = rateBar(rates, scaleOf({rates, {0.0, 0.0, 200.0, "kg/ha"}}));
    EXPECT_TRUE(contains(bar, "aria-label=\"Rates: minimum 50, average 75, maximum 100 kg/ha; the "
                              "scale is from 0 to 200\""));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"50.0\" y=\"3\" width=\"50.0\""));
    EXPECT_TRUE(contains(bar, "class=\"average\" x=\"74.0\""));
}

TEST(RateBar, ShowsASingleRateAtTheEndOfTheScale) {
    const Rates rates{80.0, 80.0, 80.0, ""};
    const std::string bar = rateBar(rates, scaleOf({rates}));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"198.0\" y=\"3\" width=\"2.0\""));
    EXPECT_TRUE(contains(bar, "class=\"average\" x=\"198.0\""));
}

TEST(RateBar, DrawsNegativeRatesAndRatesOutOfOrder) {
    const Rates rates{10.0, -10.0, 0.0, ""};
    const std::string bar = rateBar(rates, scaleOf({rates}));
    EXPECT_TRUE(contains(bar, "the scale is from -10 to 10"));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"0.0\" y=\"3\" width=\"200.0\""));
}

TEST(RateBar, TellsLargeRatesInGroupsOfDigits) {
    const Rates rates{28000.0, 32400.5, 36000.0, "seeds/ac"};
    EXPECT_EQ(ratesText(rates), "minimum 28\u202F000, average 32\u202F400.5, maximum 36\u202F000 "
                                "seeds/ac");
    EXPECT_TRUE(contains(rateBar(rates, scaleOf({rates})), "from 0 to 36\u202F000\""));
}

TEST(RateBar, TellsAndDrawsNoRateThatThePackageDoesNotGive) {
    const Rates noAverage{50.0, std::nullopt, 100.0, "kg"};
    const RateScale scale = scaleOf({noAverage});
    const std::string bar = rateBar(noAverage, scale);
    EXPECT_TRUE(contains(bar, "Rates: minimum 50, maximum 100 kg;"));
    EXPECT_TRUE(contains(bar, "class=\"range\" x=\"100.0\" y=\"3\" width=\"100.0\""));
    EXPECT_FALSE(contains(bar, "average"));
    EXPECT_EQ(rateBar({std::nullopt, 60.0, 80.0, "kg"}, scale), "");
    EXPECT_EQ(rateBar({40.0, 60.0, std::nullopt, "kg"}, scale), "");
    EXPECT_EQ(ratesText({std::nullopt, 60.0, std::nullopt, "kg"}), "average 60 kg");
    EXPECT_EQ(ratesText({std::nullopt, std::nullopt, std::nullopt, "kg"}), "");
    EXPECT_EQ(scaleOf({{-5.0, 900.0, std::nullopt, ""}}).to, 0.0);
}

TEST(RateBar, IsLeftOutWithoutRatesThatCanBeDrawn) {
    for (const Rates& rates : {Rates{0.0, 0.0, 0.0, ""}, Rates{nan, 1.0, 2.0, ""},
                               Rates{0.0, 1.0, infinity, ""}, Rates{-1.7e308, 0.0, 1.7e308, ""}})
        EXPECT_EQ(rateBar(rates, scaleOf({rates})), "");
    EXPECT_EQ(ratesText({nan, 1.0, infinity, ""}), "minimum NaN, average 1, maximum Infinity");
}

QenRec recOf(unsigned number, const std::string& product, double total, const std::string& unit) {
    QenRec rec;
    rec.setId(test::uuid(number));
    rec.setTotal(total);
    rec.setTotalUom(unit);
    rec.setArea(2.5);
    rec.setAreaUom("ha");
    if (!product.empty())
        rec.setRecData(new CommercialFertilizerRec(test::uuid(number), 7, product, 1, "kg"));
    return rec;
}

std::vector<QenGrower> growersWith(const std::vector<QenRec>& recs) {
    QenField field("", test::uuid(3), test::uuid(1), test::uuid(2));
    for (const QenRec& rec : recs)
        field.addRec(rec);
    QenFarm farm("", test::uuid(2), test::uuid(1));
    farm.addField(field);
    QenGrower grower("", test::uuid(1));
    grower.addFarm(farm);
    return {grower};
}

TEST(ProductTotals, SumUpByProductAndUnit) {
    ProductTotals totals;
    std::vector<QenGrower> growers =
        growersWith({recOf(1, "Urea", 10.0, "kg"), recOf(2, "Urea", 5.0, "kg"),
                     recOf(3, "Urea", 3.0, "lb"), recOf(4, "", 1.0, "kg")});
    totals.add(growers, {});
    ASSERT_EQ(totals.totals().size(), 3U);
    const ProductTotal& kilograms = totals.totals().at({"fertilizer", "Urea", "kg"});
    EXPECT_EQ(kilograms.recs, 2U);
    EXPECT_EQ(kilograms.total.text(), "15");
    EXPECT_EQ(kilograms.areas.at("ha").text(), "5");
    EXPECT_EQ(totals.totals().at({"fertilizer", "Urea", "lb"}).total.text(), "3");
    EXPECT_EQ(totals.totals().at({"", "", "kg"}).recs, 1U);
}

TEST(ProductTotals, CountARecOfSeveralPackagesOnce) {
    ProductTotals totals;
    std::vector<QenGrower> first = growersWith({recOf(1, "Urea", 10.0, "kg")});
    std::vector<QenGrower> second =
        growersWith({recOf(1, "Urea", 99.0, "kg"), recOf(2, "Urea", 5.0, "kg")});
    totals.add(first, {});
    totals.add(second, {});
    EXPECT_EQ(totals.totals().at({"fertilizer", "Urea", "kg"}).total.text(), "15");
    EXPECT_EQ(totals.repeated(), 1U);
}

TEST(ProductTotals, PutRecsWithoutProductDataLast) {
    ProductTotals totals;
    std::vector<QenGrower> growers =
        growersWith({recOf(1, "", 1.0, "kg"), recOf(2, "Urea", 1.0, "kg")});
    totals.add(growers, {});
    ASSERT_EQ(totals.totals().size(), 2U);
    EXPECT_EQ(totals.totals().begin()->first.name, "Urea");
    EXPECT_EQ(totals.totals().rbegin()->first.kind, "");
}

std::string sumOf(const std::vector<double>& numbers) {
    Sum sum;
    for (const double number : numbers)
        sum.add(number);
    return sum.text();
}

TEST(Sum, ShowsWhatPackagesGiveWithoutTheErrorsOfBinaryFractions) {
    EXPECT_EQ(sumOf({0.1, 0.2}), "0.3");
    EXPECT_EQ(sumOf(std::vector<double>(100'000, 0.1)), grouped("10000"));
    EXPECT_EQ(sumOf({1e15, 0.25, -1e15}), "0.25");
    EXPECT_EQ(sumOf({0.25, 1e15, -1e15}), "0.25");
}

TEST(Sum, LeavesNoDigitOut) {
    EXPECT_EQ(sumOf({1234567890123.0}), grouped("1234567890123"));
    EXPECT_EQ(sumOf({1234567890123.0, 1.5}), grouped("1234567890124.5"));
    EXPECT_EQ(sumOf({0.30000000000000004}), "0.30000000000000004");
}

TEST(Sum, IsNotFiniteWhenANumberIsNot) {
    EXPECT_EQ(sumOf({infinity, 1.0}), "Infinity");
    EXPECT_EQ(sumOf({1.0, -infinity, 1.0}), "-Infinity");
    EXPECT_EQ(sumOf({1.0, nan}), "NaN");
}

} // namespace
