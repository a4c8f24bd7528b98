#include "tools/check/ElementCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

const std::string canonical = "00112233-4455-6677-8899-aabbccddeeff";

Finding findingInStatistics(const std::string& content, FindingCode code) {
    return test::findingOf(test::packageWithRec("\n<RecStats>" + content + "</RecStats>"), code);
}

TEST(ElementCheck, PointsAtAnIndentedNumberAndNotAtTheLineBreakBeforeIt) {
    for (const std::string lineEnd : {"\n", "\r\n", "\r"}) {
        const std::string value = lineEnd + "   n/a" + lineEnd;
        const Finding finding =
            findingInStatistics(test::element("Total", value), FindingCode::NotANumber);
        EXPECT_EQ(finding.location->begin.line, 3U);
        EXPECT_EQ(finding.location->begin.column, 4U);
        EXPECT_EQ(test::excerptOf(finding), "   n/a\n   ^");
        EXPECT_EQ(finding.found, "Total \"n/a\" is not a number");
    }
}

TEST(ElementCheck, PointsAtThePlaceInANumberHoweverItIsWritten) {
    EXPECT_EQ(
        test::excerptOf(
            findingInStatistics("<Total>\r\n\r\n  12,5</Total>", FindingCode::NumberCutOff)),
        "  12,5</Total></RecStats></Rec></Recommendations></Field></Farm></Grower></RecPackage>\n"
        "    ^");
    const std::string text = "<RecStats><Total>&#49;&#x32;,5</Total></RecStats>";
    const Finding numbered =
        findingInStatistics("<Total>&#49;&#x32;,5</Total>", FindingCode::NumberCutOff);
    EXPECT_EQ(numbered.location->excerpt.caret, text.find(','));
}

TEST(ElementCheck, SaysOfANumberThatIsNotThereThatItsElementIsEmpty) {
    const Finding finding = findingInStatistics("<Total note=''/>", FindingCode::NumberEmpty);
    EXPECT_EQ(test::excerptOf(finding).substr(0, 27), "<RecStats><Total note=''/><");
    EXPECT_EQ(finding.location->excerpt.caret, 10U);
    EXPECT_EQ(finding.found, "Total is empty");
}

TEST(ElementCheck, QuotesNoHalfOfACharacterBehindAnIdentifier) {
    // The last digit is the first byte of a character of two.
    const Finding finding = test::findingOf(
        test::package("\n<Grower GrowerID='" + canonical.substr(0, 35) + "\u00e9 x'/>"),
        FindingCode::IdentifierTrailing);
    EXPECT_EQ(finding.found, "GrowerID goes on with \"\u00e9 x\" after its last digit");
    EXPECT_EQ(finding.location->begin.column, 19U + 35U);
    EXPECT_EQ(test::excerptOf(finding), "<Grower GrowerID='" + canonical.substr(0, 35) +
                                            "\u00e9 x'/></RecPackage>\n" +
                                            std::string(18 + 35, ' ') + "^");
}

TEST(ElementCheck, CountsCharactersThatAreNoDigitsAndNotTheirBytes) {
    const auto found = [](const std::string& id) {
        return test::findingOf(test::package("<Grower GrowerID='" + id + "'/>"),
                               FindingCode::IdentifierDigit)
            .found;
    };
    EXPECT_EQ(found("\u00e9" + canonical.substr(2)),
              "GrowerID \"\u00e9" + canonical.substr(2) + "\": \"\u00e9\" is no hexadecimal digit");
    EXPECT_EQ(found("gh" + canonical.substr(2)),
              "GrowerID \"gh" + canonical.substr(2) +
                  "\": \"g\" is no hexadecimal digit, nor is 1 more");
    EXPECT_EQ(found("\u00e9gh" + canonical.substr(4)),
              "GrowerID \"\u00e9gh" + canonical.substr(4) +
                  "\": \"\u00e9\" is no hexadecimal digit, nor are 2 more");
}

