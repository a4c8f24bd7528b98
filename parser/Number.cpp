#include "parser/internal/Number.h"

#include <array>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace qenxml {

namespace {

constexpr std::size_t maximumDigits = 15;

/// Whole numbers of up to 15 digits, and these powers of ten, are exact in a double.
constexpr std::array<double, maximumDigits + 1> powersOfTen = {
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads a text that is a short plain decimal and nothing else, as nearly all numbers are: faster
/// than strtod(), and as exactly, because one division of exact numbers rounds correctly.
std::optional<double> shortDecimal(const char* text) {
    const bool negative = *text == '-';
    const char* c = negative ? text + 1 : text;
    std::int64_t digits = 0;
    std::size_t count = 0;
    const auto readDigits = [&] {
        for (; isDigit(*c) && count <= maximumDigits; ++c, ++count)
            digits = digits * 10 + (*c - '0');
    };
    readDigits();
    const std::size_t beforePoint = count;
    if (*c == '.') {
        ++c;
        readDigits();
    }
    if (*c != '\0' || count == 0 || count > maximumDigits)
        return std::nullopt;
    const double number = static_cast<double>(digits) / powersOfTen[count - beforePoint];
    return negative ? -number : number;
}

} // namespace

std::optional<int> shortInteger(const char* text) {
    constexpr std::ptrdiff_t longest = 9; // Any number of so many digits is an int.
    const bool negative = *text == '-';
    const char* const begin = negative ? text + 1 : text;
    const char* c = begin;
    int number = 0;
    for (; isDigit(*c) && c - begin < longest; ++c)
        number = number * 10 + (*c - '0');
    if (*c != '\0' || c == begin)
        return std::nullopt;
    return negative ? -number : number;
}

double numberFromText(const char* text) {
    // Not where doubles are calculated with more digits than they hold, and so rounded twice.
    if (FLT_EVAL_METHOD == 0) {
        if (const std::optional<double> number = shortDecimal(text))
            return *number;
    }
    return decodeNumber(text, nullptr);
}

} // namespace qenxml
