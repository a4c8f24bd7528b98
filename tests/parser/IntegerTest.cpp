// How texts become whole numbers: seen through the unit's code of a rec's rates.

#include <string>

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <rapidcheck/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/support/PackageText.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace {

/// Expects the number to be the one that the XML library makes of the text.
void expectReadAsByTheXmlLibrary(const std::string& text) {
    const test::Xml xml(test::rec(31, "<RecStats><RateUOMID/></RecStats>"));
    pugi::xml_node code = xml.root().child("RecStats").child("RateUOMID");
    code.append_child(pugi::node_pcdata).set_value(text.c_str());
    QenRec rec = QenXmlParser().parseRecNode(test::uuid(21), test::uuid(71), xml.root());
    EXPECT_EQ(code.text().as_int(), rec.rateUomId()) << text;
}

} // namespace

TEST(Integer, OfEveryLengthIsThatOfTheXmlLibrary) {
    for (const std::string digits :
         {"123456789012", "999999999999", "000000000012", "214748364700"})
        for (std::size_t length = 0; length <= digits.size(); ++length)
            for (const std::string sign : {"", "-", "+", "--", " -"})
                expectReadAsByTheXmlLibrary(sign + digits.substr(0, length));
}

TEST(Integer, OfOneCharacterManyTimesIsThatOfTheXmlLibrary) {
    for (char c = ' '; c < '\x7F'; ++c)
        for (std::size_t times = 1; times <= 12; ++times) {
            expectReadAsByTheXmlLibrary(std::string(times, c));
            expectReadAsByTheXmlLibrary("-" + std::string(times, c));
            expectReadAsByTheXmlLibrary("12" + std::string(times, c));
        }
}

TEST(Integer, BehindOrBeforeAnyCharacterIsThatOfTheXmlLibrary) {
    for (char c = ' '; c < '\x7F'; ++c)
        for (const std::string digits : {"7", "12"}) {
            expectReadAsByTheXmlLibrary(c + digits);
            const std::string before = digits + c;
            expectReadAsByTheXmlLibrary(before);
            expectReadAsByTheXmlLibrary(before + digits);
        }
}

RC_GTEST_PROP(Integer, OfAnyTextIsThatOfTheXmlLibrary, ()) {
    const auto digit = rc::gen::elementOf(std::string("0123456789"));
    const auto other = rc::gen::elementOf(std::string("+-.eExX ,"));
    const auto character = rc::gen::weightedOneOf<char>({{9, digit}, {1, other}});
    expectReadAsByTheXmlLibrary(*rc::gen::container<std::string>(character));
}
