#include "tools/text/Escape.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tools/text/Utf8.h"

namespace {

TEST(Escape, LeavesOrdinaryTextAsItIs) {
    EXPECT_EQ(escape(""), "");
    EXPECT_EQ(escape("North 40 (\"old\") \xE2\x82\xAC \xC3\xA9 \xF0\x9F\x9A\x9C"),
              "North 40 (\"old\") \xE2\x82\xAC \xC3\xA9 \xF0\x9F\x9A\x9C");
}

TEST(Escape, ShowsLineFeedTabAndBackslashByLetters) {
    EXPECT_EQ(escape("a\nb\tc\\d"), "a\\nb\\tc\\\\d");
}

TEST(Escape, ShowsControlCharactersAsTheirBytes) {
    EXPECT_EQ(escape(std::string("\0", 1)), "\\x00");
    EXPECT_EQ(escape("\x1b[31m"), "\\x1B[31m");
    EXPECT_EQ(escape("\r"), "\\x0D");
    EXPECT_EQ(escape("\x1f\x7f"), "\\x1F\\x7F");
}

TEST(Escape, ShowsControlCharactersBeyondAsciiAsCodePoints) {
    EXPECT_EQ(escape("\xC2\x80"), "\\u{0080}");
    EXPECT_EQ(escape("\xC2\x9B"), "\\u{009B}");
    EXPECT_EQ(escape("\xC2\x9F"), "\\u{009F}");
    EXPECT_EQ(escape("\xC2\xA0"), "\xC2\xA0");
}

// NOLINTBEGIN(misc-misleading-bidirectional): they are what the test is about
TEST(Escape, ShowsWhatChangesTheDirectionOfWriting) {
    EXPECT_EQ(escape("\u061C\u200E\u200F"), "\\u{061C}\\u{200E}\\u{200F}");
    EXPECT_EQ(escape("\u202A\u202B\u202C\u202D\u202E"),
              "\\u{202A}\\u{202B}\\u{202C}\\u{202D}\\u{202E}");
    EXPECT_EQ(escape("\u2066\u2067\u2068\u2069"), "\\u{2066}\\u{2067}\\u{2068}\\u{2069}");
}
// NOLINTEND(misc-misleading-bidirectional)

TEST(Escape, ShowsLineAndParagraphSeparators) {
    EXPECT_EQ(escape("\u2028\u2029"), "\\u{2028}\\u{2029}");
}

// NOLINTBEGIN(misc-misleading-bidirectional)
TEST(Escape, ShowsWhatIsNotSeen) {
    EXPECT_EQ(escape("North\u200B\u2060\uFEFF"), "North\\u{200B}\\u{2060}\\u{FEFF}");
    EXPECT_EQ(escape("\u00AD\u034F\u115F\u1160\u17B4\u17B5\u180E"),
              "\\u{00AD}\\u{034F}\\u{115F}\\u{1160}\\u{17B4}\\u{17B5}\\u{180E}");
    EXPECT_EQ(escape("\u2064\u2065\u206A\u206F"), "\\u{2064}\\u{2065}\\u{206A}\\u{206F}");
    EXPECT_EQ(escape("\u3164\uFFA0\uFFF9\uFFFB"), "\\u{3164}\\u{FFA0}\\u{FFF9}\\u{FFFB}");
    EXPECT_EQ(escape("\U0001BCA0\U0001D173\U000E0000\U000E0041\U000E0FFF"),
              "\\u{1BCA0}\\u{1D173}\\u{E0000}\\u{E0041}\\u{E0FFF}");
}
// NOLINTEND(misc-misleading-bidirectional)

TEST(Escape, LeavesTheNeighboursOfWhatItEscapes) {
    for (const std::string text :
         {"\u00A0",     "\u00AC",     "\u00AE",     "\u034E",     "\u0350",     "\u061B",
          "\u061D",     "\u115E",     "\u1161",     "\u17B3",     "\u17B6",     "\u180D",
          "\u180F",     "\u200A",     "\u200C",     "\u200D",     "\u2010",     "\u2027",
          "\u202F",     "\u205F",     "\u2070",     "\u3163",     "\u3165",     "\uFE0F",
          "\uFEFE",     "\uFF9F",     "\uFFA1",     "\uFFF8",     "\uFFFC",     "\U0001BC9F",
          "\U0001BCA4", "\U0001D172", "\U0001D17B", "\U000DFFFF", "\U000E1000", " ",
          "~"})
        EXPECT_EQ(escape(text), text);
}

TEST(EscapeDocument, KeepsLinesTabsAndBackslashes) {
    EXPECT_EQ(escapeDocument("a\tb\\c\r\n\nd\n"), "a\tb\\c\r\n\nd\n");
    EXPECT_EQ(escapeDocument(""), "");
}

TEST(EscapeDocument, ShowsWhatATerminalMightActOnOrHide) {
    EXPECT_EQ(escapeDocument("a\rb\x1B[2J\x7F\xC2\x9B\u202E\u200B\xFF\n"),
              "a\\x0Db\\x1B[2J\\x7F\\u{009B}\\u{202E}\\u{200B}\\xFF\n");
}

TEST(EscapeDocument, LeavesTheByteOrderMarkAtTheBeginningOut) {
    EXPECT_EQ(escapeDocument("\uFEFFa,\uFEFFb\n"), "a,\\u{FEFF}b\n");
}

TEST(Escape, ShowsBytesThatAreNotValidUtf8OneByOne) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"\x85", "\\x85"},                                       // continuation without a start
        {"a\xC3", "a\\xC3"},                                     // cut short
        {"\xC3(", "\\xC3("},                                     // no continuation
        {"\xE2\x82", "\\xE2\\x82"},                              // cut short
        {"\xE2\x82x", "\\xE2\\x82x"},                            // no second continuation
        {"\xC0\x8A", "\\xC0\\x8A"},                              // overlong line feed
        {"\xC1\xBF", "\\xC1\\xBF"},                              // overlong
        {"\xE0\x9F\xBF", "\\xE0\\x9F\\xBF"},                     // overlong
        {"\xF0\x8F\xBF\xBF", "\\xF0\\x8F\\xBF\\xBF"},            // overlong
        {"\xED\xA0\x80", "\\xED\\xA0\\x80"},                     // surrogate
        {"\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"},            // beyond U+10FFFF
        {"\xF5\x80\x80\x80", "\\xF5\\x80\\x80\\x80"},            // never valid
        {"\xFF\xFE", "\\xFF\\xFE"},                              // never valid
        {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},                // U+10FFFF
        {"\xE0\xA0\x80\xED\x9F\xBF", "\xE0\xA0\x80\xED\x9F\xBF"} // U+0800, U+D7FF
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(escape(text), expected);
}

