#include "tools/export/ExportCsv.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(CsvText, QuotesWhatSeparatesCells) {
    EXPECT_EQ(csvText("plain"), "plain");
    EXPECT_EQ(csvText("a,b"), "\"a,b\"");
    EXPECT_EQ(csvText("a \"b\""), "\"a \"\"b\"\"\"");
    EXPECT_EQ(csvText("a\nb"), "\"a\nb\"");
    EXPECT_EQ(csvText("a\rb"), "\"a\rb\"");
    EXPECT_EQ(csvText(""), "");
}

TEST(CsvText, QuotesWhatSeparatesCellsForSomePrograms) {
    EXPECT_EQ(csvText("a;b"), "\"a;b\"");
    EXPECT_EQ(csvText("a\tb"), "\"a\tb\"");
}

TEST(CsvText, QuotesWhatSomeProgramsSkipAtTheEdgeOfACell) {
    EXPECT_EQ(csvText(" a"), "\" a\"");
    EXPECT_EQ(csvText("a "), "\"a \"");
    EXPECT_EQ(csvText("\u00A0a"), "\"\u00A0a\"");
    EXPECT_EQ(csvText("\u200Ba"), "\"\u200Ba\"");
}

TEST(CsvText, KeepsFormulasFromBeingComputed) {
    for (const std::string formula :
         {"=1+1", "+1", "-1", "@SUM(A1)", "\uFF1D1", "\uFF0B1", "\uFF0D1", "\uFF20A", "\uFE661",
          "\uFE621", "\uFE631", "\uFE6BA"})
        EXPECT_EQ(csvText(formula), "'" + formula);
    EXPECT_EQ(csvText("=\"a\""), "\"'=\"\"a\"\"\"");
    EXPECT_EQ(csvText("1=1"), "1=1");
    EXPECT_EQ(csvText("'=1"), "'=1");
    EXPECT_EQ(csvText("a -1, b +2"), "\"a -1, b +2\"");
}

TEST(CsvText, KeepsFormulasFromBeingComputedBehindWhatIsSkipped) {
    for (const std::string skipped :
         {" ",      "   ",    "\t",     "\n",     "\r\n",          "\u00A0",    "\u00AD", "\u1680",
          "\u2003", "\u200B", "\u200D", "\u200E", "\u2028",        "\u202F",    "\u2060", "\u3000",
          "\u3164", "\uFE0F", "\uFEFF", "\u180B", "\u00A0\u200B ", "\U000E0020"})
        EXPECT_EQ(csvText(skipped + "=1"), "\"" + skipped + "'=1\"");
    EXPECT_EQ(csvText("\"=1\""), "\"\"\"'=1\"\"\"");
}

TEST(CsvText, KeepsFormulasFromBeingComputedWhereOtherProgramsBeginACell) {
    for (const std::string separator : {";", "\t", "\n", "\r"})
        EXPECT_EQ(csvText("x" + separator + "=cmd"), "\"x" + separator + "'=cmd\"");
    EXPECT_EQ(csvText("x; \u200B@A"), "\"x; \u200B'@A\"");
    EXPECT_EQ(csvText("x;\"=cmd"), "\"x;\"\"'=cmd\"");
    EXPECT_EQ(csvText("=1;+2;3-4;-5"), "\"'=1;'+2;3-4;'-5\"");
}

TEST(CsvText, ReplacesControlCharactersAndWhatIsNotUtf8) {
    EXPECT_EQ(csvText("a\x1B[2J"), "a\uFFFD[2J");
    EXPECT_EQ(csvText("a\x7F\xFF"), "a\uFFFD\uFFFD");
    EXPECT_EQ(csvText("a\xC2\x80\xC2\x9B\xC2\x9F\xC2\xA0z"), "a\uFFFD\uFFFD\uFFFD\u00A0z");
}

} // namespace
