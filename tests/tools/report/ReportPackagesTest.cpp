#include "tools/report/ReportPackages.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::brokenReading;
using test::contains;
using test::growerWith;
using test::occurrences;
using test::readingOf;

namespace {

std::string sectionOf(const ReportData& data) {
    return test::written([&](const TextSink& sink) { writePackages(data, sink); });
}

TEST(ReportPackages, TellHowMuchOfEachIsRead) {
    const std::string section =
        sectionOf(test::dataOf({readingOf("a.xml", {growerWith({})}),
                                brokenReading("b.xml", {growerWith({})}), brokenReading("-")}));
    EXPECT_TRUE(contains(section, "<bdi>a.xml</bdi></th><td data-column=\"Read\">completely</td>"));
    EXPECT_TRUE(
        contains(section, "<bdi>b.xml</bdi></th><td data-column=\"Read\">up to a failure<"));
    EXPECT_TRUE(contains(section, "<bdi>standard input</bdi></th><td data-column=\"Read\">not at "
                                  "all</td>"));
}

TEST(ReportPackages, AreFiveHundredRowsAtMost) {
    const std::string section =
        sectionOf(test::dataOf(std::vector<PackageReading>(502, readingOf("a.xml", {}))));
    EXPECT_EQ(occurrences(section, "<tr>"), 501U);
    EXPECT_TRUE(contains(section, "<p>2 more packages not listed; <code>qenxml show</code>"));
}

} // namespace
