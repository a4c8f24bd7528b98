#include "tests/tools/check/PersonsReading.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"

namespace {

using test::personsIdentifier;
using test::personsInteger;
using test::personsNumber;

TEST(PersonsReading, TakesForANumberWhatAPersonDoes) {
    const std::vector<std::pair<std::string, double>> numbers = {
        {"0", 0},
        {"12.5", 12.5},
        {"-3", -3},
        {"+5", 5},
        {".5", 0.5},
        {"5.", 5},
        {"1e3", 1e3},
        {" 7\n", 7},
        {"1.000", 1.000},
        {"1.5E-2", 0.015},
        {"1.7976931348623157e308", 1.7976931348623157e308}};
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(personsNumber(text), number) << text;
    for (const char* const text :
         {"", " ", ".", "-", "0x10", "1,5", "1.000,5", "1.2.3", "inf", "nan", "1e", "1e999",
          "12 ha", "1 000", "\u0661", "12\u00A0", "- 3"})
        EXPECT_EQ(personsNumber(text), std::nullopt) << text;
}

TEST(PersonsReading, TakesForAWholeNumberWhatAPersonDoes) {
    EXPECT_EQ(personsInteger(" 007 "), 7);
    EXPECT_EQ(personsInteger("-2147483648"), -2147483648);
    for (const char* const text : {"", "1.0", "1e3", "0x1F", "2147483648", "1 2", "--1"})
        EXPECT_EQ(personsInteger(text), std::nullopt) << text;
}

TEST(PersonsReading, TakesForAnIdentifierWhatAPersonDoes) {
    const std::string text = "00112233-4455-6677-8899-aabbccddeeff";
    const auto id = test::uuid(text);
    for (const char* const form :
         {"00112233-4455-6677-8899-aabbccddeeff", "00112233-4455-6677-8899-AABBCCDDEEFF",
          "00112233445566778899aabbccddeeff", "{00112233-4455-6677-8899-aabbccddeeff}",
          "{00112233445566778899aabbccddeeff}", " 00112233445566778899aabbccddeeff\n"})
        EXPECT_EQ(personsIdentifier(form), id) << form;
    for (const std::string& form :
         {std::string(), text.substr(1), text + "0", "{" + text, "g" + text.substr(1),
          "0011-22334455-6677-8899-aabbccddeeff" + std::string(), text + "&x;"})
        EXPECT_EQ(personsIdentifier(form), std::nullopt) << form;
}

/// What a person wonders about in a document.
std::string doubt(const std::string& document) {
    const test::XmlReading xml = test::readXml(document);
    return xml.root ? test::readAsPerson(*xml.root, {}).doubt : "refused: " + xml.refusal;
}

TEST(PersonsReading, OverlooksNothing) {
    const std::string good = test::packageWithRecs(test::rec(4));
    EXPECT_EQ(doubt(good), "");
    EXPECT_EQ(doubt(test::package(test::grower(1, "<Note/>"))), "Note in Grower");
    EXPECT_EQ(doubt(test::package("x")), "text in RecPackage: x");
    EXPECT_EQ(doubt("<RecPackage a='1'/>"), "attribute a of RecPackage");
    EXPECT_EQ(doubt("<RecPackage xml:lang='de'/>"), "");
    EXPECT_EQ(doubt("<Package/>"), "the root is Package");
    EXPECT_EQ(
        doubt(test::packageWithRecs(test::rec(4, "<RecStats><Total>0x10</Total></RecStats>"))),
        "Total is no number: 0x10");
    EXPECT_EQ(doubt(test::packageWithRecs(
                  test::rec(4, "<RecStats><Total>1</Total><Total>2</Total></RecStats>"))),
              "which Total is it?");
    EXPECT_EQ(doubt(test::packageWithRecs(test::rec(4, "<RecName>a<b/></RecName>"))),
              "markup in RecName");
    EXPECT_EQ(doubt(test::packageWithRecs(
                  test::rec(4, "<RecData><Planting><UOM/></Planting></RecData>"))),
              "Planting without CropID");
}

TEST(PersonsReading, SeesTextsWhole) {
    const auto xml = test::readXml(
        "<!DOCTYPE RecPackage [<!ENTITY ha 'Hacienda'>]>" +
        test::package(test::grower(1, "<GrowerName>&ha; <!-- ? --><![CDATA[<A>]]></GrowerName>")));
    ASSERT_TRUE(xml.root);
    const auto reading = test::readAsPerson(*xml.root, {});
    ASSERT_EQ(reading.growers.size(), 1U);
    EXPECT_EQ(reading.growers[0].name, "Hacienda <A>");
    EXPECT_TRUE(reading.inPieces);
}

} // namespace
