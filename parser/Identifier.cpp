#include "parser/internal/Identifier.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include <boost/throw_exception.hpp>

namespace qenxml {

namespace {

using DigitValues = std::array<unsigned char, 256>;

constexpr DigitValues makeDigitValues() {
    DigitValues values{};
    for (std::size_t c = 0; c < values.size(); ++c)
        values[c] = digitValue(static_cast<unsigned char>(c));
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

using Positions = std::array<std::size_t, identifierDigits / 2>;

/// Where the two digits of each byte begin, with or without hyphens.
constexpr Positions makePositions(bool hyphens) {
    Positions positions{};
    for (std::size_t digit = 0; digit < identifierDigits; digit += 2) {
        std::size_t position = digit;
        for (const std::size_t before : digitsBeforeHyphens)
            position += hyphens && before <= digit ? 1 : 0;
        positions[digit / 2] = position;
    }
    return positions;
}

constexpr Positions hyphened = makePositions(true);
constexpr Positions plain = makePositions(false);

/// Where the hyphen of a number stands.
constexpr std::size_t hyphen(std::size_t number) {
    return digitsBeforeHyphens[number] + number;
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
    const bool hyphens = text.size() > hyphen(0) && text[hyphen(0)] == '-';
    const std::size_t length = hyphens ? identifierLength : identifierDigits;
    if (text.size() < length + (braced ? 1 : 0) ||
        (hyphens && (text[hyphen(1)] != '-' || text[hyphen(2)] != '-' || text[hyphen(3)] != '-')) ||
        (braced && text[length] != '}'))
        boost::throw_exception(std::runtime_error("invalid uuid string"));
    return hyphens ? uuidFromDigits<hyphened>(text.data()) : uuidFromDigits<plain>(text.data());
}

} // namespace qenxml
