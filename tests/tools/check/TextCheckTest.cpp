#include "tools/check/TextCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/check/Findings.h"

namespace {

using test::consequenceOf;
using test::findingOf;
using test::findingTexts;
using test::packageWithRec;

const std::string path = "/RecPackage/Grower[1]/Farm[1]/Field[1]/Recommendations/Rec[1]";

TEST(TextCheck, FindsReferencesThatEndAValue) {
    const std::string content = packageWithRec("\n<RecStats><Total>15&#0;620</Total></RecStats>");
    const Finding finding = findingOf(content, FindingCode::ReferenceToNul);
    EXPECT_EQ(finding.path, path + "/RecStats/Total");
    EXPECT_EQ(finding.location->extent.length, 4U);
    EXPECT_EQ(finding.location->begin.column, 20U);
    EXPECT_EQ(finding.location->end.column, 24U);
    EXPECT_EQ(consequenceOf(content, FindingCode::ReferenceToNul), "read as 15");
}

TEST(TextCheck, FindsReferencesThatStandForNoCharacter) {
    EXPECT_EQ(consequenceOf(packageWithRec("<RecName>a&#xD800;</RecName>"),
                            FindingCode::ReferenceToNoCharacter),
              "kept");
}

TEST(TextCheck, FindsReferencesThatStand) {
    EXPECT_EQ(consequenceOf(packageWithRec("<RecName>Fazenda &ha;</RecName>"),
                            FindingCode::ReferenceUnknown),
              "read as &ha;");
}

TEST(TextCheck, FindsControlCharactersAsTheyAreAndAsReferences) {
    for (const std::string text :
         {"\x01", "\x7F", "\u0080", "\u009F", "&#1;", "&#x7F;", "&#x9F;", "\xC2\x85"})
        EXPECT_EQ(consequenceOf(packageWithRec("<RecName>a" + text + "</RecName>"),
                                FindingCode::ControlCharacter),
                  "kept");
    EXPECT_EQ(
        findingOf(packageWithRec("<RecName>a\x1b</RecName>"), FindingCode::ControlCharacter).found,
        "the value holds the control character \\x1B");
    const Finding dash =
        findingOf(packageWithRec("<RecName>a\u0096</RecName>"), FindingCode::ControlCharacter);
    EXPECT_EQ(dash.found, "the value holds the control character \\u{0096}");
    EXPECT_EQ(dash.location->extent.length, 2U);
}

TEST(TextCheck, LooksAtAttributes) {
    EXPECT_EQ(
        findingOf(packageWithRec("<Season SeasonID=\"&x;\"/>"), FindingCode::ReferenceUnknown).path,
        path + "/Season/@SeasonID");
}

TEST(TextCheck, FindsNothingInReferencesThatEveryReaderFollows) {
    const std::string findings = findingTexts(
        packageWithRec("<RecName>a &amp; b &#233;\u00A0\u00BF\t\r\n&#x1F33E;</RecName>"));
    for (const std::string word : {"reference", "control"})
        EXPECT_EQ(findings.find(word), std::string::npos) << findings;
}

TEST(TextCheck, FindsNoReferencesWhereThereAreNone) {
    const std::string findings =
        findingTexts(packageWithRec("<RecName><![CDATA[a &ha; &#0;]]></RecName>"));
    EXPECT_EQ(findings.find("reference"), std::string::npos) << findings;
}

TEST(TextCheck, LooksForControlCharactersInCdataSections) {
    EXPECT_EQ(findingOf(packageWithRec("<RecName><![CDATA[a\u0085]]></RecName>"),
                        FindingCode::ControlCharacter)
                  .found,
              "the value holds the control character \\u{0085}");
}

} // namespace
