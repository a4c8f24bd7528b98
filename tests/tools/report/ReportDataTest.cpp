#include "tools/report/ReportData.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::brokenReading;
using test::growerWith;
using test::readingOf;
using test::recOf;

namespace {

TEST(ReportData, KnowsWhetherAPackageIsWholeLostOrNotThere) {
    ReportData data;
    const Finding missing{FindingCode::Unreadable, "no such file", NothingRead{}};
    const Finding broken{FindingCode::RecId, "no RecID", ReadingEnds{1}};
    test::add(data, readingOf("whole.xml", {growerWith({})}));
    test::add(data, brokenReading("part.xml", {growerWith({})}), {broken});
    test::add(data, brokenReading("lost.xml"), {broken});
    test::add(data, brokenReading("missing.xml"), {missing});
    const auto answers = [&](bool (*question)(const ReportPackage&)) {
        std::string text;
        for (const ReportPackage& package : data.packages())
            text += question(package) ? 'y' : 'n';
        return text;
    };
    EXPECT_EQ(answers(isWhole), "ynnn");
    EXPECT_EQ(answers(isLost), "nnyy");
    EXPECT_EQ(answers(isReadable), "yyyn");
}

TEST(ReportData, CountsAllAndKeepsTheRecordsOfTheFirstPackages) {
    ReportData data;
    for (unsigned i = 0; i < 2 * ReportData::mostFields; ++i)
        test::add(data, readingOf("a.xml", {growerWith({recOf(5, 1.0, "Urea")})}));
    EXPECT_EQ(data.counts().recs, 2 * ReportData::mostFields);
    EXPECT_EQ(data.packages().size(), 2 * ReportData::mostFields);
    EXPECT_EQ(data.records().size(), ReportData::mostFields);
    EXPECT_EQ(data.totals().repeated(), 2 * ReportData::mostFields - 1);
}

} // namespace
