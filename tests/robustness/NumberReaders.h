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

/// Texts in the place of a number.
inline std::vector<std::string> spellings() {
    const std::vector<std::string> ordinary = {
        "12.75", "-0.5", "0",      "0.0",        "-0",          "-0.0",
        "42",    "007",  "0.1",    "123456.789", "1e3",         "1E3",
        "1e+3",  "1e-3", "1.5e10", "2147483647", "-2147483648", "0.30000000000000004"};
    const std::vector<std::string> signsAndSpace = {
        "+3",    "+3.5",  "+-3",   "-+3",   "--3",   "- 3",   "-",
        "+",     "",      "  7",   "  7.5", "\t7.5", "\n7.5", "\r7.5",
        "\v7.5", "\f7.5", "7.5  ", "7 .5",  "7. 5",  " - 7",  "&#160;7"};
    const std::vector<std::string> pointsAndCommas = {
        "12,75", "12,75.5", "12.75,5", "1.234,5",  "1,234.5",  "1.234.567", "1,234,567",
        ",5",    ".5",      "-.5",     "+.5",      "5.",       "-5.",       ".",
        ",",     "-.",      ".e1",     "5.e1",     ".5e1",     "1..5",      "1,,5",
        "1'234", "1 234",   "1_234",   "&#x66B;5", "1&#x66B;5"};
    // what follows a number is ignored
    const std::vector<std::string> followed = {
        "12.75abc", "12.75 ha", "12.75e", "12.75e+", "12.75e-", "12.75ex", "12.75e 3",
        "1e3e3",    "1e3.5",    "1f",     "1d",      "1L",      "1u",      "1%"};
    // hexadecimal, and what only looks like another base
    const std::vector<std::string> bases = {
        "0x10",    "0X1F",     "-0x10",     "+0x10",
        "0x",      "0xg",      "0x.8",      "0x1.8",
        "0x1,8",   "0x1p4",    "0x1P-4",    "0x1p",
        "0x1.8p1", "0x1p1024", "0x1p-1080", "0x1.fffffffffffff8p0",
        "x10",     "010",      "0b11",      "0o17",
        "#10",     "$10"};
    const std::vector<std::string> noNumbers = {
        "inf", "-inf", "+inf", "INF", "Infinity", "-infinity", "infinit",
        "in",  "nan",  "-nan", "NAN", "nan()",    "nan(12)",   "nan(",
        "na",  "abc",  "e5",   "E",   "one",      "true",      "NULL"};
    // out of range, and at its edges
    const std::vector<std::string> edges = {"1e308",
                                            "1.7976931348623157e308",
                                            "1.7976931348623158e308",
                                            "1.7976931348623159e308",
                                            "1e309",
                                            "1e400",
                                            "-1e400",
                                            "1e99999",
                                            "1e999999999999999999999",
                                            "1e-400",
                                            "-1e-400",
                                            "1e-999999999999999999999",
                                            "2.2250738585072014e-308",
                                            "2.2250738585072011e-308",
                                            "4.9406564584124654e-324",
                                            "2.4703282292062327e-324",
                                            "2.4703282292062328e-324",
                                            "1e-310",
                                            "0e400",
                                            "0.0e-400",
                                            "2147483648",
                                            "-2147483649",
                                            "4294967296",
                                            "99999999999999999999",
                                            "-99999999999999999999",
                                            "0xFFFFFFFFFFFFFFFFF"};
    // halfway between two numbers
    const std::vector<std::string> halfway = {
        "9007199254740993",
        "9007199254740993.0000000000000001",
        "1.00000000000000011102230246251565",
        "1.000000000000000111022302462515654042363166809082031250",
        "1.000000000000000111022302462515654042363166809082031251",
        "5e-324",
        "8.5e22",
        "1e23"};
    const std::vector<std::string> manyDigits = {
        "3.14159265358979323846264338327950288419716939937510582097494459230781640628620899",
        "0." + std::string(400, '0') + "1",
        "1" + std::string(400, '0'),
        std::string(400, '0') + "1.5",
        std::string(400, '9'),
        "0." + std::string(400, '9'),
        "1" + std::string(400, '0') + "e-400",
        "0." + std::string(400, '0') + "1e401",
        "1.5" + std::string(900, '0') + "1",
        "0x" + std::string(400, 'f'),
        "0x0." + std::string(400, '0') + "1"};
    std::vector<std::string> all;
    for (const auto& some : {ordinary, signsAndSpace, pointsAndCommas, followed, bases, noNumbers,
                             edges, halfway, manyDigits})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

} // namespace test

#endif
