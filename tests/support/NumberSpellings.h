/// @file
/// Texts in the place of a number, as everybody and as nobody writes it.

#ifndef QENXML_TESTS_SUPPORT_NUMBERSPELLINGS_H
#define QENXML_TESTS_SUPPORT_NUMBERSPELLINGS_H

#include <string>
#include <vector>

namespace test {

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
    const std::vector<std::string> edges = {
        "1e308",  "1e309", "1e400",    "-1e400",     "1e99999",     "1e-400",    "-1e-400",
        "1e-310", "0e400", "0.0e-400", "2147483648", "-2147483649", "4294967296"};
    const std::vector<std::string> longEdges = {
        "1.7976931348623157e308",  "1.7976931348623158e308",   "1.7976931348623159e308",
        "1e999999999999999999999", "1e-999999999999999999999", "2.2250738585072014e-308",
        "2.2250738585072011e-308", "4.9406564584124654e-324",  "2.4703282292062327e-324",
        "2.4703282292062328e-324", "99999999999999999999",     "-99999999999999999999",
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
    const std::vector<std::string> others = {
        " ",           "1e",           "1e+",           "1e5x",       "1.e5",
        "+1",          "+-1",          "--1",           "- 1",        "\t\n 1",
        "\v\f1",       "1 ",           "1 2",           "1,5",        "1.5.5",
        "00012",       "0x1F",         "-0X1f",         "0x1.8p3",    "-1e309",
        "4.9e-324",    "2e-324",       "INFINITY",      "infin",      "NAN(12)",
        "nano",        "1\xC2\xA0",    "\302\2401",     "\xD9\xA1",   "7",
        "-7",          "+7",           "123456789",     "-123456789", "1234567890",
        "99999999999", "-0x1F",        " 12",           "\t12",       "12 ",
        "12x",         "000000000012", "-000000000012", "1e2"};
    const std::vector<std::string> longOthers = {
        "1e99999999999999999999",
        "179769313486231570814527423731704356798070567525844996598917476803157260780028538760589",
        "0.1000000000000000055511151231257827021181583404541015625000000000000000000000000001"};
    std::vector<std::string> all;
    for (const auto& some : {ordinary, signsAndSpace, pointsAndCommas, followed, bases, noNumbers,
                             edges, longEdges, halfway, manyDigits, others, longOthers})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

} // namespace test

#endif
