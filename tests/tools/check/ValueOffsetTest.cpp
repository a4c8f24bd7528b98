#include "tools/check/ValueOffset.h"

#include <string>

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace {

/// How much of a written text comes before the first "!" of what is read of it.
std::string before(const std::string& written) {
    const std::string source = "<a>" + written + "</a>";
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(source.c_str())) << source;
    const pugi::xml_node text = document.child("a").first_child();
    const auto offset = static_cast<std::size_t>(text.offset_debug());
    const std::string value = text.value();
    EXPECT_NE(value.find('!'), std::string::npos) << source;
    return source.substr(offset, sourceOffset(source, offset, value.find('!')) - offset);
}

TEST(ValueOffset, IsTheSameInTextsThatAreReadAsTheyAreWritten) {
    EXPECT_EQ(before("!"), "");
    EXPECT_EQ(before("ab\n\u00e9!"), "ab\n\u00e9");
}

TEST(ValueOffset, CountsALineEndOfTwoBytesAsOne) {
    EXPECT_EQ(before("\r\n a\r\n!"), "\r\n a\r\n");
    EXPECT_EQ(before("\r\r\n\n!"), "\r\r\n\n");
}

TEST(ValueOffset, CountsAReferenceAsItsCharacter) {
    EXPECT_EQ(before("&amp;&lt;&gt;&quot;&apos;!"), "&amp;&lt;&gt;&quot;&apos;");
    EXPECT_EQ(before("&#32;&#x20;&#xe9;&#xE9;&#8364;&#x1F600;&#127;&#128;!"),
              "&#32;&#x20;&#xe9;&#xE9;&#8364;&#x1F600;&#127;&#128;");
    EXPECT_EQ(before("&#32;&#x21;"), "&#32;");
    EXPECT_EQ(before("&#9;&#xa;&#xF;!"), "&#9;&#xa;&#xF;"); // the first and last digits
}

TEST(ValueOffset, TakesWhatIsNoReferenceAsItIsWritten) {
    EXPECT_EQ(before("&!"), "&");
    EXPECT_EQ(before("&other;&amp &lt&#;&#x;&#X20;&#3a;&#xg;&# 3;!"),
              "&other;&amp &lt&#;&#x;&#X20;&#3a;&#xg;&# 3;");
    EXPECT_EQ(before("&#12!"), "&#12");
}

TEST(ValueOffset, FindsNoReferencesInASection) {
    EXPECT_EQ(before("<![CDATA[&amp;\r\n&#32;!]]>"), "&amp;\r\n&#32;");
}

TEST(ValueOffset, IsNoFurtherThanTheEnd) {
    EXPECT_EQ(sourceOffset("ab", 1, 7), 2U);
    EXPECT_EQ(sourceOffset("&#1", 0, 7), 3U);
    EXPECT_EQ(sourceOffset("<![CDATA[", 9, 1), 9U);
}

} // namespace
