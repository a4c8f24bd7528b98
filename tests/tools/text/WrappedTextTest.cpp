#include "tools/text/WrappedText.h"

#include <gtest/gtest.h>

namespace {

TEST(WrappedText, HasLinesOfNoMoreThanAWidth) {
    EXPECT_EQ(wrapped("one two three", 0, 7), "one two\nthree");
    EXPECT_EQ(wrapped("one two three", 0, 13), "one two three");
    EXPECT_EQ(wrapped("one two three", 0, 12), "one two\nthree");
    EXPECT_EQ(wrapped("", 2, 10), "");
}

TEST(WrappedText, LeavesRoomBeforeEachLine) {
    EXPECT_EQ(wrapped("one two three", 2, 9), "one two\n  three");
    EXPECT_EQ(wrapped("one two three", 3, 9), "one\n   two\n   three");
}

TEST(WrappedText, DoesNotBreakWords) {
    EXPECT_EQ(wrapped("a recommendation b", 0, 5), "a\nrecommendation\nb");
}

TEST(WrappedText, CountsCharactersAndNotBytes) {
    EXPECT_EQ(wrapped("ääää öööö", 0, 9), "ääää öööö");
}

} // namespace
