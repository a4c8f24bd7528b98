#include "tools/check/NumberReading.h"

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/support/Uuids.h"

using Oddity = NumberReading::Oddity;

namespace {

struct Case {
    std::string text;
    Oddity oddity;
    std::string read;
    std::size_t place = 0;
};

TEST(NumberReading, FindsWhatIsOddAboutANumber) {
    const std::vector<Case> cases = {
        {"135.5", Oddity::None, "135.5"},
        {" 7 ", Oddity::None, "7"},
        {"-0.0", Oddity::None, "-0"},
        {"+1e3", Oddity::None, "1000"},
        {"0e5", Oddity::None, "0"},
        {"", Oddity::Empty, "0"},
        {"n/a", Oddity::NotANumber, "0"},
        {".", Oddity::NotANumber, "0"},
        {"12,75", Oddity::CutOff, "12", 2},
        {"1 000", Oddity::CutOff, "1", 1},
        {"12 kg", Oddity::CutOff, "12", 2},
        {"1e999", Oddity::OutOfRange, "inf"},
        {"-1e999", Oddity::OutOfRange, "-inf"},
        {"1e-999", Oddity::OutOfRange, "0"},
        {"inf", Oddity::NotFinite, "inf"},
        {"-Infinity", Oddity::NotFinite, "-inf"},
        {"nan", Oddity::NotFinite, "nan"},
        {"0x1F", Oddity::Hexadecimal, "31"},
        {"0x.8", Oddity::Hexadecimal, "0.5"},
        {"0x", Oddity::CutOff, "0", 1},
        {"0xg", Oddity::CutOff, "0", 1},
        {"0x.", Oddity::CutOff, "0", 1},
        {"0x0p9", Oddity::Hexadecimal, "0"},
        {"0x1p-9999", Oddity::OutOfRange, "0"},
        {"\n   n/a", Oddity::NotANumber, "0", 4},
        {" \t1e999 ", Oddity::OutOfRange, "inf", 2},
        {"\r\ninf", Oddity::NotFinite, "inf", 2},
        {"  0x1F", Oddity::Hexadecimal, "31", 2},
        {"  12,5", Oddity::CutOff, "12", 4},
        {"  ", Oddity::NotANumber, "0"},
    };
    for (const Case& expected : cases) {
        const NumberReading number = readNumber(expected.text.c_str());
        EXPECT_EQ(number.oddity, expected.oddity) << expected.text;
        EXPECT_EQ(number.read, expected.read) << expected.text;
        EXPECT_EQ(number.place, expected.place) << expected.text;
    }
}

TEST(NumberReading, FindsWhatIsOddAboutAWholeNumber) {
    const std::vector<Case> cases = {
        {"2026", Oddity::None, "2026"},
        {" -3 ", Oddity::None, "-3"},
        {"+5", Oddity::None, "5"},
        {"2147483647", Oddity::None, "2147483647"},
        {"-2147483648", Oddity::None, "-2147483648"},
        {"0000000000000012", Oddity::None, "12"},
        {"", Oddity::Empty, "0"},
        {"x", Oddity::NotANumber, "0"},
        {"-", Oddity::NotANumber, "0"},
        {"12.5", Oddity::CutOff, "12", 2},
        {"1e3", Oddity::CutOff, "1", 1},
        {"2147483648", Oddity::OutOfRange, "2147483647"},
        {"-99999999999", Oddity::OutOfRange, "-2147483648"},
        {"0x10", Oddity::Hexadecimal, "16"},
        {"-0X10", Oddity::Hexadecimal, "-16"},
        {"0x", Oddity::CutOff, "0", 1},
        {"-0x", Oddity::CutOff, "0", 2},
        {"0x.8", Oddity::CutOff, "0", 2},
        {"0xg", Oddity::CutOff, "0", 1},
        {"0x80000000", Oddity::OutOfRange, "2147483647"},
        {"\n x", Oddity::NotANumber, "0", 2},
        {" 2147483648", Oddity::OutOfRange, "2147483647", 1},
    };
    for (const Case& expected : cases) {
        const NumberReading number = readInteger(expected.text.c_str());
        EXPECT_EQ(number.oddity, expected.oddity) << expected.text;
        EXPECT_EQ(number.read, expected.read) << expected.text;
        EXPECT_EQ(number.place, expected.place) << expected.text;
    }
}

/// A field with a latitude, read by the library.
double latitudeOf(const std::string& text) {
    pugi::xml_document document;
    const std::string id = to_string(test::uuid(1));
    pugi::xml_node field = document.append_child("Field");
    field.append_attribute("FieldID").set_value(id.c_str());
    field.append_child("FieldGeometryID").text().set(id.c_str());
    field.append_child("FieldGeometry").text().set(id.c_str());
    field.append_child("FieldCentroid").append_child("Latitude").text().set(text.c_str());
    return QenXmlParser().parseFieldNode({}, {}, field).centroid(test::uuid(1)).latitude;
}

int unitOf(const std::string& text) {
    pugi::xml_document document;
    const std::string id = to_string(test::uuid(1));
    pugi::xml_node rec = document.append_child("Rec");
    rec.append_attribute("RecID").set_value(id.c_str());
    rec.append_child("RecGeometry").text().set(id.c_str());
    rec.append_child("RecStats").append_child("RateUOMID").text().set(text.c_str());
    return QenXmlParser().parseRecNode({}, {}, rec).rateUomId();
}

TEST(NumberReading, AgreesWithTheLibraryOnRandomTexts) {
    std::mt19937 random(4); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    const std::string characters = "0123456789.,eE+-xXaAinfN ";
    for (int i = 0; i < 10000; ++i) {
        std::string text;
        for (auto length = random() % 14; length > 0; --length)
            text += characters[random() % (random() % 2 == 0 ? 10 : characters.size())];
        const double number = readNumber(text.c_str()).value;
        const double expected = latitudeOf(text);
        ASSERT_TRUE(number == expected || (std::isnan(number) && std::isnan(expected))) << text;
        ASSERT_EQ(readInteger(text.c_str()).value, unitOf(text)) << text;
    }
}

} // namespace
