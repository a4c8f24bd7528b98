/// @file
/// Conversion of identifier text to UUIDs.

#ifndef QENXML_PARSER_INTERNAL_IDENTIFIER_H
#define QENXML_PARSER_INTERNAL_IDENTIFIER_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include <boost/uuid/uuid.hpp>

namespace qenxml {

/// The UUID that @p text spells.
///
/// Packages come with identifiers written in several ways, and with damaged ones, which must give
/// the same UUID in every program that reads them. Hence the exact rules:
///
/// - 32 digits, two for each of the 16 bytes, the first of them the high half.
/// - A leading "{" is skipped and asks for a "}" after the last digit.
/// - A "-" after the 8th digit is skipped and asks for one after the 12th, 16th and 20th digit as
///   well. Without it there, no hyphen is skipped anywhere.
/// - A digit is one of 0-9, a-f and A-F. Any other character in the place of a digit, a hyphen
///   included, does not fail: it counts as 255, and the byte is formed as `first << 4 | second`,
///   cut to 8 bits.
/// - What follows the last digit, or the closing brace, is ignored.
///
/// @throws std::runtime_error "invalid uuid string", which is a boost::exception as well, for a
///         text that is empty or ends too early, or lacks a hyphen or brace that it must have
boost::uuids::uuid uuidFromText(std::string_view text);

inline constexpr std::size_t identifierDigits = 32;

/// How many digits come before each hyphen.
inline constexpr std::array<std::size_t, 4> digitsBeforeHyphens = {8, 12, 16, 20};

/// How long an identifier with hyphens is.
inline constexpr std::size_t identifierLength = identifierDigits + digitsBeforeHyphens.size();

/// The value of a character in the place of a digit.
constexpr unsigned char digitValue(unsigned char c) {
    constexpr unsigned char none = 255;
    const int value = c >= '0' && c <= '9'   ? c - '0'
                      : c >= 'a' && c <= 'f' ? c - 'a' + 10
                      : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                             : none;
    return static_cast<unsigned char>(value);
}

/// What uuidFromText() makes of a text, and why.
struct ExplainedIdentifier {
    enum class Fault { None, Empty, TooShort, HyphenMissing, BraceMissing };

    Fault fault = Fault::None;  ///< Why it refuses the text, if it does.
    std::size_t digits = 0;     ///< How many digits come before the fault.
    std::size_t end = 0;        ///< The offset of the fault, or else of what is ignored.
    boost::uuids::uuid value{}; ///< Without a fault: the UUID.
};

/// The same rules as in uuidFromText(), character by character: slower, but able to say what is
/// wrong.
/// @param onWrongDigit called with the offset of each character that is no digit, in its place
template <class OnWrongDigit>
ExplainedIdentifier explainIdentifier(std::string_view text, OnWrongDigit onWrongDigit) {
    using Fault = ExplainedIdentifier::Fault;
    ExplainedIdentifier result;
    const auto skip = [&](char c) {
        const bool present = result.end < text.size() && text[result.end] == c;
        result.end += present ? 1 : 0;
        return present;
    };
    const auto fail = [&](Fault fault) {
        result.fault = fault;
        return result;
    };
    if (text.empty())
        return fail(Fault::Empty);
    const bool braced = skip('{');
    bool hyphened = true; // until the first hyphen is missing
    for (; result.digits < identifierDigits; ++result.digits, ++result.end) {
        const bool first = result.digits == digitsBeforeHyphens.front();
        const bool hyphenDue =
            hyphened && std::find(digitsBeforeHyphens.begin(), digitsBeforeHyphens.end(),
                                  result.digits) != digitsBeforeHyphens.end();
        if (hyphenDue && !skip('-')) {
            if (!first)
                return fail(result.end < text.size() ? Fault::HyphenMissing : Fault::TooShort);
            hyphened = false;
        }
        if (result.end == text.size())
            return fail(Fault::TooShort);
        const unsigned value = digitValue(static_cast<unsigned char>(text[result.end]));
        if (value >= 16)
            onWrongDigit(result.end);
        unsigned char& byte = result.value.begin()[result.digits / 2];
        byte = static_cast<unsigned char>(unsigned{byte} << 4U | value);
    }
    return braced && !skip('}') ? fail(Fault::BraceMissing) : result;
}

} // namespace qenxml

#endif
