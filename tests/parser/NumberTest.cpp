// How texts become numbers: seen through the latitude of a field.

#include "parser/QenXmlParser.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <rapidcheck/gtest.h>

#include "tests/support/NumberSpellings.h"
#include "tests/support/PackageText.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace {

/// The number that is read is the one that the XML library makes of the text, bit for bit.
bool isReadAsByTheXmlLibrary(const std::string& text) {
    const test::Xml xml(test::field(21, "<FieldCentroid><Latitude/></FieldCentroid>"));
    pugi::xml_node latitude = xml.root().child("FieldCentroid").child("Latitude");
    latitude.append_child(pugi::node_pcdata).set_value(text.c_str());
    const double expected = latitude.text().as_double();
    const double got = QenXmlParser()
                           .parseFieldNode(test::uuid(1), test::uuid(11), xml.root())
                           .geometries()
                           .at(0)
                           .centroid()
                           .latitude;
    if (std::isnan(expected))
        return std::isnan(got);
    return expected == got && std::signbit(expected) == std::signbit(got);
}

} // namespace

TEST(Number, OfAnUnusualTextIsThatOfTheXmlLibrary) {
    for (const std::string& text : test::spellings())
        EXPECT_TRUE(isReadAsByTheXmlLibrary(text)) << text;
}

TEST(Number, OfEveryLengthAndPlaceOfThePointIsThatOfTheXmlLibrary) {
    for (const std::string digits :
         {"9514242627359937", "7290416377907104495", "1000000000000000001"})
        for (std::size_t length = 1; length <= digits.size(); ++length)
            for (std::size_t place = 0; place <= length; ++place) {
                std::string text = digits.substr(0, length);
                text.insert(place, ".");
                EXPECT_TRUE(isReadAsByTheXmlLibrary(text)) << text;
                EXPECT_TRUE(isReadAsByTheXmlLibrary("-" + text)) << text;
            }
}

TEST(Number, OfOneCharacterManyTimesIsThatOfTheXmlLibrary) {
    for (char c = ' '; c < '\x7F'; ++c)
        for (std::size_t times = 1; times <= 20; ++times)
            EXPECT_TRUE(isReadAsByTheXmlLibrary(std::string(times, c))) << times << c;
}

TEST(Number, BehindOrBeforeAnyCharacterIsThatOfTheXmlLibrary) {
    for (char c = ' '; c < '\x7F'; ++c)
        for (const std::string digits : {"7", "12", "1.5"}) {
            EXPECT_TRUE(isReadAsByTheXmlLibrary(c + digits)) << c << digits;
            const std::string before = digits + c;
            EXPECT_TRUE(isReadAsByTheXmlLibrary(before)) << before;
            EXPECT_TRUE(isReadAsByTheXmlLibrary(before + digits)) << before << digits;
        }
}

RC_GTEST_PROP(Number, OfAnyTextIsThatOfTheXmlLibrary, ()) {
    const auto digit = rc::gen::elementOf(std::string("0123456789"));
    const auto other = rc::gen::elementOf(std::string("+-.eExXpPaAfFiInN ,\t"));
    const auto character = rc::gen::weightedOneOf<char>({{4, digit}, {1, other}});
    const std::string text = *rc::gen::container<std::string>(character);
    RC_ASSERT(isReadAsByTheXmlLibrary(text));
}

RC_GTEST_PROP(Number, OfAnyDecimalNumberIsThatOfTheXmlLibrary, ()) {
    const auto digits = rc::gen::container<std::string>(rc::gen::inRange('0', ':'));
    std::string text = *rc::gen::element<std::string>("", "-", "+");
    text += *digits + *rc::gen::element<std::string>("", ".") + *digits;
    text += *rc::gen::element<std::string>("", "e", "E-", "e+");
    text += std::to_string(*rc::gen::inRange(0, 330));
    RC_ASSERT(isReadAsByTheXmlLibrary(text));
}
