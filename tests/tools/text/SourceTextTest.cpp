#include "tools/text/SourceText.h"

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

bool operator==(const Position& a, const Position& b) {
    return a.line == b.line && a.column == b.column;
}

std::ostream& operator<<(std::ostream& out, const Position& position) {
    return out << position.line << ':' << position.column;
}

namespace {

std::string utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8U);
        const char low = static_cast<char>(unit & 0xFFU);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

std::string utf32(std::u32string_view text, bool bigEndian) {
    std::string bytes;
    for (const char32_t unit : text) {
        for (unsigned i = 0; i < 4; ++i)
            bytes += static_cast<char>(unit >> 8U * (bigEndian ? 3 - i : i) & 0xFFU);
    }
    return bytes;
}

/// Where pugixml finds a text not well-formed.
Position faultIn(const std::string& bytes) {
    const SourceText text(bytes);
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = text.load(document);
    EXPECT_FALSE(loaded) << bytes;
    return text.position(static_cast<std::size_t>(loaded.offset));
}

TEST(SourceText, CountsLinesAndColumnsFromOne) {
    EXPECT_EQ(faultIn("<a></b>"), (Position{1, 6}));
    EXPECT_EQ(faultIn("<a>\n  </b>"), (Position{2, 5}));
    EXPECT_EQ(faultIn("<a>\n\n</b>"), (Position{3, 3}));
}

TEST(SourceText, TakesEveryKindOfLineEndForOne) {
    EXPECT_EQ(faultIn("<a>\r\n\r\n</b>"), (Position{3, 3}));
    EXPECT_EQ(faultIn("<a>\r\r</b>"), (Position{3, 3}));
    EXPECT_EQ(faultIn("<a>\n\r</b>"), (Position{3, 3}));
}

TEST(SourceText, CountsColumnsInCharactersAndNotInBytes) {
    EXPECT_EQ(faultIn("<a>\u00e9\u20ac\U0001F600</b>"), (Position{1, 9}));
}

TEST(SourceText, CountsAByteThatIsNoCharacterAsOne) {
    EXPECT_EQ(faultIn("<a>\xE9</b>"), (Position{1, 7}));
    EXPECT_EQ(faultIn("<a>\x80\x80</b>"), (Position{1, 8}));
}

TEST(SourceText, DoesNotCountAByteOrderMark) {
    EXPECT_EQ(faultIn("\xEF\xBB\xBF<a></b>"), (Position{1, 6}));
    EXPECT_EQ(faultIn("\xEF\xBB\xBF<a>\n</b>"), (Position{2, 3}));
}

TEST(SourceText, CountsTheSameInEveryEncoding) {
    const std::u16string text16 = u"<?xml version='1.0'?>\n<a>\u00e9\u20ac\U0001F600</b>";
    const std::u32string text32 = U"<?xml version='1.0'?>\n<a>\u00e9\u20ac\U0001F600</b>";
    for (const bool bigEndian : {false, true}) {
        EXPECT_EQ(faultIn(utf16(text16, bigEndian)), (Position{2, 9}));
        EXPECT_EQ(faultIn(utf16(u"\uFEFF" + text16, bigEndian)), (Position{2, 9}));
        EXPECT_EQ(faultIn(utf32(text32, bigEndian)), (Position{2, 9}));
        EXPECT_EQ(faultIn(utf32(U"\uFEFF" + text32, bigEndian)), (Position{2, 9}));
    }
    EXPECT_EQ(faultIn("<?xml version='1.0' encoding='iso-8859-1'?>\n<a>\xE9\xA4</b>"),
              (Position{2, 8}));
}

TEST(SourceText, LeavesOutUnitsThatAreNoCharacters) {
    const char16_t lead = 0xD83D;
    const char16_t trail = 0xDE00;
    for (const std::u16string& broken : {std::u16string{lead}, std::u16string{trail},
                                         std::u16string{trail, lead}, std::u16string{lead, u'x'}}) {
        const std::size_t characters = broken.back() == u'x' ? 1 : 0;
        EXPECT_EQ(faultIn(utf16(u"<a>" + broken + u"</b>", false)), (Position{1, 6 + characters}));
    }
}

