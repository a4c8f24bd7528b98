// The parts of the report that are drawn or summed up; the page as a whole is a golden file.

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Uuids.h"
#include "tools/Centroid.h"
#include "tools/report/RateBar.h"
#include "tools/report/ReportData.h"
#include "tools/report/ReportMap.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::size_t occurrences(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at)
        ++count;
    return count;
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

TEST(RateBar, IsLeftOutWithoutRatesThatCanBeDrawn) {
    for (const Rates& rates : {Rates{0.0, 0.0, 0.0, ""}, Rates{nan, 1.0, 2.0, ""},
                               Rates{0.0, 1.0, infinity, ""}, Rates{-1.7e308, 0.0, 1.7e308, ""}})
        EXPECT_EQ(rateBar(rates, scaleOf({rates})), "");
    EXPECT_EQ(ratesText({nan, 1.0, infinity, ""}), "minimum NaN, average 1, maximum Infinity");
}

TEST(ReportMap, ShowsASingleFieldInTheMiddleOfAKilometre) {
    const std::string map = reportMap({{"North <40>", {44.7, -95.0, 0.0}}});
    EXPECT_TRUE(contains(map, "aria-label=\"Map: one field between 44.695° N and 44.705° N"));
    EXPECT_TRUE(contains(map, "<circle class=\"field\" cx=\"300.0\" "));
    EXPECT_TRUE(contains(map, ">North &lt;40&gt;</text>"));
    EXPECT_TRUE(contains(map, ">200 m</text>"));
}

TEST(ReportMap, PutsNorthUpAndEastToTheRight) {
    const std::string map =
        reportMap({{"south-west", {10.0, 20.0, 0.0}}, {"north-east", {11.0, 21.0, 0.0}}});
    const auto southWest = map.find("<title>south-west");
    const auto circleOf = [&](std::size_t title) { return map.rfind("<circle", title); };
    const auto x = [&](std::size_t circle) {
        return std::stod(map.substr(map.find("cx=", circle) + 4));
    };
    const auto y = [&](std::size_t circle) {
        return std::stod(map.substr(map.find("cy=", circle) + 4));
    };
    const auto northEast = map.find("<title>north-east");
    EXPECT_LT(x(circleOf(southWest)), x(circleOf(northEast)));
    EXPECT_GT(y(circleOf(southWest)), y(circleOf(northEast)));
}

TEST(ReportMap, KeepsFieldsOnBothSidesOfTheDateLineTogether) {
    const std::string map = reportMap({{"a", {-17.0, 179.9, 0.0}}, {"b", {-17.0, -179.9, 0.0}}});
    EXPECT_TRUE(contains(map, "179.900° E and 179.900° W"));
}

TEST(ReportMap, DrawsFieldsThatWouldHideEachOtherAsOnePoint) {
    const std::string map = reportMap(
        {{"a", {44.7, -95.0, 0.0}}, {"b", {44.7, -95.0, 0.0}}, {"c", {44.8, -95.0, 0.0}}});
    EXPECT_EQ(occurrences(map, "<circle"), 2U);
    EXPECT_TRUE(contains(map, "<title>a and 1 more</title>"));
}

TEST(ReportMap, StaysSmallForAnyNumberOfFields) {
    std::vector<MapPoint> points;
    for (int i = 0; i < 100'000; ++i)
        points.push_back({"Field " + std::to_string(i),
                          {-89.0 + i % 1000 * 0.178, -179.0 + i / 1000.0 * 3.58, 0.0}});
    EXPECT_LT(reportMap(points).size(), 4'000'000U);
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
    totals.add(growers);
    ASSERT_EQ(totals.totals().size(), 3U);
    const ProductTotal& kilograms = totals.totals().at({"fertilizer", "Urea", "kg"});
    EXPECT_EQ(kilograms.recs, 2U);
    EXPECT_EQ(kilograms.total, 15.0);
    EXPECT_EQ(kilograms.areas.at("ha"), 5.0);
    EXPECT_EQ(totals.totals().at({"fertilizer", "Urea", "lb"}).total, 3.0);
    EXPECT_EQ(totals.totals().at({"", "", "kg"}).recs, 1U);
}

TEST(ProductTotals, CountARecOfSeveralPackagesOnce) {
    ProductTotals totals;
    std::vector<QenGrower> first = growersWith({recOf(1, "Urea", 10.0, "kg")});
    std::vector<QenGrower> second =
        growersWith({recOf(1, "Urea", 99.0, "kg"), recOf(2, "Urea", 5.0, "kg")});
    totals.add(first);
    totals.add(second);
    EXPECT_EQ(totals.totals().at({"fertilizer", "Urea", "kg"}).total, 15.0);
    EXPECT_EQ(totals.repeated(), 1U);
}

Finding findingOf(FindingCode code) {
    Finding finding;
    finding.code = kindOf(code).code;
    finding.severity = kindOf(code).severity;
    return finding;
}

TEST(ReportFindings, PutTheWorstFirstAndKeepTenOfACode) {
    ReportFindings findings;
    for (const FindingCode code : {FindingCode::EmptyName, FindingCode::RecId})
        for (int i = 0; i < 12; ++i) {
            if (findings.count(code))
                findings.keep(findingOf(code));
        }
    ASSERT_EQ(findings.kept().size(), 20U);
    EXPECT_EQ(findings.kept().front().code, "rec-id");
    EXPECT_EQ(findings.kept().back().code, "empty-name");
    EXPECT_EQ(findings.number(Severity::Error), 12U);
    EXPECT_EQ(findings.number(Severity::Note), 12U);
    EXPECT_EQ(findings.number(), 24U);
}

} // namespace
