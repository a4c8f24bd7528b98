#include "parser/internal/Identifier.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include <boost/throw_exception.hpp>

namespace qenxml {

namespace {

using DigitValues = std::array<unsigned char, 256>;

/// The value of every character in the place of a digit; 255 for those that are none.
constexpr DigitValues makeDigitValues() {
    DigitValues values{};
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

constexpr DigitValues makeHighHalves() {
    DigitValues values = makeDigitValues();
    for (unsigned char& value : values)
        value = static_cast<unsigned char>(value << 4U);
    return values;
}

constexpr DigitValues digitValues = makeDigitValues();
constexpr DigitValues highHalves = makeHighHalves();

using Positions = std::array<unsigned char, 16>;

/// Where the two digits of each byte begin, with and without hyphens.
constexpr Positions hyphened = {0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
constexpr Positions plain = {0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};

constexpr std::size_t length(const Positions& positions) {
    return positions.back() + 2U;
}

/// The UUID of digits that are all there. The positions are known while compiling, which saves a
/// third of the instructions.
template <const Positions& positions, std::size_t... I>
boost::uuids::uuid uuidFromDigits(const char* text, std::index_sequence<I...> /*bytes*/) {
    const auto digit = [text](std::size_t position) {
        return static_cast<unsigned char>(text[position]);
    };
    boost::uuids::uuid uuid{};
    ((uuid.begin()[I] = static_cast<unsigned char>(highHalves[digit(positions[I])] |
                                                   digitValues[digit(positions[I] + 1U)])),
     ...);
    return uuid;
}

template <const Positions& positions>
boost::uuids::uuid uuidFromDigits(const char* text) {
    return uuidFromDigits<positions>(text, std::make_index_sequence<positions.size()>());
}

} // namespace

boost::uuids::uuid uuidFromText(std::string_view text) {
    const bool braced = !text.empty() && text.front() == '{';
    if (braced)
        text.remove_prefix(1);
    const bool hyphens = text.size() > 8 && text[8] == '-';
    const std::size_t digits = length(hyphens ? hyphened : plain);
    if (text.size() < digits + (braced ? 1 : 0) ||
        (hyphens && (text[13] != '-' || text[18] != '-' || text[23] != '-')) ||
        (braced && text[digits] != '}'))
        boost::throw_exception(std::runtime_error("invalid uuid string"));
    return hyphens ? uuidFromDigits<hyphened>(text.data()) : uuidFromDigits<plain>(text.data());
}

} // namespace qenxml