TEST(SourceText, LeavesOutATrailUnitThatIsNotBehindItsLead) {
    const std::u16string broken = {u'<', u'a', u'>', 0xD83D, u'x', 0xDE00, u'y'};
    for (const bool bigEndian : {false, true})
        EXPECT_EQ(SourceText(utf16(broken, bigEndian)).text(), "<a>xy");
}

TEST(SourceText, ConvertsEveryCharacterOfUtf16AndUtf32) {
    // The first and last ones of each length in UTF-8, and beside the surrogates.
    const std::u32string characters = {0x20,   0x7F,   0x80,   0x7FF,   0x800,   0xD7FF,
                                       0xE000, 0xFFFD, 0xFFFF, 0x10000, 0x1F600, 0x10FFFF};
    const std::string expected = "<a>\x20\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"
                                 "\xEF\xBF\xBD\xEF\xBF\xBF\xF0\x90\x80\x80\xF0\x9F\x98\x80"
                                 "\xF4\x8F\xBF\xBF</a>";
    std::u16string text16 = u"<a>";
    for (const char32_t c : characters) {
        if (c < 0x10000) {
            text16 += static_cast<char16_t>(c);
        } else {
            text16 += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U));
            text16 += static_cast<char16_t>(0xDC00 + (c & 0x3FFU));
        }
    }
    for (const bool bigEndian : {false, true}) {
        EXPECT_EQ(SourceText(utf16(text16 + u"</a>", bigEndian)).text(), expected);
        EXPECT_EQ(SourceText(utf32(U"<a>" + characters + U"</a>", bigEndian)).text(), expected);
    }
}

TEST(SourceText, LeavesOutWhatIsLessThanACharacterAtTheEnd) {
    for (const bool bigEndian : {false, true}) {
        const std::string text16 = utf16(u"<a/>", bigEndian);
        const std::string text32 = utf32(U"<a/>", bigEndian);
        EXPECT_EQ(SourceText(text16 + "x").text(), "<a/>");
        for (const std::string rest : {"x", "xy", "xyz"})
            EXPECT_EQ(SourceText(text32 + rest).text(), "<a/>") << rest;
    }
}

TEST(SourceText, KnowsTheEncodingFromADeclarationOfAnyLength) {
    const std::string declaration =
        "<?xml version='1.0'" + std::string(200, ' ') + "encoding='iso-8859-1'?>";
    EXPECT_EQ(SourceText(declaration + "<a>\xE9</a>").text(), declaration + "<a>\u00e9</a>");
}

TEST(SourceText, CountsTheBytesOfUtf32ThatIsNoCharacters) {
    const std::u32string broken = {0xD83D, 0x110000, 0xFFFFFFFF};
    EXPECT_EQ(faultIn(utf32(U"<a>" + broken + U"</b>", true)), (Position{1, 6 + 3 + 4 + 4}));
}

TEST(SourceText, ReadsWhatIsNoCharacterAsTheLibraryOfXmlDoes) {
    const std::u16string lone16 = {u'<',   u'a', u' ',   u'x',   u'=',   u'"', 0xDC00, u'1',
                                   0xD800, u'2', 0xD800, 0xD800, 0xDC00, u'"', u'/',   u'>'};
    const std::u32string lone32 = {U'<', U'a',     U' ',       U'x', U'=', U'"', 0xDC00,
                                   U'1', 0x110000, 0x7FFFFFFF, U'"', U'/', U'>'};
    for (const bool bigEndian : {false, true}) {
        for (const std::string& bytes : {utf16(lone16, bigEndian), utf32(lone32, bigEndian)}) {
            pugi::xml_document direct;
            ASSERT_TRUE(direct.load_buffer(bytes.data(), bytes.size()));
            pugi::xml_document converted;
            ASSERT_TRUE(SourceText(bytes).load(converted));
            EXPECT_STREQ(converted.child("a").attribute("x").value(),
                         direct.child("a").attribute("x").value());
        }
    }
}

