#include "tools/report/ReportProducts.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::contains;
using test::growerWith;
using test::occurrences;
using test::recOf;

namespace {

std::string sectionOf(const std::vector<QenRec>& recs) {
    ProductTotals totals;
    std::vector<QenGrower> growers = {growerWith(recs)};
    totals.add(growers, {});
    return test::written([&](const TextSink& sink) { writeProducts(totals, sink); });
}

TEST(ReportProducts, SumUpRecsWithoutProductDataInTheLastRow) {
    const std::string section = sectionOf({recOf(5, 1.0, ""), recOf(6, 2.0, "Urea")});
    EXPECT_LT(section.find("<th scope=\"row\"><bdi>Urea</bdi> <span class=\"quiet\">fertilizer<"),
              section.find("<th scope=\"row\">no product data</th>"));
    EXPECT_TRUE(contains(section, "<th scope=\"row\">no product data</th>"));
}

TEST(ReportProducts, AreTwoHundredRowsAtMost) {
    std::vector<QenRec> recs;
    for (unsigned i = 0; i < 230; ++i)
        recs.push_back(recOf(10 + i, 1.0, "Product " + std::to_string(i)));
    const std::string section = sectionOf(recs);
    EXPECT_EQ(occurrences(section, "<tr>"), 201U);
    EXPECT_TRUE(contains(section, "<p>30 more rows not shown; <code>qenxml export --format "
                                  "csv</code>"));
}

TEST(ReportProducts, NameTenUnitsOfAreaAtMost) {
    std::vector<QenRec> recs;
    for (unsigned i = 0; i < 14; ++i) {
        recs.push_back(recOf(10 + i, 1.0, "Urea"));
        recs.back().setArea(2.0);
        recs.back().setAreaUom("unit " + std::to_string(i));
    }
    const std::string section = sectionOf(recs);
    EXPECT_EQ(occurrences(section, "<bdi>unit "), 10U);
    EXPECT_TRUE(contains(section, "<br>in 4 more units</td>"));
}

TEST(ReportProducts, SayThatThereAreNoRecs) {
    EXPECT_TRUE(contains(sectionOf({}), "<p>There are no recs.</p>"));
}

} // namespace
