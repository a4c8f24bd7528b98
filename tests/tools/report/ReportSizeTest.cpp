// How large the page becomes, and that it says how much it leaves out.

#include <random>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tests/tools/report/Reports.h"

using test::contains;
using test::occurrences;

namespace {

/// A package of a farm with four fields of three recs, some kilometres apart.
PackageReading packageOf(unsigned number) {
    std::vector<QenField> fields;
    for (unsigned i = 0; i < 4; ++i) {
        std::vector<QenRec> recs;
        for (unsigned j = 0; j < 3; ++j)
            recs.push_back(test::recOf(j, 12.5, fmt::format("Blend {}", 12 * number + 3 * i + j)));
        fields.push_back(test::fieldOf(10 + i, fmt::format("North quarter {}", i),
                                       {40.0 + 0.01 * i, -95.0 + 0.001 * number, 0.0}, recs));
    }
    return test::readingOf(fmt::format("{:08}-0000-4000-8000-000000000000.xml", number),
                           {test::growerOf(number, 2, fields)});
}

/// As many packages as that, each with a finding of every code.
std::string pageOfPackages(unsigned number) {
    ReportData data;
    for (unsigned i = 0; i < number; ++i) {
        PackageReading reading = packageOf(i);
        reading.failure = ReadFailure{"broken", std::nullopt};
        std::vector<Finding> findings;
        for (std::size_t code = 0; code < findingKinds.size(); ++code) {
            Finding finding{static_cast<FindingCode>(code), "what is found", Kept{}};
            finding.path = "/RecPackage/Grower[1]/Farm[1]/Field[1]/Recommendations/Rec[1]/RecStats";
            finding.records = {{"grower", "Prairie Sky Farms LLC", std::nullopt},
                               {"rec", "Zone 1 variable rate", std::nullopt}};
            findings.push_back(finding);
        }
        test::add(data, reading, findings);
    }
    return test::pageOf(std::move(data));
}

TEST(ReportSize, IsBoundedForAnyNumberOfPackages) {
    const std::string page = pageOfPackages(600);
    EXPECT_LT(page.size(), 1'500'000U);
    EXPECT_LT(pageOfPackages(900).size(), page.size() + page.size() / 100);
    EXPECT_TRUE(contains(page, "<p>And 590 more in 590 packages; "));
    EXPECT_TRUE(contains(page, "<p>And 575 more packages for this reason; "));
    EXPECT_TRUE(contains(page, "<p>Not drawn: 540 more farms; "));
    EXPECT_TRUE(contains(page, "<p>7\u202F000 more rows not shown; "));
    EXPECT_TRUE(contains(page, "<p>100 more packages not listed; "));
    EXPECT_TRUE(contains(page, "<p>Not shown: 2\u202F266 more fields and 6\u202F800 more recs."));
}

TEST(ReportSize, LeavesNothingOutOfAFewPackages) {
    std::mt19937 random(2026);
    for (int round = 0; round < 20; ++round) {
        std::vector<PackageReading> packages;
        RecordCounts counts;
        for (std::size_t i = 0; i < 1 + random() % 30; ++i) {
            packages.push_back(packageOf(static_cast<unsigned>(i)));
            packages.back().growers.resize(random() % 2);
            counts += countRecords(packages.back().growers);
        }
        const std::string page = test::pageOf(packages);
        for (const auto& [what, number] :
             {std::pair("Packages", packages.size()), std::pair("Growers", counts.growers),
              std::pair("Farms", counts.farms), std::pair("Fields", counts.fields),
              std::pair("Recs", counts.recs)})
            EXPECT_TRUE(contains(page, fmt::format("<li>{} <b>{}</b></li>", what, number)));
        EXPECT_EQ(occurrences(page, "<h5>"), counts.fields);
        EXPECT_EQ(occurrences(page, "<h6>"), counts.recs);
        EXPECT_EQ(occurrences(page, "<svg class=\"map\""), counts.farms);
        EXPECT_FALSE(contains(page, "more"));
    }
}

} // namespace
