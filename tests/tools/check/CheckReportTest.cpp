/// @file
/// What the check says of an error depends on the errors before it.

#include "tools/check/CheckReport.h"

#include <string>
#include <vector>

#include <boost/uuid/uuid_io.hpp>
#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

using Texts = std::vector<std::string>;

Texts errorConsequences(const std::string& growers) {
    Texts consequences;
    for (const Finding& finding : test::findingsIn(test::package(growers))) {
        if (finding.severity() == Severity::Error)
            consequences.push_back(test::toText(finding.consequence));
    }
    return consequences;
}

TEST(CheckReport, SaysHowManyGrowersComeBeforeTheFirstError) {
    const std::string whole = test::grower(1);
    EXPECT_EQ(errorConsequences("<Grower/>"), Texts{"reading ends after 0"});
    EXPECT_EQ(errorConsequences(whole + "<Grower/>"), Texts{"reading ends after 1"});
    EXPECT_EQ(errorConsequences(whole + whole + "<Grower/>"), Texts{"reading ends after 2"});
}

TEST(CheckReport, SaysHowManyErrorsKeepReadingFromALaterOne) {
    EXPECT_EQ(
        errorConsequences("<Grower GrowerID='1'/>\n<Grower GrowerID='2'/>\n<Grower GrowerID='3'/>"),
        (Texts{"reading ends after 0", "behind error 1 since line 1",
               "behind error 2 since line 1"}));
}

TEST(CheckReport, CountsErrorsOfOneGrowerAmongThoseBefore) {
    EXPECT_EQ(errorConsequences("<Grower>\n<Farm/></Grower>\n<Grower>\n<Farm/></Grower>"),
              (Texts{"reading ends after 0", "behind error 1 since line 1 of this grower",
                     "behind error 2 since line 1", "behind error 3 since line 1"}));
}

TEST(CheckReport, SaysOfARootOfAnotherNameThatNothingIsRead) {
    EXPECT_EQ(test::findingTexts("<recpackage/>"),
              "1:1 no-recpackage /recpackage: the root element is \"recpackage\" instead of "
              "RecPackage -> nothing read\n");
}

TEST(CheckReport, NamesTheRecordsAroundAFinding) {
    const std::string nameless =
        test::grower(1, "<GrowerName/><Farm FarmID='1'><FarmName>Nord\x1b</FarmName>" +
                            test::field(3, "<FieldName>a</FieldName><x/>") + "</Farm>");
    std::string records;
    for (const RecordName& record :
         test::findingOf(test::package(nameless), FindingCode::UnknownElement).records)
        records += std::string(record.kind) + " '" + record.name + "' " +
                   (record.id ? to_string(*record.id) : "unreadable") + "\n";
    EXPECT_EQ(records, "grower '' " + test::uuidText(1) +
                           "\nfarm 'Nord\\x1B' unreadable\nfield 'a' " + test::uuidText(3) + "\n");
}

} // namespace
