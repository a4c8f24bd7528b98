#include "tools/check/ColumnCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

std::string found(const std::string& name) {
    std::string text;
    for (const Finding& finding : test::findingsOf(
             test::packageWithRec(test::element("RecDBFCol", name)), FindingCode::DbfColumn))
        text += finding.found;
    return text;
}

TEST(ColumnCheck, FindsNamesThatAreTooLong) {
    EXPECT_EQ(found("TARGET_RAT"), "");
    EXPECT_EQ(found("TARGET_RATE"), "RecDBFCol \"TARGET_RATE\" has 11 characters; the name of a "
                                    "DBF column has 10 at most");
}

TEST(ColumnCheck, CountsCharactersAsTheDbfFileMayHaveThemInOneByteEach) {
    EXPECT_EQ(found("D\u00fcngermeng"), "");
    EXPECT_NE(found("D\u00fcngermenge"), "");
}

TEST(ColumnCheck, FindsBlanks) {
    const std::string blank = "has a blank, which no name of a DBF column has";
    EXPECT_EQ(found("MY RATE"), "RecDBFCol \"MY RATE\" " + blank);
    EXPECT_EQ(found("RATE "), "RecDBFCol \"RATE \" " + blank);
    EXPECT_EQ(found("\nRATE"), "RecDBFCol \"\\nRATE\" " + blank);
}

TEST(ColumnCheck, AcceptsAllElseAndNothing) {
    for (const char* name : {"", " ", "1", "N%", "a-b", "$rate", "kg/ha"})
        EXPECT_EQ(found(name), "") << name;
}

} // namespace
