#include "tools/report/Html.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(Html, EscapesWhatIsMarkup) {
    EXPECT_EQ(html("<b title=\"a\" id='b'>&amp;</b>"),
              "&lt;b title=&quot;a&quot; id=&#39;b&#39;&gt;&amp;amp;&lt;/b&gt;");
}

TEST(Html, KeepsOtherCharactersOfAllScripts) {
    EXPECT_EQ(html("Søren 北 \U0001F33E"), "Søren 北 \U0001F33E");
}

TEST(Html, ReplacesWhatHtmlForbids) {
    EXPECT_EQ(html("\uFDD0\uFDEF\uFFFE\U0010FFFF"), "\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Html, EscapesWhatIsNotSeenAsATerminalDoes) {
    EXPECT_EQ(html("\x01\x1B\x7F\r\xC2\x85"), "\\x01\\x1B\\x7F\\x0D\\u{0085}");
    EXPECT_EQ(html("a\xFF\xC3\n\t\\"), "a\\xFF\\xC3\\n\\t\\\\");
    EXPECT_EQ(htmlOfEscaped("a\\n"), "a\\n");
    EXPECT_EQ(html("\uFEFF\u200B\u00AD"), "\\u{FEFF}\\u{200B}\\u{00AD}");
}

TEST(Html, ShowsPartsOfPackagesAsCode) {
    EXPECT_EQ(htmlWithCode("Write `<a>` or `&`."),
              "Write <code>&lt;a&gt;</code> or <code>&amp;</code>.");
    EXPECT_EQ(htmlWithCode("`a`"), "<code>a</code>");
    EXPECT_EQ(htmlWithCode("Write the name."), "Write the name.");
    EXPECT_EQ(htmlWithCode(""), "");
}

TEST(Html, CutsNamesOfRecordsThatWouldFillThePage) {
    EXPECT_EQ(htmlRecordName("<a>", "none"), "<bdi>&lt;a&gt;</bdi>");
    EXPECT_EQ(htmlRecordName("", "none"), "none");
    EXPECT_EQ(htmlRecordName(std::string(200, 'x')), "<bdi>" + std::string(200, 'x') + "</bdi>");
    EXPECT_EQ(htmlRecordName(std::string(201, 'x')),
              "<bdi>" + std::string(199, 'x') + "\u2026</bdi>");
}

// NOLINTBEGIN(misc-misleading-bidirectional): they are what the test is about
TEST(Html, LetsNoTextChangeTheDirectionOfWriting) {
    EXPECT_EQ(html("\u202Aa\u202Eb"), "\\u{202A}a\\u{202E}b");
    EXPECT_EQ(html("\u2066\u2069\u200E\u200F"), "\\u{2066}\\u{2069}\\u{200E}\\u{200F}");
    EXPECT_EQ(htmlName("\u202Eabc"), "<bdi>\\u{202E}abc</bdi>");
    EXPECT_EQ(htmlName("\u05D0\u0627"), "<bdi>\u05D0\u0627</bdi>");
    EXPECT_EQ(htmlName(""), "");
    EXPECT_EQ(htmlOfEscaped("\u2068<\u2069"), "\u2068&lt;\u2069");
}
// NOLINTEND(misc-misleading-bidirectional)

} // namespace
