#include "tools/report/ReportFailures.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::brokenReading;
using test::contains;
using test::growerWith;
using test::occurrences;

namespace {

std::string sectionOf(const ReportData& data) {
    return test::written([&](const TextSink& sink) { ReportFailures(data, sink).write(); });
}

Finding errorAt(std::size_t line, FindingCode code, const std::string& found, Consequence so) {
    Finding finding{code, found, std::move(so)};
    finding.location.emplace();
    finding.location->begin = {line, 7};
    return finding;
}

TEST(ReportFailures, AreNoneWhenAllIsRead) {
    ReportData data;
    test::add(data, test::readingOf("a.xml", {growerWith({})}),
              {{FindingCode::EmptyName, "nameless", Kept{}}});
    EXPECT_FALSE(ReportFailures(data, [](std::string_view) {}).any());
}

TEST(ReportFailures, SayWhyAndWhatToDoOncePerReason) {
    ReportData data;
    test::add(data, brokenReading("a.xml"),
              {errorAt(3, FindingCode::NotWellFormed, "the file is <empty>", NothingRead{})});
    test::add(data, brokenReading("b.xml", {growerWith({})}),
              {errorAt(9, FindingCode::RecId, "no RecID", ReadingEnds{1})});
    test::add(data, brokenReading("c.xml"),
              {errorAt(4, FindingCode::NotWellFormed, "cut off", NothingRead{})});
    const std::string section = sectionOf(data);
    EXPECT_TRUE(contains(section,
                         "<p>Nothing is read of 2 packages and not everything is read of 1 "
                         "package.</p>"));
    EXPECT_EQ(occurrences(section, "<h3>The file is not well-formed XML</h3>\n<p>What to do: "),
              1U);
    EXPECT_TRUE(contains(section, "<strong><bdi>a.xml</bdi></strong>, line 3, column 7: the file "
                                  "is &lt;empty&gt;</p>"));
    EXPECT_TRUE(
        contains(section, "<bdi>c.xml</bdi></strong>, line 4, column 7: cut off</p>\n</li>"));
    EXPECT_TRUE(contains(section,
                         "line 9, column 7: no RecID</p>\n<p>Consequence: this grower and the "
                         "rest of the file are not read; the grower before it is</p>"));
}

TEST(ReportFailures, NameAReasonThatTheCheckDoesNotFind) {
    ReportData data;
    test::add(data, brokenReading("a.xml"));
    EXPECT_TRUE(contains(sectionOf(data), "<h3>Other reasons</h3>\n<ul class=\"findings\">\n<li "
                                          "class=\"error\"><p><strong><bdi>a.xml</bdi></strong>: "
                                          "broken</p>"));
}

TEST(ReportFailures, AreCountedBeyondTheFirstOfAReason) {
    ReportData data;
    for (std::size_t i = 0; i < 60; ++i)
        test::add(data, brokenReading("a.xml"),
                  {errorAt(3, FindingCode::NoRecPackage, "other root", NothingRead{})});
    const std::string section = sectionOf(data);
    EXPECT_EQ(occurrences(section, "<li"), 25U);
    EXPECT_TRUE(contains(section, "<p>And 35 more packages for this reason; <code>qenxml "
                                  "check</code> names all of them.</p>"));
}

} // namespace
