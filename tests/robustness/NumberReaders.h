/// @file
/// Every public reader, compared with what the XML library reads in the "C" locale.

#ifndef QENXML_TESTS_ROBUSTNESS_NUMBERREADERS_H
#define QENXML_TESTS_ROBUSTNESS_NUMBERREADERS_H

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/Locales.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/support/PackageReading.h"
#include "tests/support/Xml.h"

namespace test {

/// Every public reader, each called directly with an element whose numbers are all spelt @p text.
struct Reader {
    std::string name;
    std::function<Numbers(const std::string& text)> read;
};

template <class Record>
Numbers numbersOf(Record record) {
    Numbers numbers;
    numbers.add(record);
    return numbers;
}

template <class Data>
Numbers numbersOfData(Data* data) {
    const std::unique_ptr<Data> owner(data);
    return numbersOf<Data&>(*owner);
}

inline const boost::uuids::uuid anyUuid = uuid(7);

inline const std::vector<Reader>& readers() {
    static const std::vector<Reader> all = {
        {"parseFile",
         [](const std::string& text) {
             return numbersOf(growersOf(package(growerWithNumbers(text))).at(0));
         }},
        {"parseGrowerNode",
         [](const std::string& text) {
             const Xml xml(growerWithNumbers(text));
             return numbersOf(QenXmlParser().parseGrowerNode(xml.root()));
         }},
        {"parseFarmNode",
         [](const std::string& text) {
             const Xml xml(farmWithNumbers(text));
             return numbersOf(QenXmlParser().parseFarmNode(anyUuid, xml.root()));
         }},
        {"parseFieldNode",
         [](const std::string& text) {
             const Xml xml(fieldWithNumbers(text));
             return numbersOf(QenXmlParser().parseFieldNode(anyUuid, anyUuid, xml.root()));
         }},
        {"parseRecNode",
         [](const std::string& text) {
             const Xml xml(recWithNumbers(31, customFertilizer(text), text));
             return numbersOf(QenXmlParser().parseRecNode(anyUuid, anyUuid, xml.root()));
         }},
        {"parseRecDataNode",
         [](const std::string& text) {
             const Xml xml(element("RecData", customFertilizer(text)));
             return numbersOfData(QenXmlParser().parseRecDataNode(anyUuid, xml.root()));
         }},
        {"parseCustomFertilizerRecDataNode",
         [](const std::string& text) {
             const Xml xml(customFertilizer(text));
             return numbersOfData(
                 QenXmlParser().parseCustomFertilizerRecDataNode(anyUuid, xml.root()));
         }},
        {"parseCommercialFertilizerRecDataNode",
         [](const std::string& text) {
             const Xml xml(commercialFertilizer(text));
             return numbersOfData(
                 QenXmlParser().parseCommercialFertilizerRecDataNode(anyUuid, xml.root()));
         }},
        {"parsePlantingRecDataNode",
         [](const std::string& text) {
             const Xml xml(planting(text));
             return numbersOfData(QenXmlParser().parsePlantingRecDataNode(anyUuid, xml.root()));
         }},
        {"parsePesticideRecDataNode",
         [](const std::string& text) {
             const Xml xml(pesticide(text));
             return numbersOfData(QenXmlParser().parsePesticideRecDataNode(anyUuid, xml.root()));
         }},
    };
    return all;
}

/// What the XML library itself reads in the "C" locale: the reference for everything here.
struct Reference {
    double number;
    int integer;

    explicit Reference(const std::string& text) {
        static const locale_t c = newlocale(LC_ALL_MASK, "C", locale_t{});
        const ThreadLocale inC(c);
        const Xml xml(element("Number", text));
        number = xml.root().text().as_double();
        integer = xml.root().text().as_int();
    }
};

/// A number down to its last bit; of one that is none, only the sign.
inline std::string exact(double number) {
    if (std::isnan(number))
        return std::signbit(number) ? "-nan" : "nan";
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    char text[32];
    char* const end = std::to_chars(text, text + sizeof text, bits, 16).ptr;
    return {text, end};
}

inline void expectNumbersAsInTheCLocale(const Reader& reader, const std::string& text) {
    SCOPED_TRACE(reader.name + " of \"" + text.substr(0, 60) + "\"");
    const Reference reference(text);
    const Numbers numbers = reader.read(text);
    EXPECT_FALSE(numbers.integers.empty());
    for (const auto& [place, value] : numbers.doubles)
        EXPECT_EQ(exact(value), exact(reference.number)) << place;
    for (const auto& [place, value] : numbers.integers)
        EXPECT_EQ(value, reference.integer) << place;
    for (const int season : numbers.seasons)
        EXPECT_EQ(season, reference.integer < 0 ? -1 : reference.integer);
}

} // namespace test

#endif