TEST(SourceText, FindsFaultsWherePugixmlGivesUp) {
    EXPECT_EQ(faultIn("<a>\n"), (Position{1, 4}));             // element never ended
    EXPECT_EQ(faultIn("<a>\n<b x=1/></a>"), (Position{2, 6})); // attribute without quotes
    EXPECT_EQ(faultIn("<a>\n<!-- x"), (Position{2, 6}));       // comment never ended
    EXPECT_EQ(faultIn("<a>\n<"), (Position{2, 1}));            // nothing behind
    EXPECT_EQ(faultIn("\n "), (Position{2, 2}));               // no element at all
}

TEST(SourceText, TakesAPlaceBeyondTheEndForTheEnd) {
    EXPECT_EQ(SourceText("<a>\nxy").position(1000), (Position{2, 3}));
}

TEST(SourceText, CountsTheSameFromEveryPlaceOfALongText) {
    std::string bytes = "\xEF\xBB\xBF";
    for (int i = 0; i < 400; ++i)
        bytes += i % 7 == 0 ? "\r\n" : i % 11 == 0 ? "\r" : i % 5 == 0 ? "\n" : "a\u00e9\u20ac\xFF";
    const SourceText text(bytes);
    // As the long text does, but without anything to start from in the middle.
    for (std::size_t offset = 3; offset <= bytes.size(); ++offset) {
        if (offset < bytes.size() && (static_cast<unsigned char>(bytes[offset]) & 0xC0U) == 0x80)
            continue; // within a character
        EXPECT_EQ(text.position(offset), SourceText(bytes.substr(0, offset)).position(offset))
            << offset;
    }
}

TEST(SourceText, TakesAPlaceInACharacterForItsBeginning) {
    const SourceText text("<a>\u00e9\u20ac\U0001F600x");
    for (const std::size_t offset : {3U, 4U})
        EXPECT_EQ(text.position(offset), (Position{1, 4})) << offset;
    for (const std::size_t offset : {5U, 6U, 7U})
        EXPECT_EQ(text.position(offset), (Position{1, 5})) << offset;
    for (const std::size_t offset : {8U, 9U, 10U, 11U})
        EXPECT_EQ(text.position(offset), (Position{1, 6})) << offset;
    EXPECT_EQ(text.position(12), (Position{1, 7}));
    EXPECT_EQ(text.excerpt(4).line, "<a>\u00e9\u20ac\U0001F600x");
    EXPECT_EQ(text.excerpt(4).caret, 3U);
    EXPECT_EQ(text.excerpt(11).caret, 5U);
}

TEST(SourceText, ShowsALineWithItsPlace) {
    const SourceText text("\xEF\xBB\xBF<a>\r\n\t<b\x1b>\n</a>");
    EXPECT_EQ(text.excerpt(0).line, "<a>");
    EXPECT_EQ(text.excerpt(0).caret, 0U);
    const std::size_t b = text.text().find("<b");
    EXPECT_EQ(text.excerpt(b).line, " <b\\x1B>");
    EXPECT_EQ(text.excerpt(b).caret, 1U);
    EXPECT_EQ(text.excerpt(b + 3).caret, 7U); // behind what is escaped
    EXPECT_EQ(text.excerpt(1000).line, "</a>");
    EXPECT_EQ(text.excerpt(1000).caret, 4U);
}

TEST(SourceText, ShowsThePartOfALongLineAroundAPlace) {
    const SourceText text(std::string(500, 'a') + "X" + std::string(500, 'b'));
    EXPECT_EQ(text.excerpt(500).line,
              "..." + std::string(60, 'a') + "X" + std::string(39, 'b') + "...");
    EXPECT_EQ(text.excerpt(500).caret, 63U);
    EXPECT_EQ(text.excerpt(0).line, std::string(100, 'a') + "...");
}

TEST(SourceText, CutsNoCharacterOfALongLine) {
    std::string euros;
    for (int i = 0; i < 500; ++i)
        euros += "\u20ac";
    for (const std::string before : {"", "x", "xy"}) {
        const SourceText text(before + euros);
        EXPECT_EQ(text.excerpt(before.size() + 300).line.find('\\'), std::string::npos);
    }
}

