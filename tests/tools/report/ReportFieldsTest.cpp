#include "tools/report/ReportFields.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"

using test::contains;
using test::fieldOf;
using test::growerOf;
using test::occurrences;
using test::readingOf;
using test::recOf;

namespace {

std::string sectionOf(const std::vector<PackageReading>& readings) {
    ReportData data = test::dataOf(readings);
    return test::written([&](const TextSink& sink) { ReportFields(data, sink).write(); });
}

std::vector<QenRec> recs(unsigned first, unsigned number) {
    std::vector<QenRec> result;
    for (unsigned i = 0; i < number; ++i)
        result.push_back(recOf(first + i, 1.0, "Urea"));
    return result;
}

// Both are kept together on paper.
TEST(ReportFields, HaveTheirPlaceUnderTheirHeading) {
    const std::string section = sectionOf(
        {readingOf("a.xml", {growerOf(1, 2, {fieldOf(3, "North", {44.5, -95.25, 0.0})})})});
    EXPECT_TRUE(contains(section, "<h4><bdi>Grower 1</bdi>, <bdi>Farm 2</bdi></h4>\n"
                                  "<h5><bdi>North</bdi></h5>\n<p class=\"place\"><span "
                                  "class=\"id\">00000000-0000-0000-0000-000000000003</span><br>"
                                  "Centroid: latitude 44.5, longitude -95.25</p>\n<p>No "
                                  "recs.</p>"));
    EXPECT_FALSE(contains(section, "Not shown"));
}

TEST(ReportFields, AreThoseOfPackagesThatHaveAny) {
    const std::string section =
        sectionOf({readingOf("empty.xml", {}),
                   readingOf("a.xml", {growerOf(1, 2, {fieldOf(3, "", {0.0, 0.0, 0.0})})})});
    EXPECT_FALSE(contains(section, "empty.xml"));
    EXPECT_TRUE(contains(section, "<h3><bdi>a.xml</bdi></h3>"));
    EXPECT_TRUE(contains(sectionOf({readingOf("empty.xml", {})}), "<p>There are no fields.</p>"));
}

TEST(ReportFields, AreFoldedAwayWhenThereAreManyRecs) {
    const auto section = [](unsigned number) {
        return sectionOf({readingOf(
            "a.xml", {growerOf(1, 2, {fieldOf(3, "", {0.0, 0.0, 0.0}, recs(10, number))})})});
    };
    EXPECT_TRUE(contains(section(200), "<details open>\n<summary>200 recs</summary>"));
    EXPECT_TRUE(contains(section(201), "<details>\n<summary>201 recs</summary>"));
}

TEST(ReportFields, StopAtTheMostRecsAndSayHowManyAreLeftOut) {
    const std::string section =
        sectionOf({readingOf("a.xml", {growerOf(1, 2,
                                                {fieldOf(3, "", {0.0, 0.0, 0.0}, recs(10, 700)),
                                                 fieldOf(4, "", {0.0, 0.0, 0.0}, recs(10, 2))})})});
    EXPECT_EQ(occurrences(section, "<h6>"), ReportData::mostRecs);
    EXPECT_EQ(occurrences(section, "<h5>"), 1U);
    EXPECT_TRUE(contains(section, "<p>Not shown: 1 more field and 302 more recs. <code>qenxml "
                                  "show</code> and <code>qenxml export</code> write all of "
                                  "them.</p>"));
}

TEST(ReportFields, StopAtTheMostFields) {
    std::vector<QenField> fields;
    for (unsigned i = 0; i < 1'300; ++i)
        fields.push_back(fieldOf(10 + i, "", {0.0, 0.0, 0.0}));
    const std::string section = sectionOf({readingOf("a.xml", {growerOf(1, 2, fields)})});
    EXPECT_EQ(occurrences(section, "<h5>"), ReportData::mostFields);
    EXPECT_TRUE(contains(section, "<p>Not shown: 1\u202F000 more fields and 0 more recs."));
}

} // namespace
