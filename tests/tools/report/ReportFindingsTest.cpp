#include "tools/report/ReportFindings.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::contains;
using test::occurrences;
using test::readingOf;

namespace {

std::string sectionOf(const ReportData& data) {
    return test::written([&](const TextSink& sink) { ReportFindings(data, sink).write(); });
}

TEST(ReportFindings, SayThatThereAreNone) {
    EXPECT_TRUE(contains(sectionOf(test::dataOf({readingOf("a.xml", {})})),
                         "<p>No problems were found.</p>"));
}

TEST(ReportFindings, StandByCodeTheWorstFirst) {
    ReportData data;
    test::add(data, readingOf("a.xml", {}),
              {{FindingCode::EmptyName, "third", Kept{}},
               {FindingCode::GrowerId, "named elsewhere", ReadingEnds{0}},
               {FindingCode::RecId, "first", NotReached{1, 1, true}},
               {FindingCode::NotANumber, "second", ReadAs{"0"}}});
    const std::string section = sectionOf(data);
    const auto first =
        section.find("<h3 class=\"error\"><strong>Error</strong>: a rec has no "
                     "readable identifier <span class=\"quiet\">[rec-id]</span></h3>");
    const auto second = section.find("<h3 class=\"warning\"><strong>Warning</strong>");
    const auto third = section.find("<h3 class=\"note\"><strong>Note</strong>");
    EXPECT_FALSE(contains(section, "named elsewhere"));
    EXPECT_FALSE(contains(section, "grower-id"));
    EXPECT_TRUE(contains(section, "<a href=\"#failures\">"));
    EXPECT_LT(first, section.find("first</p>"));
    EXPECT_LT(section.find("first</p>"), second);
    EXPECT_LT(section.find("second</p>\n<p>Consequence: it is read as 0</p>"), third);
    EXPECT_LT(third, section.find("<p>What to do: Write the name.</p>"));
    EXPECT_LT(section.find("<p>What to do: Write the name.</p>"), section.find("third</p>"));
}

TEST(ReportFindings, HaveTheirPlaceAndWhatToDoOncePerCode) {
    ReportData data;
    Finding finding{FindingCode::EmptyName, "a <rec> has no name", Kept{}};
    finding.location.emplace();
    finding.location->begin = {34, 11};
    finding.path = "/RecPackage";
    finding.records = {{"grower", "Ana", std::nullopt}};
    test::add(data, readingOf("a.xml", {}), {finding});
    const std::string one = sectionOf(data);
    EXPECT_TRUE(contains(one, "<li class=\"note\"><p><strong>Line 34, column 11</strong>: a "
                              "&lt;rec&gt; has no name</p>\n<p>Consequence: hosts can show no "
                              "name</p>\n<p>In: <bdi>grower &quot;Ana&quot;</bdi></p>\n<p "
                              "class=\"quiet\"><code>/RecPackage</code></p>\n</li>"));
    test::add(data, readingOf("b.xml", {}), {finding});
    const std::string two = sectionOf(data);
    EXPECT_TRUE(contains(two, "<p><strong><bdi>b.xml</bdi></strong>, line 34, column 11: "));
    EXPECT_EQ(occurrences(two, "What to do"), 1U);
}

TEST(ReportFindings, LeaveOutTheErrorThatEndsReadingAndCountTheOthers) {
    ReportData data;
    std::vector<Finding> errors(1, {FindingCode::RecId, "the first", ReadingEnds{0}});
    errors.resize(15, {FindingCode::RecId, "another", NotReached{1, 1, true}});
    test::add(data, readingOf("a.xml", {}), errors);
    const std::string section = sectionOf(data);
    EXPECT_FALSE(contains(section, "the first"));
    EXPECT_EQ(occurrences(section, "<li"), 9U);
    EXPECT_TRUE(contains(section, "<p>And 5 more; <code>"));
}

TEST(ReportFindings, AreCountedBeyondTheFirstTenOfACode) {
    ReportData data;
    const Finding finding{FindingCode::EmptyName, "nameless", Kept{}};
    test::add(data, readingOf("a.xml", {}), std::vector<Finding>(12, finding));
    EXPECT_TRUE(contains(sectionOf(data), "<p>And 2 more; <code>"));
    for (int i = 0; i < 1'199; ++i)
        test::add(data, readingOf("b.xml", {}), {finding});
    const std::string section = sectionOf(data);
    EXPECT_EQ(occurrences(section, "<li"), 10U);
    EXPECT_TRUE(contains(section, "<p>And 1\u202F201 more in 1\u202F200 packages; <code>qenxml "
                                  "check --json</code> writes all of them.</p>"));
}

} // namespace
