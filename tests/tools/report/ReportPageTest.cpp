#include "tools/report/ReportPage.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tests/tools/report/Reports.h"

using test::contains;
using test::growerWith;
using test::pageOf;
using test::readingOf;
using test::recOf;

namespace {

TEST(ReportPage, NamesTheFolderOnceAndTheFilesWithoutIt) {
    const std::string page = pageOf({readingOf("season/2026/a&b.xml", {growerWith({})}),
                                     readingOf("season/2026/c.xml", {growerWith({})})});
    EXPECT_TRUE(contains(page, "<p>2 packages</p>\n"
                               "<p class=\"quiet\">Folder: <bdi>season/2026</bdi></p>\n"));
    EXPECT_TRUE(contains(page, "<th scope=\"row\"><bdi>a&amp;b.xml</bdi></th>"));
    EXPECT_TRUE(contains(page, "<h3><bdi>a&amp;b.xml</bdi></h3>"));
    EXPECT_EQ(page.find("season"), page.rfind("season"));
}

TEST(ReportPage, CallsASinglePackageByItsFile) {
    const std::string page = pageOf({readingOf("/media/stick/a.xml", {})});
    EXPECT_TRUE(contains(page, "<title>Prescription report: a.xml</title>"));
    EXPECT_TRUE(contains(page, "<p><bdi>a.xml</bdi></p>\n"
                               "<p class=\"quiet\">Folder: <bdi>/media/stick</bdi></p>\n"));
}

TEST(ReportPage, SaysNothingOfFoldersWhereThereAreNone) {
    EXPECT_FALSE(contains(pageOf({readingOf("a.xml", {})}), "Folder"));
    const std::string page = pageOf({readingOf("-", {}), readingOf("season/a.xml", {})});
    EXPECT_TRUE(contains(page, "<th scope=\"row\"><bdi>standard input</bdi></th>"));
    EXPECT_TRUE(contains(page, "Folder: <bdi>season</bdi>"));
    EXPECT_TRUE(contains(pageOf({readingOf("-", {})}),
                         "<title>Prescription report: standard input</title>"));
}

TEST(ReportPage, WritesLargeNumbersInGroupsOfDigitsAndWhole) {
    const std::string page =
        pageOf({readingOf("a.xml", {growerWith({recOf(5, 1234567890123.5, "Urea")})})});
    const std::string total = "1\u202F234\u202F567\u202F890\u202F123.5";
    EXPECT_TRUE(contains(page, ">" + total + " <bdi>kg</bdi></td>"));
    EXPECT_TRUE(contains(page, "<dt>Total</dt><dd><bdi>" + total + " kg</bdi></dd>"));
}

TEST(ReportPage, BeginsWithWhatCannotBeReadAndHasNoSuchPartElse) {
    const std::string broken = pageOf({test::brokenReading("a.xml")});
    EXPECT_TRUE(contains(broken, "<main>\n<section id=\"failures\">"));
    EXPECT_TRUE(contains(broken, "<a href=\"#failures\">What cannot be read</a>"));
    const std::string whole = pageOf({readingOf("a.xml", {growerWith({})})});
    EXPECT_TRUE(contains(whole, "<main>\n<section id=\"summary\">"));
    EXPECT_FALSE(contains(whole, "failures"));
}

TEST(ReportPage, CutsNamesThatWouldFillIt) {
    const std::string name(100'000, 'x');
    QenRec rec = recOf(5, 1.0, name);
    rec.setName(name);
    rec.setTotalUom(name);
    rec.setOperationName(name);
    QenField field = test::fieldOf(3, name, {41.5, -93.25, 0.0}, {rec});
    QenFarm farm(name, test::uuid(2), test::uuid(1));
    farm.addField(field);
    QenGrower grower(name, test::uuid(1));
    grower.addFarm(farm);
    EXPECT_LT(pageOf({readingOf("a.xml", {grower})}).size(), 15'000U);
}

// NOLINTBEGIN(misc-misleading-bidirectional): they are what the test is about
TEST(ReportPage, ShowsWhatWouldTurnTheDirectionOfAnyText) {
    const std::string bad = "a\u202Eb\u2066c\u200F";
    QenRec rec = recOf(5, 1.0, bad);
    rec.setName(bad);
    rec.setTotalUom(bad);
    rec.setAreaUom(bad);
    rec.setRateUom(bad);
    rec.setOperationName(bad);
    rec.setSeasonName(bad);
    rec.setCreationDate(bad);
    rec.setEditDate(bad);
    rec.setRecDbfCol(bad);
    LLA centroid{41.5, -93.25, 0.0};
    QenField field(bad, test::uuid(3), test::uuid(1), test::uuid(2), bad, test::uuid(4),
                   test::uuid(5), centroid);
    field.addRec(rec);
    QenFarm farm(bad, test::uuid(2), test::uuid(1));
    farm.addField(field);
    QenGrower grower(bad, test::uuid(1));
    grower.addFarm(farm);
    const std::string page = pageOf({readingOf(bad + "/" + bad + ".xml", {grower})});
    for (const std::string raw : {"\u202E", "\u2066", "\u200F"})
        EXPECT_FALSE(contains(page, raw)) << page;
    const std::string shown = "a\\u{202E}b\\u{2066}c\\u{200F}";
    for (const std::string before : {"<h6><bdi>", "<h5><bdi>", "<title>\u2068", "Folder: <bdi>"})
        EXPECT_TRUE(contains(page, before + shown)) << page;
}
// NOLINTEND(misc-misleading-bidirectional)

} // namespace