TEST(ElementCheck, SaysThatAnIdentifierIsNilBeforeWhatFollowsIt) {
    const std::string nil = "00000000-0000-0000-0000-000000000000";
    const std::string texts = test::findingTexts(
        test::package("<Grower GrowerID='" + nil + "x'><GrowerName>a</GrowerName></Grower>"));
    EXPECT_EQ(texts, "1:31 nil-identifier /RecPackage/Grower[1]/@GrowerID: GrowerID is nil, which "
                     "stands for \"none\" -> kept\n"
                     "1:67 identifier-trailing /RecPackage/Grower[1]/@GrowerID: GrowerID goes on "
                     "with \"x\" after its last digit -> read as " +
                         nil + "\n");
}

TEST(ElementCheck, SuggestsNoNameOfAnElementThatIsThereAlready) {
    const auto found = [](const std::string& content, FindingCode code) {
        return test::findingOf(test::packageWithField(test::element("FieldCentroid", content)),
                               code)
            .found;
    };
    EXPECT_EQ(found("<Latitude>1</Latitude><Longitude>1</Longitude><Altitude>7</Altitude>",
                    FindingCode::UnknownElement),
              "\"Altitude\" is not read in FieldCentroid");
    EXPECT_EQ(found("<Altitude>7</Altitude><Latitude>1</Latitude>", FindingCode::UnknownElement),
              "\"Altitude\" is not read in FieldCentroid");
    EXPECT_EQ(found("<latitude>7</latitude><Longitude>1</Longitude>", FindingCode::MisspeltElement),
              "\"latitude\" is not read in FieldCentroid; is Latitude meant?");
}

TEST(ElementCheck, SuggestsTheNameOfTheItemsOfAListHoweverManyThereAre) {
    EXPECT_EQ(test::findingOf(test::package("<grower/>" + test::grower(1)), FindingCode::BeforeList)
                  .found,
              "\"grower\" is not read in RecPackage; is Grower meant?");
}

TEST(ElementCheck, SuggestsNoNameOfAnAttributeThatIsThereAlready) {
    const auto found = [](const std::string& attributes, FindingCode code) {
        return test::findingOf(test::packageWithRec("<Season " + attributes + "/>"), code).found;
    };
    EXPECT_EQ(found("SeasonID='1' SeasonId='2'", FindingCode::UnknownAttribute),
              "\"SeasonId\" is no attribute of Season");
    EXPECT_EQ(found("SeasonId='2' SeasonID='1'", FindingCode::UnknownAttribute),
              "\"SeasonId\" is no attribute of Season");
    EXPECT_EQ(found("SeasonId='2'", FindingCode::MisspeltAttribute),
              "\"SeasonId\" is no attribute of Season; is SeasonID meant?");
}

TEST(ElementCheck, FindsEveryAttributeThatIsRepeated) {
    EXPECT_EQ(test::findingTexts(
                  test::package("<Grower GrowerID='" + canonical +
                                "' GrowerID='2' GrowerID='3'><GrowerName>a</GrowerName></Grower>")),
              "1:69 repeated-attribute /RecPackage/Grower[1]/@GrowerID: GrowerID is repeated -> "
              "dropped 2\n"
              "1:82 repeated-attribute /RecPackage/Grower[1]/@GrowerID: GrowerID is repeated -> "
              "dropped 3\n");
}

TEST(ElementCheck, ReadsTheFirstPieceOfATextThatIsInSeveral) {
    const auto cut = [](const std::string& value) {
        const Finding finding =
            findingInStatistics("<RateUOM>" + value + "</RateUOM>", FindingCode::TextCutOff);
        return finding.location->excerpt.line.substr(19, finding.location->excerpt.caret - 19) +
               " | " + finding.found + " -> " + test::toText(finding.consequence);
    };
    EXPECT_EQ(cut("kg<!-- per -->/ha"),
              "kg<!-- per --> | RateUOM is more than one piece of text: its text goes on with "
              "\"/ha\" -> read as kg");
    EXPECT_EQ(cut("kg<![CDATA[/ha]]>"),
              "kg<![CDATA[ | RateUOM is more than one piece of text: its text goes on with \"/ha\" "
              "-> read as kg");
    EXPECT_EQ(cut("<![CDATA[kg]]>/ha"),
              "<![CDATA[kg]]> | RateUOM is more than one piece of text: its text goes on with "
              "\"/ha\" -> read as kg");
    EXPECT_EQ(cut("kg<b>/</b>ha"), "kg | RateUOM is more than one piece of text: it holds the "
                                   "element \"b\" -> read as kg");
    EXPECT_EQ(cut("<b>/</b>ha"), " | RateUOM is more than one piece of text: it holds the element "
                                 "\"b\" -> read as ha");
}

