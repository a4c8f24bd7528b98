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

inline const boost::uuids::uuid anyUuid = uuid(7);

/// @param element makes the element
/// @param read    reads it by a parser
template <class Read>
Reader readerOf(const char* name, std::string (*element)(const std::string&), Read read) {
    return {name, [=](const std::string& text) {
                const Xml xml(element(text));
                QenXmlParser parser;
                return numbersOf(read(parser, xml.root()));
            }};
}

template <class Data>
Reader readerOf(const char* name, std::string (*element)(const std::string&),
                Data* (QenXmlParser::*read)(boost::uuids::uuid, pugi::xml_node)) {
    return {name, [=](const std::string& text) {
                const Xml xml(element(text));
                const std::unique_ptr<Data> data((QenXmlParser().*read)(anyUuid, xml.root()));
                return numbersOf<Data&>(*data);
            }};
}

inline std::string recElement(const std::string& text) {
    return recWithNumbers(31, RecTypeCustomFertilizer, text);
}

inline std::string recDataElement(const std::string& text) {
    return element("RecData", customFertilizer(text));
}

inline const std::vector<Reader>& readers() {
    using Parser = QenXmlParser;
    using Node = pugi::xml_node;
    static const std::vector<Reader> all = {
        {"parseFile",
         [](const std::string& text) {
             return numbersOf(growersOf(package(growerWithNumbers(text))).at(0));
         }},
        readerOf("parseGrowerNode", growerWithNumbers,
                 [](Parser& parser, Node node) { return parser.parseGrowerNode(node); }),
        readerOf("parseFarmNode", farmWithNumbers,
                 [](Parser& parser, Node node) { return parser.parseFarmNode(anyUuid, node); }),
        readerOf("parseFieldNode", fieldWithNumbers,
                 [](Parser& parser, Node node) {
                     return parser.parseFieldNode(anyUuid, anyUuid, node);
                 }),
        readerOf(
            "parseRecNode", recElement,
            [](Parser& parser, Node node) { return parser.parseRecNode(anyUuid, anyUuid, node); }),
        readerOf("parseRecDataNode", recDataElement, &Parser::parseRecDataNode),
        readerOf("parseCustomFertilizerRecDataNode", customFertilizer,
                 &Parser::parseCustomFertilizerRecDataNode),
        readerOf("parseCommercialFertilizerRecDataNode", commercialFertilizer,
                 &Parser::parseCommercialFertilizerRecDataNode),
        readerOf("parsePlantingRecDataNode", planting, &Parser::parsePlantingRecDataNode),
        readerOf("parsePesticideRecDataNode", pesticide, &Parser::parsePesticideRecDataNode),
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
