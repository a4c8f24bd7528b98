/// @file
/// How texts of a package become values, as tables that many tests go through.

#ifndef QENXML_TESTS_SUPPORT_CONVERSIONS_H
#define QENXML_TESTS_SUPPORT_CONVERSIONS_H

#include <limits>
#include <string>
#include <vector>

namespace test {

template <class Value>
struct Conversion {
    std::string text;
    Value value;
};

/// Texts as they stand in a package, mark-up included, and what is read of them.
inline const std::vector<Conversion<std::string>>& textConversions() {
    static const std::vector<Conversion<std::string>> table = {
        {"  two\tblanks  ", "  two\tblanks  "}, // not trimmed
        {"\n   \n", ""},                        // blank text is no node
        {"<![CDATA[  ]]>", "  "},               // but a blank CDATA section is one
        {"&#32;", " "},
        {"<![CDATA[ <b> & ]]>", " <b> & "},
        {"<![CDATA[]]>rest", ""}, // the first node counts, also when it is empty
        {"<![CDATA[one]]>two", "one"},
        {"A &amp; B &lt;&gt;&quot;&apos;&#65;&#x42;", "A & B <>\"'AB"},
        {"&unknown; &", "&unknown; &"},
        {"one\r\ntwo\rthree", "one\ntwo\nthree"},
        {"<!-- comment -->text", "text"},
        {"one<!-- comment -->two", "one"},
        {"<?instruction?>text", "text"},
        {"<b>bold</b>text", "text"},
        {"<b>bold</b>", ""},
        {"one<b>bold</b>two", "one"},
        {"Z\xC3\xBCrich \xE8\xBE\xB2\xE5\xA0\xB4", "Z\xC3\xBCrich \xE8\xBE\xB2\xE5\xA0\xB4"},
        {"&#xFC;", "\xC3\xBC"},
    };
    return table;
}

/// Only numbers that are not negative.
inline const std::vector<Conversion<int>>& integerConversions() {
    constexpr int largest = std::numeric_limits<int>::max();
    static const std::vector<Conversion<int>> table = {
        {"42", 42},
        {"+5", 5},
        {"010", 10},
        {" 7 ", 7},
        {"12 acres", 12},
        {"1.9", 1},
        {"1e3", 1},
        {"0x1F", 31},
        {"0xfg", 15},
        {"acres", 0},
        {"--3", 0},
        {"- 4", 0},
        {"2147483647", largest},
        {"2147483648", largest},
        {"4294967297", largest},
        {"99999999999999999999", largest},
        {"0xFFFFFFFFFF", largest},
    };
    return table;
}

inline const std::vector<Conversion<int>>& negativeIntegerConversions() {
    constexpr int smallest = std::numeric_limits<int>::min();
    static const std::vector<Conversion<int>> table = {
        {"-3", -3},
        {"-0x10", -16},
        {"-1.9", -1},
        {"-2147483648", smallest},
        {"-99999999999", smallest},
    };
    return table;
}

inline const std::vector<Conversion<double>>& numberConversions() {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    static const std::vector<Conversion<double>> table = {
        {"45.5", 45.5},      {"-45.5", -45.5},      {"+.5", 0.5},    {"5.", 5.0},
        {" 7.25 ", 7.25},    {"12 acres", 12.0},    {"1,5", 1.0},    {"acres", 0.0},
        {"1e3", 1000.0},     {"1E-2", 0.01},        {"1e", 1.0},     {"0x1F", 31.0},
        {"1e999", infinite}, {"-1e999", -infinite}, {"1e-999", 0.0}, {"99999999999", 99999999999.0},
        {"-0", -0.0},
    };
    return table;
}

/// Forms of one identifier, or of one beside it, that are accepted. The value is a canonical text.
inline const std::vector<Conversion<std::string>>& identifierConversions() {
    static const std::string same = "00112233-4455-6677-8899-aabbccddeeff";
    static const std::vector<Conversion<std::string>> table = {
        {same, same},
        {"00112233-4455-6677-8899-AABBCCDDEEFF", same},
        {"00112233445566778899AABBCCDDEEFF", same},
        {"{00112233-4455-6677-8899-aabbccddeeff}", same},
        {"{00112233445566778899aabbccddeeff}", same},
        {"00112233-4455-6677-8899-aabbccddeeff and more", same},
        {"{00112233-4455-6677-8899-aabbccddeeff}}", same},
        {"g0112233-4455-6677-8899-aabbccddeeff", "f0112233-4455-6677-8899-aabbccddeeff"},
        {"0g112233-4455-6677-8899-aabbccddeeff", "ff112233-4455-6677-8899-aabbccddeeff"},
    };
    return table;
}

/// Texts that are no identifiers, apart from the empty one.
inline const std::vector<std::string>& brokenIdentifiers() {
    static const std::vector<std::string> table = {
        "abc",
        "00112233-4455-6677-8899-aabbccddeef",
        "00112233-44556677-8899-aabbccddeeff",
        "00112233-4455-66778899-aabbccddeeff",
        "00112233-4455-6677-8899aabbccddeeff",
        "{",
        "{00112233445566778899aabbccddeeff",
        "{00112233-4455-6677-8899-aabbccddeeff)",
    };
    return table;
}

} // namespace test

#endif