TEST(ElementCheck, ReadsANumberFromTheFirstPieceOfItsText) {
    const auto texts = [](const std::string& value) {
        std::string codes;
        for (const Finding& finding : test::findingsIn(test::packageWithRec(
                 "<RecStats><Total>" + value + "</Total><TotalUOM>kg</TotalUOM></RecStats>"))) {
            if (finding.path.find("/Total") != std::string::npos)
                codes += std::string(kindOf(finding.code).code) + ": " +
                         test::toText(finding.consequence) + "\n";
        }
        return codes;
    };
    EXPECT_EQ(texts("1<!-- ,5 -->2"), "text-cut-off: read as 1\n");
    EXPECT_EQ(texts("<![CDATA[12]]>"), "");
    EXPECT_EQ(texts("<![CDATA[1,]]>2"), "number-cut-off: read as 1\n"
                                        "text-cut-off: read as 1,\n");
    EXPECT_EQ(texts("<b/>1,2"), "text-cut-off: read as 1,2\n"
                                "number-cut-off: read as 1\n");
}

TEST(ElementCheck, CoversWhatIsWrong) {
    const auto covered = [](const std::string& content, FindingCode code) {
        const std::string text = test::packageWithRec(content);
        const Extent extent = test::findingOf(text, code).location->extent;
        return text.substr(extent.offset, extent.length);
    };
    const auto inStatistics = [&](const std::string& content, FindingCode code) {
        return covered("<RecStats>" + content + "</RecStats>", code);
    };
    EXPECT_EQ(covered("<Remark a='>'>x</Remark>", FindingCode::UnknownElement), "<Remark a='>'>");
    EXPECT_EQ(covered("<RecStats> a &amp;\n b </RecStats>", FindingCode::StrayText), "a &amp;\n b");
    EXPECT_EQ(covered("<Season SeasonID='1' x='2'/>", FindingCode::UnknownAttribute), "x");
    EXPECT_EQ(covered("<Season/>", FindingCode::SeasonWithoutId), "<Season/>");
    EXPECT_EQ(covered("<Season SeasonID=' n/a'/>", FindingCode::NotANumber), "n/a");
    EXPECT_EQ(covered("<Season SeasonID=''/>", FindingCode::NumberEmpty), "");
    EXPECT_EQ(inStatistics("<Total>\r\n 12,&#53; \r\n</Total>", FindingCode::NumberCutOff),
              ",&#53;");
    EXPECT_EQ(inStatistics("<Total><![CDATA[&amp;]]></Total>", FindingCode::NotANumber), "&amp;");
    EXPECT_EQ(inStatistics("<Total><![CDATA[12,&]]></Total>", FindingCode::NumberCutOff), ",&");
    EXPECT_EQ(inStatistics("<Total/>", FindingCode::NumberEmpty), "<Total/>");
    EXPECT_EQ(inStatistics("<RateUOM>kg<b>/ha</b></RateUOM>", FindingCode::TextCutOff), "<b>");
    EXPECT_EQ(covered("<Operation OpID='" + canonical + " x'/>", FindingCode::IdentifierTrailing),
              " x");
    EXPECT_EQ(covered("<Operation OpID='&#103;" + canonical.substr(1) + "'/>",
                      FindingCode::IdentifierDigit),
              "&#103;");
    EXPECT_EQ(covered("<Operation OpID='0011'/>", FindingCode::OperationId), "");
    EXPECT_EQ(covered("<Operation OpID='{" + canonical + " x'/>", FindingCode::OperationId), " x");
}

} // namespace
