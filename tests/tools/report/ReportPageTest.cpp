#include "tools/report/ReportPage.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Uuids.h"

namespace {

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

QenRec recOf(unsigned number, double total, const std::string& product) {
    QenRec rec;
    rec.setId(test::uuid(number));
    rec.setTotal(total);
    rec.setTotalUom("kg");
    if (!product.empty())
        rec.setRecData(new CommercialFertilizerRec(test::uuid(number), 7, product, 1, "kg"));
    return rec;
}

QenGrower growerWith(const std::vector<QenRec>& recs) {
    QenField field("Field", test::uuid(3), test::uuid(1), test::uuid(2));
    for (const QenRec& rec : recs)
        field.addRec(rec);
    QenFarm farm("Farm", test::uuid(2), test::uuid(1));
    farm.addField(field);
    QenGrower grower("Grower", test::uuid(1));
    grower.addFarm(farm);
    return grower;
}

ReportPackage packageOf(const std::string& name, const std::vector<QenGrower>& growers) {
    ReportPackage package;
    package.reading.name = name;
    package.reading.growers = growers;
    package.counts = countRecords(package.reading.growers);
    return package;
}

/// The page without its style.
std::string pageOf(std::vector<ReportPackage> packages) {
    std::string page;
    writeReport(packages, [&page](std::string_view text) { page += text; });
    const std::size_t begin = page.find("<style>");
    return page.erase(begin, page.find("</style>") - begin);
}

TEST(ReportPage, NamesTheFolderOnceAndTheFilesWithoutIt) {
    const std::string page = pageOf({packageOf("season/2026/a&b.xml", {growerWith({})}),
                                     packageOf("season/2026/c.xml", {growerWith({})})});
    EXPECT_TRUE(contains(page, "<p>2 packages</p>\n"
                               "<p class=\"quiet\">Folder: <bdi>season/2026</bdi></p>\n"));
    EXPECT_TRUE(contains(page, "<th scope=\"row\"><bdi>a&amp;b.xml</bdi></th>"));
    EXPECT_TRUE(contains(page, "<h3><bdi>c.xml</bdi></h3>"));
    EXPECT_EQ(page.find("season"), page.rfind("season"));
}

TEST(ReportPage, CallsASinglePackageByItsFile) {
    const std::string page = pageOf({packageOf("/media/stick/a.xml", {})});
    EXPECT_TRUE(contains(page, "<title>Prescription report: a.xml</title>"));
    EXPECT_TRUE(contains(page, "<p><bdi>a.xml</bdi></p>\n"
                               "<p class=\"quiet\">Folder: <bdi>/media/stick</bdi></p>\n"));
}

TEST(ReportPage, SaysNothingOfFoldersWhereThereAreNone) {
    EXPECT_FALSE(contains(pageOf({packageOf("a.xml", {})}), "Folder"));
    const std::string page = pageOf({packageOf("-", {}), packageOf("season/a.xml", {})});
    EXPECT_TRUE(contains(page, "<th scope=\"row\">standard input</th>"));
    EXPECT_TRUE(contains(page, "Folder: <bdi>season</bdi>"));
    EXPECT_TRUE(contains(pageOf({packageOf("-", {})}),
                         "<title>Prescription report: standard input</title>"));
}

TEST(ReportPage, SumsUpRecsWithoutProductDataInTheLastRow) {
    const std::string page =
        pageOf({packageOf("a.xml", {growerWith({recOf(5, 1.0, ""), recOf(6, 2.0, "Urea")})})});
    EXPECT_LT(page.find("<th scope=\"row\"><bdi>Urea</bdi>"),
              page.find("<th scope=\"row\">no product data</th>"));
    EXPECT_TRUE(contains(page, "<th scope=\"row\">no product data</th>"));
}

TEST(ReportPage, WritesLargeNumbersInGroupsOfDigitsAndWhole) {
    const std::string page =
        pageOf({packageOf("a.xml", {growerWith({recOf(5, 1234567890123.5, "Urea")})})});
    const std::string total = "1\u202F234\u202F567\u202F890\u202F123.5";
    EXPECT_TRUE(contains(page, ">" + total + " <bdi>kg</bdi></td>"));
    EXPECT_TRUE(contains(page, "<dt>Total</dt><dd><bdi>" + total + " kg</bdi></dd>"));
}

TEST(ReportPage, SaysThatThereAreNoProblems) {
    EXPECT_TRUE(contains(pageOf({packageOf("a.xml", {})}), "<p>No problems were found.</p>"));
}

TEST(ReportPage, PutsTheWorstFindingsFirst) {
    ReportPackage package = packageOf("a.xml", {});
    const auto add = [&](FindingCode code, const std::string& found) {
        package.findings.add({code, found, Kept{}});
    };
    add(FindingCode::EmptyName, "third");
    add(FindingCode::RecId, "first");
    add(FindingCode::NotANumber, "second");
    const std::string page = pageOf({package});
    EXPECT_LT(page.find("<li class=\"error\"><p><strong>Error</strong>: first</p>"),
              page.find("<li class=\"warning\"><p><strong>Warning</strong>: second</p>"));
    EXPECT_LT(page.find("second"), page.find("<li class=\"note\"><p><strong>Note</strong>: third"));
    EXPECT_TRUE(contains(page, "<p>Consequence: hosts can show no name</p>"));
    EXPECT_TRUE(contains(page, "<p>What to do: Write the name.</p>"));
}

TEST(ReportPage, CountsTheFindingsThatItDoesNotShow) {
    ReportPackage package = packageOf("a.xml", {});
    for (int i = 0; i < 12; ++i) {
        if (package.findings.wants(FindingCode::EmptyName))
            package.findings.add({FindingCode::EmptyName, "nameless", Kept{}});
        else
            package.findings.addCode(FindingCode::EmptyName);
    }
    EXPECT_TRUE(contains(pageOf({package}), "<p>2 findings more not shown;"));
}

// Both are kept together on paper.
TEST(ReportPage, PutsThePlaceOfAFieldUnderItsHeading) {
    EXPECT_TRUE(contains(pageOf({packageOf("a.xml", {growerWith({recOf(5, 1.0, "")})})}),
                         "<h5><bdi>Field</bdi></h5>\n<p class=\"place\"><span class=\"id\">"));
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
    const std::string page = pageOf({packageOf(bad + "/" + bad + ".xml", {grower})});
    for (const std::string raw : {"\u202E", "\u2066", "\u200F"})
        EXPECT_FALSE(contains(page, raw)) << page;
    const std::string shown = "a\\u{202E}b\\u{2066}c\\u{200F}";
    for (const std::string before : {"<h6><bdi>", "<h5><bdi>", "<title>\u2068", "Folder: <bdi>"})
        EXPECT_TRUE(contains(page, before + shown)) << page;
}
// NOLINTEND(misc-misleading-bidirectional)

} // namespace
