#include "tools/text/Words.h"

#include <gtest/gtest.h>

namespace {

TEST(Words, AreInThePluralForAllNumbersButOne) {
    EXPECT_EQ(plural(0, "rec"), "recs");
    EXPECT_EQ(plural(1, "rec"), "rec");
    EXPECT_EQ(quantity(1, "rec"), "1 rec");
    EXPECT_EQ(quantity(1234567, "rec"), "1,234,567 recs");
    EXPECT_EQ(thoseBefore(1, "error"), "the error before it is");
    EXPECT_EQ(thoseBefore(2, "error"), "the 2 errors before it are");
}

TEST(Words, AreJoined) {
    EXPECT_EQ(joined({}), "");
    EXPECT_EQ(joined({"a"}), "a");
    EXPECT_EQ(joined({"a", "b"}), "a and b");
    EXPECT_EQ(joined({"a", "b", "c"}), "a, b and c");
    EXPECT_EQ(joined({"a", "b", "c"}, ", "), "a, b, c");
}

TEST(Words, BeginWithACapital) {
    EXPECT_EQ(capitalised("error"), "Error");
    EXPECT_EQ(capitalised(""), "");
}

TEST(Words, AreNumbersInGroupsOfDigits) {
    EXPECT_EQ(grouped("123", ","), "123");
    EXPECT_EQ(grouped("-1234.5678", ","), "-1,234.5678");
    EXPECT_EQ(grouped("nan", ","), "nan");
}

TEST(Words, QuoteTextsWithoutTheWhiteSpaceAroundThem) {
    EXPECT_EQ(quoted(" a\n"), "\" a\\n\"");
    EXPECT_EQ(quotedText(" a b\n"), "\"a b\"");
    EXPECT_EQ(quotedText(" "), "\" \"");
    EXPECT_EQ(trimmed("\t a b\r\n"), "a b");
    EXPECT_EQ(trimmed(" "), "");
}

} // namespace
