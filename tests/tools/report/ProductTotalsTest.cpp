#include "tools/report/ProductTotals.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Uuids.h"
#include "tools/report/GroupedNumber.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

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
