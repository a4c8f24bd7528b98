#include "tools/text/Utf8.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

const std::vector<std::pair<char32_t, std::string>> characters = {{0x00, std::string(1, '\0')},
                                                                  {0x41, "A"},
                                                                  {0x7F, "\x7F"},
                                                                  {0x80, "\xC2\x80"},
                                                                  {0x7FF, "\xDF\xBF"},
                                                                  {0x800, "\xE0\xA0\x80"},
                                                                  {0xD7FF, "\xED\x9F\xBF"},
                                                                  {0xE000, "\xEE\x80\x80"},
                                                                  {0xFFFF, "\xEF\xBF\xBF"},
                                                                  {0x10000, "\xF0\x90\x80\x80"},
                                                                  {0x10FFFF, "\xF4\x8F\xBF\xBF"}};

TEST(Utf8, ReadsTheFirstCharacterOfATextAndNothingBehindIt) {
    for (const auto& [codePoint, bytes] : characters) {
        const Utf8Character character = firstCharacter(bytes + "\x80z");
        EXPECT_EQ(character.codePoint, codePoint);
        EXPECT_EQ(character.length, bytes.size());
        EXPECT_TRUE(character.valid);
    }
}

TEST(Utf8, WritesCodePoints) {
    for (const auto& [codePoint, bytes] : characters) {
        std::string text = "x";
        appendUtf8(text, codePoint);
        EXPECT_EQ(text, "x" + bytes);
    }
}

TEST(Utf8, TakesAnInvalidByteAlone) {
    const Utf8Character character = firstCharacter("\xE2\x82");
    EXPECT_EQ(character.codePoint, 0xE2U);
    EXPECT_EQ(character.length, 1U);
    EXPECT_FALSE(character.valid);
}

TEST(Utf8, FindsWhereACharacterBegins) {
    const std::string text = "a\u00e9\u20ac\U0001F600";
    const std::vector<std::size_t> starts = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 11};
    for (std::size_t place = 0; place < starts.size(); ++place)
        EXPECT_EQ(characterStart(text, place), starts[place]) << place;
    // Bytes that belong to no character stand for themselves.
    EXPECT_EQ(characterStart("\xE2\x82z", 1), 1U);
    EXPECT_EQ(characterStart("\u00e9\x80", 2), 2U);
    EXPECT_EQ(characterStart("\x80", 0), 0U);
    EXPECT_EQ(characterStart("", 0), 0U);
}

} // namespace
