#include "tests/tools/check/ExpatTree.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace {

/// The text of the root, or why there is none.
std::string read(const std::string& bytes) {
    const test::XmlReading reading = test::readXml(bytes);
    return reading.root ? reading.root->text : "refused: " + reading.refusal;
}

TEST(ExpatTree, HoldsWhatADocumentHolds) {
    const auto reading = test::readXml("<a b='1&amp;2'>x<c/>y<!-- z --><![CDATA[&]]></a>");
    ASSERT_TRUE(reading.root);
    EXPECT_EQ(reading.root->name, "a");
    ASSERT_EQ(reading.root->attributes.size(), 1U);
    EXPECT_EQ(reading.root->attributes[0].second, "1&2");
    ASSERT_EQ(reading.root->children.size(), 1U);
    EXPECT_EQ(reading.root->children[0].name, "c");
    EXPECT_EQ(reading.root->text, "xy&");
    EXPECT_EQ(reading.root->pieces, 3U);
}

TEST(ExpatTree, GivesAttributesTheirDefaults) {
    const auto reading = test::readXml("<!DOCTYPE a [<!ATTLIST a b CDATA 'x'>]><a/>");
    ASSERT_TRUE(reading.root);
    ASSERT_EQ(reading.root->attributes.size(), 1U);
    EXPECT_EQ(reading.root->attributes[0].second, "x");
}

TEST(ExpatTree, ReadsTextsInTheirEncoding) {
    const auto declared = [](const std::string& encoding, const std::string& text) {
        return "<?xml version='1.0' encoding='" + encoding + "'?><a>" + text + "</a>";
    };
    EXPECT_EQ(read(declared("ISO-8859-1", "\xE9")), "\u00E9");
    EXPECT_EQ(read(declared("windows-1252", "\x80")), "\u20AC");
    EXPECT_EQ(read(declared("windows-1252", "\u00E9")), "\u00C3\u00A9");
    EXPECT_EQ(read(declared("x-foo", "e")), "e");
    EXPECT_EQ(read(declared("x-foo", "\u00E9")), "refused: the bytes are not x-foo");
    EXPECT_EQ(read(test::inUtf16("<a>e</a>")), "e");
    EXPECT_EQ(read(test::inUnitsOf(4, false, std::u32string(U"<a>\u5317</a>"))), "\u5317");
    EXPECT_EQ(read(test::inUnitsOf(4, true, std::u32string(U"\uFEFF<a>\u5317</a>"))), "\u5317");
}

TEST(ExpatTree, RefusesWhatIsNoXml) {
    EXPECT_EQ(read("<a>&b;</a>"), "refused: undefined entity");
    EXPECT_EQ(read("<a>&#0;</a>"), "refused: reference to invalid character number");
    EXPECT_EQ(read("<a b='1' b='2'/>"), "refused: duplicate attribute");
    EXPECT_EQ(read("<a/>x"), "refused: junk after document element");
    EXPECT_EQ(read("<!DOCTYPE a [<!ENTITY b SYSTEM 'b.txt'>]><a>&b;</a>"),
              "refused: the content of the entity b.txt is elsewhere");
}

} // namespace
