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

TEST(CsvText, KeepsFormulasFromBeingComputed) {
    for (const std::string formula : {"=1+1", "+1", "-1", "@SUM(A1)", "\t=1", "\uFF1D1"})
        EXPECT_EQ(csvText(formula), "'" + formula);
    EXPECT_EQ(csvText("\n=1"), "\"'\n=1\"");
    EXPECT_EQ(csvText("=\"a\""), "\"'=\"\"a\"\"\"");
    EXPECT_EQ(csvText("1=1"), "1=1");
}

TEST(CsvText, ReplacesControlCharactersAndWhatIsNotUtf8) {
    EXPECT_EQ(csvText("a\x1B[2J"), "a\uFFFD[2J");
    EXPECT_EQ(csvText("a\x7F\xFF"), "a\uFFFD\uFFFD");
}

} // namespace
