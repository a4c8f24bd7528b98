#include "tools/check/NumberReading.h"

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/support/Uuids.h"

using Fault = NumberReading::Fault;

namespace {

struct Case {
    std::string text;
    Fault fault;
    std::string read;
    std::size_t offset = 0;
};

TEST(NumberReading, FindsWhatIsOddAboutANumber) {
    const std::vector<Case> cases = {
        {"135.5", Fault::None, "135.5"},
        {" 7 ", Fault::None, "7"},
        {"-0.0", Fault::None, "-0"},
        {"+1e3", Fault::None, "1000"},
        {"0e5", Fault::None, "0"},
        {"", Fault::Empty, "0"},
        {"n/a", Fault::NotANumber, "0"},
        {".", Fault::NotANumber, "0"},
        {"12,75", Fault::CutOff, "12", 2},
        {"1 000", Fault::CutOff, "1", 1},
        {"12 kg", Fault::CutOff, "12", 2},
        {"1e999", Fault::OutOfRange, "inf"},
        {"-1e999", Fault::OutOfRange, "-inf"},
        {"1e-999", Fault::OutOfRange, "0"},
        {"inf", Fault::NotFinite, "inf"},
        {"-Infinity", Fault::NotFinite, "-inf"},
        {"nan", Fault::NotFinite, "nan"},
        {"0x1F", Fault::Hexadecimal, "31"},
        {"0x.8", Fault::Hexadecimal, "0.5"},
        {"0x", Fault::CutOff, "0", 1},
        {"0xg", Fault::CutOff, "0", 1},
        {"0x.", Fault::CutOff, "0", 1},
        {"0x0p9", Fault::Hexadecimal, "0"},
        {"0x1p-9999", Fault::OutOfRange, "0"},
        {"\n   n/a", Fault::NotANumber, "0", 4},
        {" \t1e999 ", Fault::OutOfRange, "inf", 2},
        {"\r\ninf", Fault::NotFinite, "inf", 2},
        {"  0x1F", Fault::Hexadecimal, "31", 2},
        {"  12,5", Fault::CutOff, "12", 4},
        {"  ", Fault::NotANumber, "0"},
    };
    for (const Case& expected : cases) {
        const NumberReading number = readNumber(expected.text.c_str());
        EXPECT_EQ(number.fault, expected.fault) << expected.text;
        EXPECT_EQ(number.read(), expected.read) << expected.text;
        EXPECT_EQ(number.offset, expected.offset) << expected.text;
    }
}

TEST(NumberReading, FindsWhatIsOddAboutAWholeNumber) {
    const std::vector<Case> cases = {
        {"2026", Fault::None, "2026"},
        {" -3 ", Fault::None, "-3"},
        {"+5", Fault::None, "5"},
        {"2147483647", Fault::None, "2147483647"},
        {"-2147483648", Fault::None, "-2147483648"},
        {"0000000000000012", Fault::None, "12"},
        {"", Fault::Empty, "0"},
        {"x", Fault::NotANumber, "0"},
        {"-", Fault::NotANumber, "0"},
        {"12.5", Fault::CutOff, "12", 2},
        {"1e3", Fault::CutOff, "1", 1},
        {"2147483648", Fault::OutOfRange, "2147483647"},
        {"-99999999999", Fault::OutOfRange, "-2147483648"},
        {"0x10", Fault::Hexadecimal, "16"},
        {"-0X10", Fault::Hexadecimal, "-16"},
        {"0x", Fault::CutOff, "0", 1},
        {"-0x", Fault::CutOff, "0", 2},
        {"0x.8", Fault::CutOff, "0", 2},
        {"0xg", Fault::CutOff, "0", 1},
        {"0x80000000", Fault::OutOfRange, "2147483647"},
        {"\n x", Fault::NotANumber, "0", 2},
        {" 2147483648", Fault::OutOfRange, "2147483647", 1},
    };
    for (const Case& expected : cases) {
        const NumberReading number = readInteger(expected.text.c_str());
        EXPECT_EQ(number.fault, expected.fault) << expected.text;
        EXPECT_EQ(number.read(), expected.read) << expected.text;
        EXPECT_EQ(number.offset, expected.offset) << expected.text;
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
