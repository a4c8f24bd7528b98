#include "tools/check/DateCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

using test::element;

/// What is found about the dates of a rec.
std::string found(const std::string& created, const std::string& edited) {
    std::string text;
    for (const Finding& finding : test::findingsIn(test::packageWithRec(
             element("EditDate", edited) + element("CreationDate", created)))) {
        if (finding.code == FindingCode::NotADate || finding.code == FindingCode::DateOrder)
            text += std::string(kindOf(finding.code).code) + ": " + finding.found + "\n";
    }
    return text;
}

TEST(DateCheck, FindsTextsThatAreNoDates) {
    EXPECT_EQ(found("2026-02-30", "soon"),
              "not-a-date: EditDate \"soon\" holds no date\n"
              "not-a-date: CreationDate \"2026-02-30\" is no day or time that there is\n");
    EXPECT_EQ(test::findingOf(test::packageWithField("<FieldGeometryDate>?</FieldGeometryDate>"),
                              FindingCode::NotADate)
                  .found,
              "FieldGeometryDate \"?\" holds no date");
}

TEST(DateCheck, TakesDatesInAnySpellingAndNone) {
    EXPECT_EQ(found("11/20/2026", "20.11.2026 10:15"), "");
    EXPECT_EQ(found("", " "), "");
}

TEST(DateCheck, FindsARecThatWasEditedBeforeItWasCreated) {
    EXPECT_EQ(found("2026-02-20T10:00:00", "2026-02-20T09:59:59"),
              "date-order: EditDate \"2026-02-20T09:59:59\" is before CreationDate "
              "\"2026-02-20T10:00:00\"\n");
    EXPECT_EQ(found("2026-02-20T10:00:00", "2026-02-20T10:00:00"), "");
    EXPECT_EQ(found("2026-02-20T10:00:00", "2026-02-20"), "");
    EXPECT_EQ(found("20.02.2026", "2026-02-19"), "");
    EXPECT_EQ(found("2026-02-20", ""), "");
}

} // namespace
