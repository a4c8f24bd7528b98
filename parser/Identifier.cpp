#include "parser/Identifier.h"

#include <array>
#include <cstddef>
#include <stdexcept>

#include <boost/throw_exception.hpp>

namespace qenxml {

namespace {

/// The value of every character in the place of a digit; 255 for those that are none.
constexpr std::array<unsigned char, 256> makeDigitValues() {
    std::array<unsigned char, 256> values{};
    for (unsigned char& value : values)
        value = 255;
    for (unsigned char i = 0; i < 10; ++i)
        values['0' + i] = i;
    for (unsigned char i = 0; i < 6; ++i) {
        values['a' + i] = static_cast<unsigned char>(10 + i);
        values['A' + i] = static_cast<unsigned char>(10 + i);
    }
    return values;
}

constexpr std::array<unsigned char, 256> digitValues = makeDigitValues();

unsigned digitValue(char c) {
    return digitValues[static_cast<unsigned char>(c)];
}

using Positions = std::array<unsigned char, 16>;

/// Where the two digits of each byte begin, with and without hyphens.
constexpr Positions hyphened = {0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
constexpr Positions plain = {0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};

constexpr std::size_t length(const Positions& positions) {
    return positions.back() + 2U;
}

} // namespace

boost::uuids::uuid uuidFromText(std::string_view text) {
    const bool braced = !text.empty() && text.front() == '{';
    if (braced)
        text.remove_prefix(1);
    const bool hyphens = text.size() > 8 && text[8] == '-';
    const Positions& positions = hyphens ? hyphened : plain;
    const std::size_t digits = length(positions);
    if (text.size() < digits + (braced ? 1 : 0) ||
        (hyphens && (text[13] != '-' || text[18] != '-' || text[23] != '-')) ||
        (braced && text[digits] != '}'))
        boost::throw_exception(std::runtime_error("invalid uuid string"));

    boost::uuids::uuid uuid{};
    for (std::size_t i = 0; i < uuid.size(); ++i) {
        const char* const digit = text.data() + positions[i];
        uuid.begin()[i] =
            static_cast<unsigned char>(digitValue(digit[0]) << 4U | digitValue(digit[1]));
    }
    return uuid;
}

} // namespace qenxml
