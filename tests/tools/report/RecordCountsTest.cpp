#include "tools/report/RecordCounts.h"

#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::growerWith;
using test::recOf;

namespace {

TEST(RecordCounts, CountEveryRecordOnce) {
    std::vector<QenGrower> growers = {growerWith({recOf(5, 1.0, "Urea"), recOf(6, 1.0, "")}),
                                      test::growerOf(7, 8, {})};
    RecordCounts counts = countRecords(growers);
    counts += countRecords(growers);
    EXPECT_EQ(counts.growers, 4U);
    EXPECT_EQ(counts.farms, 4U);
    EXPECT_EQ(counts.fields, 2U);
    EXPECT_EQ(counts.recs, 4U);
    EXPECT_EQ(counts.recsWithoutProduct, 2U);
}

} // namespace