TEST(Escape, CutsAnExcerptAfterSixtyCharacters) {
    const std::string sixty(60, 'x');
    EXPECT_EQ(escapeExcerpt(sixty), sixty);
    EXPECT_EQ(escapeExcerpt(sixty + "y"), sixty + "...");
    EXPECT_EQ(escapeExcerpt("\n"), "\\n");
    std::string accents;
    for (int i = 0; i < 60; ++i)
        accents += "\xC3\xA9";
    EXPECT_EQ(escapeExcerpt(accents), accents);
    EXPECT_EQ(escapeExcerpt(accents + "\xC3\xA9"), accents + "...");
    EXPECT_EQ(escapeExcerpt(sixty.substr(1) + "\xC3\xA9\xC3\xA9"), sixty.substr(1) + "\xC3\xA9...");
}

TEST(Escape, TellsTextsOfWhichNothingIsSeen) {
    for (const char* const text : {"", " ", "\t\n", "\u00A0", "\u00AD\u2009", "\u200B\uFEFF",
                                   "\u2800", "\u3000 \u200D", "\uFE0F", "\u0085"})
        EXPECT_TRUE(isBlank(text)) << escape(text);
    for (const char* const text :
         {"a", " a", "\u00A0-", "\u200Ba", "\U0001F33E\uFE0F", "\xA0", "\xFF"})
        EXPECT_FALSE(isBlank(text)) << escape(text);
}

/// Undoes escape(): what cannot be undone would be ambiguous on the screen.
std::string unescape(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
            continue;
        }
        const char kind = text.at(++i);
        if (kind == 'x') {
            result += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else if (kind == 'u') {
            const std::size_t end = text.find('}', i);
            appendUtf8(result, static_cast<char32_t>(
                                   std::stoul(text.substr(i + 2, end - i - 2), nullptr, 16)));
            i = end;
        } else {
            result += kind == 'n' ? '\n' : kind == 't' ? '\t' : kind;
        }
    }
    return result;
}

RC_GTEST_PROP(Escape, MakesOfAnyBytesOneSafeLineThatCanBeUndone, (const std::string& text)) {
    const std::string escaped = escape(text);
    for (const char c : escaped)
        RC_ASSERT(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
    RC_ASSERT(escape(unescape(escaped)) == escaped);
    RC_ASSERT(unescape(escaped) == text);
}

} // namespace
