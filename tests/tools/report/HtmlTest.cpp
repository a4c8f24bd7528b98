#include "tools/report/Html.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(Html, EscapesWhatIsMarkup) {
    EXPECT_EQ(html("<b title=\"a\" id='b'>&amp;</b>"),
              "&lt;b title=&quot;a&quot; id=&#39;b&#39;&gt;&amp;amp;&lt;/b&gt;");
}

TEST(Html, KeepsOtherCharactersOfAllScripts) {
    EXPECT_EQ(html("Søren 北 \U0001F33E\n\t"), "Søren 北 \U0001F33E\n\t");
}

TEST(Html, ReplacesWhatHtmlForbids) {
    EXPECT_EQ(html("\x01\x1B\x7F\r"), "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(html("\xC2\x85\uFDD0\uFFFE"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(html("a\xFF\xC3"), "a\uFFFD\uFFFD");
}

TEST(Html, IsolatesTheDirectionOfNames) {
    EXPECT_EQ(htmlName("\u202Eabc"), "<bdi>\u202Eabc</bdi>");
    EXPECT_EQ(htmlName(""), "");
}

} // namespace
