/// @file
/// What the check says of an error depends on the errors before it.

#include "tools/check/CheckReport.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

std::vector<std::string> errorConsequences(const std::string& growers) {
    std::vector<std::string> consequences;
    for (const Finding& finding : test::findingsIn(test::package(growers))) {
        if (finding.severity == Severity::Error)
            consequences.push_back(finding.consequence);
    }
    return consequences;
}

TEST(CheckReport, SaysHowManyGrowersComeBeforeTheFirstError) {
    const std::string whole = test::grower(1);
    using Texts = std::vector<std::string>;
    EXPECT_EQ(errorConsequences("<Grower/>"),
              Texts{"this grower and the rest of the file are not read; no grower is"});
    EXPECT_EQ(errorConsequences(whole + "<Grower/>"),
              Texts{"this grower and the rest of the file are not read; the grower before it is"});
    EXPECT_EQ(
        errorConsequences(whole + whole + "<Grower/>"),
        Texts{"this grower and the rest of the file are not read; the 2 growers before it are"});
}

TEST(CheckReport, SaysOfAThirdErrorThatTwoHaveToBeMendedBeforeReadingEndsThere) {
    const std::vector<std::string> consequences =
        errorConsequences("<Grower GrowerID='1'/>\n<Grower GrowerID='2'/>\n<Grower GrowerID='3'/>");
    ASSERT_EQ(consequences.size(), 3U);
    EXPECT_EQ(consequences[1],
              "reading ends before this, because of line 1; once that is mended, it ends here");
    EXPECT_EQ(consequences[2], "reading ends before this, because of line 1; once the 2 errors "
                               "before it are mended, it ends here");
}

TEST(CheckReport, CountsErrorsOfOneGrowerAmongThoseBefore) {
    const std::vector<std::string> consequences =
        errorConsequences("<Grower>\n<Farm/></Grower>\n<Grower>\n<Farm/></Grower>");
    ASSERT_EQ(consequences.size(), 4U);
    EXPECT_EQ(consequences[1],
              "this grower is not read because of line 1; it is not enough to mend that alone");
    EXPECT_EQ(consequences[2], "reading ends before this, because of line 1; once the 2 errors "
                               "before it are mended, it ends here");
    EXPECT_EQ(consequences[3], "reading ends before this, because of line 1; once the 3 errors "
                               "before it are mended, it ends here");
}

TEST(CheckReport, SaysOfARootOfAnotherNameThatNothingIsRead) {
    EXPECT_EQ(test::findingTexts("<recpackage/>"),
              "1:1 no-recpackage /recpackage: the root element is \"recpackage\" instead of "
              "RecPackage -> nothing of the file is read\n");
}

TEST(CheckReport, NamesTheRecordsAroundAFinding) {
    const std::string nameless = test::grower(
        1, "<GrowerName/>" + test::farm(2, "<FarmName>Nord\x1b</FarmName>" +
                                               test::field(3, "<FieldName>a</FieldName><x/>")));
    EXPECT_EQ(test::findingOf(test::package(nameless), "unknown-element").records,
              "farm \"Nord\\x1B\", field \"a\"");
}

} // namespace
