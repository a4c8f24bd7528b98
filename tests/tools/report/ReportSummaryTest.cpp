#include "tools/report/ReportSummary.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::contains;

namespace {

TEST(ReportSummary, CountsEverythingInAllPackages) {
    ReportData data;
    const PackageReading reading = test::readingOf(
        "a.xml", {test::growerWith({test::recOf(5, 1.0, "Urea"), test::recOf(6, 1.0, "")})});
    test::add(data, reading, {{FindingCode::EmptyName, "", Kept{}}});
    test::add(data, reading,
              {{FindingCode::RecId, "", Kept{}}, {FindingCode::NotANumber, "", Kept{}}});
    const std::string section =
        test::written([&](const TextSink& sink) { writeSummary(data, sink); });
    for (const std::string figure :
         {"Packages <b>2<", "Growers <b>2<", "Farms <b>2<", "Fields <b>2<", "Recs <b>4<",
          "Errors <b>1<", "Warnings <b>1<", "Notes <b>1<"})
        EXPECT_TRUE(contains(section, "<li>" + figure)) << section;
    EXPECT_TRUE(contains(section, "<p>2 recs without product data.</p>"));
}

} // namespace