TEST(SourceText, LeavesOutACharacterAtEitherEndThatIsCut) {
    const auto euros = [](int number) {
        std::string text;
        for (; number > 0; --number)
            text += "\u20ac";
        return text;
    };
    const SourceText text(euros(100) + "x" + euros(100));
    // 60 bytes before the place and 40 behind it end within a character each.
    EXPECT_EQ(text.excerpt(301).line, "..." + euros(19) + "x" + euros(13) + "...");
    EXPECT_EQ(text.excerpt(301).caret, 23U);
}

/// Parts of a text, by what they cover.
class SourceExtent : public testing::Test {
protected:
    void read(const std::string& text) {
        text_ = SourceText(text);
        EXPECT_TRUE(text_.load(document_));
    }
    pugi::xml_node root() const { return document_.child("a"); }
    std::string covered(Extent extent) const {
        return std::string(text_.text().substr(extent.offset, extent.length));
    }
    std::string covered(pugi::xml_node node) const { return covered(text_.extent(node)); }

    SourceText text_ = SourceText("");

private:
    pugi::xml_document document_;
};

TEST_F(SourceExtent, OfAnAttributeIsItsNameOrItsValue) {
    read("\xEF\xBB\xBF<a>\n<b one = '1' two='&lt;2' three=\"it's\" four=''/></a>");
    const pugi::xml_node b = root().child("b");
    const auto value = [&](const char* name) {
        return covered(text_.extent(b, b.attribute(name)));
    };
    EXPECT_EQ(covered(nameExtent(b, b.attribute("one"))), "one");
    EXPECT_EQ(covered(nameExtent(b, b.attribute("four"))), "four");
    EXPECT_EQ(value("one"), "1");
    EXPECT_EQ(value("two"), "&lt;2");
    EXPECT_EQ(value("three"), "it's");
    EXPECT_EQ(value("four"), "");
    EXPECT_EQ(text_.location(text_.extent(b, b.attribute("two"))).begin, (Position{2, 19}));
    EXPECT_EQ(text_.location(text_.extent(b, b.attribute("two"))).end, (Position{2, 24}));
}

TEST_F(SourceExtent, OfAnElementIsItsStartTag) {
    for (const std::string mark : {"", "\xEF\xBB\xBF"}) {
        read(mark + "<a>\r\n  <b x='>' y=\"'>\">\u00e9 &lt;</b><c/></a>");
        EXPECT_EQ(covered(root()), "<a>");
        EXPECT_EQ(covered(root().child("b")), "<b x='>' y=\"'>\">");
        EXPECT_EQ(covered(root().child("c")), "<c/>");
        EXPECT_EQ(text_.location(text_.extent(root())).begin, (Position{1, 1}));
        EXPECT_EQ(text_.location(text_.extent(root().child("c"))).begin, (Position{2, 29}));
    }
}

TEST_F(SourceExtent, OfATextIsWhatIsNoWhiteSpace) {
    read("<a><b/>\n  stray \u00e9 \n <![CDATA[ more\n< ]]></a>");
    const pugi::xml_node stray = root().child("b").next_sibling();
    EXPECT_EQ(covered(stray), "stray \u00e9");
    EXPECT_EQ(covered(text_.wholeText(stray)), "\n  stray \u00e9 \n ");
    EXPECT_EQ(covered(stray.next_sibling()), "more\n<");
    EXPECT_EQ(covered(text_.wholeText(stray.next_sibling())), " more\n< ");
    const Location location = text_.location(text_.extent(stray.next_sibling()));
    EXPECT_EQ(location.begin, (Position{3, 12}));
    EXPECT_EQ(location.end, (Position{4, 2}));
    EXPECT_EQ(location.excerpt.line, " <![CDATA[ more");
}

TEST_F(SourceExtent, OfABlankTextIsAllOfIt) {
    read("<a>\n &#32; <b/><![CDATA[ ]]></a>");
    EXPECT_EQ(covered(root().first_child()), "&#32;");
    EXPECT_EQ(covered(root().last_child()), " ");
}

} // namespace
