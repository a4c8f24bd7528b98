#include "tools/check/SecondReader.h"

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "tools/text/Encoding.h"

namespace {

using namespace std::string_literals;

SecondReading read(const std::string& bytes) {
    return readAgain(bytes, encodingOf(bytes));
}

/// What is refused at an offset: "7: ...", or "" when nothing is.
std::string refusal(const std::string& bytes) {
    const SecondReading reading = read(bytes);
    return reading.refusal
               ? std::to_string(reading.refusal->offset) + ": " + reading.refusal->reason
               : "";
}

std::string utf16(const std::string& ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii)
        bytes += {c, '\0'};
    return bytes;
}

std::string declared(const std::string& encoding, const std::string& rest) {
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + rest;
}

TEST(SecondReader, ReadsWhatIsWellFormed) {
    for (const std::string& text : {"<a/>"s, "\xEF\xBB\xBF<a b='&lt;'>&#233;<![CDATA[&]]></a>\n"s,
                                    utf16("<a>x</a>"), declared("ISO-8859-1", "<a>\xE9</a>"),
                                    declared("US-ASCII", "<a/>"), "<!DOCTYPE a><a/>"s}) {
        EXPECT_EQ(refusal(text), "") << text;
        EXPECT_FALSE(read(text).doctype) << text;
    }
}

TEST(SecondReader, SaysWhereAndWhyAFileIsRefused) {
    EXPECT_EQ(refusal("<a>b & c</a>"),
              "5: \"&\" begins no reference; it has to be written as \"&amp;\"");
    EXPECT_EQ(refusal("<a b='<'/>"),
              "6: \"<\" begins no markup here; it has to be written as \"&lt;\"");
    EXPECT_EQ(refusal("<a>]]></a>"),
              "3: \"]]>\" may not stand in a text; it has to be written as \"]]&gt;\"");
    EXPECT_EQ(refusal("<a/>b"), "4: something follows the root element");
    EXPECT_EQ(refusal("<a b='' b=''/>"), "8: an attribute is repeated");
    EXPECT_EQ(refusal("<a>&b;</a>"), "3: a reference has a name that is defined nowhere");
    EXPECT_EQ(refusal("<a>&#0;</a>"), "3: a reference stands for no character that XML allows");
    EXPECT_EQ(refusal(" <?xml version='1.0'?><a/>"),
              "1: the declaration \"<?xml\" is not at the very beginning of the file");
    EXPECT_EQ(refusal("<a/>\0"s).substr(0, 2), "4:");
}

TEST(SecondReader, TellsOffsetsInUtf8) {
    EXPECT_EQ(refusal(utf16("<a>b & c</a>")).substr(0, 2), "8:"); // behind the byte-order mark
    const std::string latin1 = declared("ISO-8859-1", "<a>\xE9\xE9&</a>");
    EXPECT_EQ(read(latin1).refusal->offset, latin1.find('&') + 2);
}

TEST(SecondReader, ReadsEncodingsInWhichAsciiIsAscii) {
    for (const std::string name :
         {"windows-1252", "Windows-1250", "iso-8859-15", "latin1", "GBK"}) {
        EXPECT_EQ(refusal(declared(name, "<a>\xE9</a>")), "") << name;
        EXPECT_NE(refusal(declared(name, "<a>\xE9&</a>")), "") << name;
    }
}

TEST(SecondReader, RefusesEncodingsThatItDoesNotKnow) {
    for (const std::string name : {"utf8", "UTF-7", "EBCDIC-CP-US", "IBM037", "UTF-16"})
        EXPECT_EQ(refusal(declared(name, "<a/>")).substr(0, 3), "30:") << name;
    EXPECT_EQ(
        refusal(declared("EBCDIC-CP-US", "<a/>")),
        "30: the declaration says \"EBCDIC-CP-US\", which many programs do not know; the file "
        "is read as UTF-8, and what follows is not checked");
    EXPECT_EQ(refusal(declared("UTF-16", "<a/>")),
              "30: the declaration says \"UTF-16\", but the file is in UTF-8");
    EXPECT_EQ(refusal("\xFF\xFE\0\0<\0\0\0a\0\0\0/\0\0\0>\0\0\0"s).substr(0, 14), "0: the file is");
}

TEST(SecondReader, FindsHalvesOfCharactersInUtf16) {
    std::string text = utf16("<a>xy</a>");
    text[8] = '\x3D';
    text[9] = '\xD8';
    text[10] = '\x00';
    text[11] = '\xDE';
    EXPECT_EQ(refusal(text), "");
    text[11] = '\x41';
    EXPECT_EQ(refusal(text), "6: what stands here is not as XML asks for");
}

TEST(SecondReader, EndsAtADoctypeThatDeclaresSomething) {
    std::string laughs = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (int i = 1; i < 40; ++i) {
        const std::string before = "&e" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY e" + std::to_string(i) + " '" + before + before + "'>";
    }
    const SecondReading reading = read(laughs + "]><a>&e39;</a>");
    EXPECT_EQ(reading.doctype, 12U);
    EXPECT_FALSE(reading.refusal);
}

TEST(SecondReader, GoesOnAfterADoctypeThatNamesAFile) {
    const SecondReading reading = read("<!DOCTYPE a SYSTEM 'a.dtd'><a>&</a>");
    EXPECT_TRUE(reading.doctype);
    EXPECT_EQ(reading.refusal->offset, 30U);
}

TEST(SecondReader, ReadsTextsOfAnyShape) {
    const std::size_t million = 1000000;
    std::string deep;
    std::string attributes = "<a";
    for (std::size_t i = 0; i < million; ++i) {
        deep += "<a>";
        attributes += " a" + std::to_string(i) + "=''";
    }
    for (std::size_t i = 0; i < million; ++i)
        deep += "</a>";
    EXPECT_EQ(refusal(deep), "");
    EXPECT_EQ(refusal(attributes + "/>"), "");
    EXPECT_EQ(
        refusal("<a b='" + std::string(million, '\t') + "'>" + std::string(million, ']') + "</a>"),
        "");
}

} // namespace
