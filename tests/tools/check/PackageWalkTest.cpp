/// @file
/// The walk through a package finds things in the order of their places and hands each on at once.

#include "tools/check/PackageWalk.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/RandomPackage.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/check/Findings.h"
#include "tools/check/PackageCheck.h"

namespace fs = std::filesystem;

namespace {

bool isBefore(const Position& a, const Position& b) {
    return a.line < b.line || (a.line == b.line && a.column < b.column);
}

void expectInOrder(const std::string& text) {
    std::optional<Position> last;
    std::string texts;
    for (const Finding& finding : test::findingsIn(text)) {
        texts += test::toText(finding) + "\n";
        // What is about the file as a whole comes first.
        ASSERT_TRUE(finding.location || !last) << texts;
        ASSERT_FALSE(last && isBefore(finding.location->begin, *last)) << texts << text;
        last = finding.location ? std::optional(finding.location->begin) : std::nullopt;
    }
}

TEST(PackageWalk, FindsInTheOrderOfTheFileInRandomPackages) {
    std::mt19937 random(5); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same packages every time
    for (int i = 0; i < 600; ++i)
        ASSERT_NO_FATAL_FAILURE(expectInOrder(test::randomPackage(random))) << "package " << i;
}

TEST(PackageWalk, FindsInTheOrderOfTheFileInMutatedPackages) {
    std::mt19937 random(6); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same packages every time
    for (int i = 0; i < 600; ++i)
        ASSERT_NO_FATAL_FAILURE(expectInOrder(test::mutated(test::randomPackage(random), random)))
            << "package " << i;
}

TEST(PackageWalk, FindsInTheOrderOfTheFileInEverySample) {
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(test::inSources("examples/packages"))) {
        if (entry.path().extension() != ".xml")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        ASSERT_NO_FATAL_FAILURE(expectInOrder(text.str())) << entry.path();
    }
}

/// The codes of what is found in a package, in their order.
std::string codesIn(const std::string& text) {
    std::string codes;
    for (const Finding& finding : test::findingsIn(text))
        codes += std::string(codes.empty() ? "" : " ") + kindOf(finding.code).code;
    return codes;
}

TEST(PackageWalk, FindsOddRatesWhereTheyStand) {
    EXPECT_EQ(codesIn(test::packageWithRec(
                  "<RecStats><x/><MinimumRate>3</MinimumRate><MaximumRate>1</MaximumRate>"
                  "<y/></RecStats><RecData/>")),
              "empty-name empty-name empty-name centroid-zero empty-name recstats-incomplete "
              "unknown-element rate-order rate-without-unit unknown-element no-product");
}

TEST(PackageWalk, FindsAnOddCentroidBeforeWhatIsInIt) {
    EXPECT_EQ(codesIn(test::packageWithField("<FieldName>a</FieldName><FieldCentroid z='1'>"
                                             "<Latitude>91</Latitude><x/></FieldCentroid>")),
              "empty-name empty-name centroid-zero unknown-attribute centroid-range "
              "unknown-element");
}

TEST(PackageWalk, FindsAnEmptyNameWhereItStands) {
    EXPECT_EQ(codesIn(test::packageWithField("<Remark/><FieldName/><x/>")),
              "empty-name empty-name centroid-zero unknown-element empty-name unknown-element");
    // Among the items of a list a name is read as an item, and as the name.
    EXPECT_EQ(codesIn(test::package(test::grower(1, test::farm(2) + "<GrowerName/>"))),
              "empty-name empty-name element-after-list");
}

TEST(PackageWalk, FindsNamesOfWhichNothingIsSeen) {
    const auto found = [](const std::string& name) {
        const std::string text = test::packageWithRec("<RecName>" + name + "</RecName><RecData/>");
        for (const Finding& finding : test::findingsOf(text, FindingCode::EmptyName)) {
            if (finding.path.find("/RecName") != std::string::npos)
                return finding.found;
        }
        return std::string();
    };
    EXPECT_EQ(found(" "), "RecName is empty");
    EXPECT_EQ(found("<![CDATA[ ]]>"), "RecName \" \" shows nothing");
    EXPECT_EQ(found("&#32;&#9;"), "RecName \" \\t\" shows nothing");
    EXPECT_EQ(found("\u00a0"), "RecName \"\u00a0\" shows nothing");
    EXPECT_EQ(found("&#xAD;&#x200B;"), "RecName \"\\u{00AD}\\u{200B}\" shows nothing");
    EXPECT_EQ(found("\u00a0-"), "");
}

TEST(PackageWalk, FindsWhatAnIdentifierMeansWhereItStands) {
    const std::string id = test::uuidText(3);
    const std::string field = test::element("FieldGeometryID", id) +
                              test::element("FieldGeometry", id) + "<FieldName>a</FieldName>";
    const std::string nil = "00000000-0000-0000-0000-000000000000";
    EXPECT_EQ(
        codesIn(test::package(test::grower(
            1, test::farm(2, test::field(3, "<FieldName>a</FieldName>") + "<Field a='' FieldID='" +
                                 id + "' b=''>" + field + "</Field>")))),
        "empty-name empty-name centroid-zero centroid-zero unknown-attribute "
        "duplicate-field unknown-attribute");
    EXPECT_EQ(codesIn(test::packageWithRec("<RecName>a</RecName><Operation a='' OpID='" + nil +
                                           "' b=''/><Season a='' SeasonID='-1' b=''/>")),
              "empty-name empty-name empty-name centroid-zero no-product no-recstats "
              "unknown-attribute operation-nil unknown-attribute unknown-attribute "
              "season-negative unknown-attribute");
}

TEST(PackageWalk, FindsRootsBehindThePackageAfterIt) {
    EXPECT_EQ(test::findingTexts("<a/><RecPackage/><a/><b/><RecPackage/><a/>"),
              "1:1 unknown-element /a: \"a\" stands beside RecPackage -> dropped a\n"
              "1:5 no-grower /RecPackage: RecPackage holds no Grower -> nothing read\n"
              "1:5 refused-by-others : something follows the root element -> kept\n"
              "1:18 unknown-element /a[2]: \"a\" stands beside RecPackage -> dropped a\n"
              "1:22 unknown-element /b: \"b\" stands beside RecPackage -> dropped b\n"
              "1:26 unknown-element /RecPackage[2]: \"RecPackage\" stands beside RecPackage -> "
              "dropped RecPackage\n"
              "1:39 unknown-element /a[3]: \"a\" stands beside RecPackage -> dropped a\n");
}

/// Notes how many findings are on their way.
class Traffic : public FindingSink {
public:
    bool wants(FindingCode) const override {
        ++asked;
        most = std::max(most, asked - added);
        return true;
    }
    void add(const Finding&) override { ++added; }

    mutable std::size_t asked = 0;
    std::size_t added = 0;
    mutable std::size_t most = 0;
};

TEST(PackageWalk, HandsOnEachFindingAtOnce) {
    // There may be more findings than fit into memory, in one element, too.
    std::string attributes;
    std::string elements;
    for (int i = 0; i < 1000; ++i) {
        attributes += " a" + std::to_string(i) + "=''";
        elements += "<x/>text<RecName y=''/>";
    }
    const test::TemporaryFolder folder;
    Traffic traffic;
    checkPackage(
        folder.writePackage(test::packageWithRec("<RecStats" + attributes + "/>" + elements)),
        traffic);
    EXPECT_GT(traffic.added, 4000U);
    EXPECT_EQ(traffic.asked, traffic.added);
    EXPECT_EQ(traffic.most, 1U);
}

} // namespace
