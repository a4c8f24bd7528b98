#include "tools/check/NumberReading.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <new>

#include <fmt/format.h>
#include <pugixml.hpp>

#include "parser/internal/Number.h"

namespace {

constexpr const char* whiteSpace = " \t\r\n";
constexpr const char* decimalDigits = "0123456789";
constexpr const char* hexadecimalDigits = "0123456789abcdefABCDEF";

/// A text without what may come before every number.
const char* unsignedPart(const char* text) {
    text += std::strspn(text, whiteSpace);
    return *text == '-' || *text == '+' ? text + 1 : text;
}

bool isHexadecimal(const char* text) {
    const char* const number = unsignedPart(text);
    if (number[0] != '0' || (number[1] != 'x' && number[1] != 'X'))
        return false;
    const char* const digits = number[2] == '.' ? number + 3 : number + 2;
    return std::strspn(digits, hexadecimalDigits) > 0;
}

/// How many characters of a text the library takes for a whole number.
std::size_t integerLength(const char* text) {
    const char* number = unsignedPart(text);
    const char* end = nullptr;
    if (isHexadecimal(text)) {
        end = number + 2 + std::strspn(number + 2, hexadecimalDigits);
    } else {
        end = number + std::strspn(number, decimalDigits);
        if (end == number)
            return 0;
    }
    return static_cast<std::size_t>(end - text);
}

/// What the XML library reads, which converts whole numbers for the library.
int integerOf(const char* text) {
    pugi::xml_document document;
    pugi::xml_attribute attribute = document.append_child("n").append_attribute("n");
    if (!attribute.set_value(text))
        throw std::bad_alloc(); // Nothing else fails here.
    return attribute.as_int();
}

bool isRest(const char* text) {
    return text[std::strspn(text, whiteSpace)] != '\0';
}

/// Finds the fault of a text of which a number was read.
/// @param length how much of it the number takes; 0 when there is none
/// @param inRange whether the number is the one that is written
void findOddity(NumberReading& number, const char* text, std::size_t length, bool inRange) {
    if (*text == '\0') {
        number.fault = NumberReading::Fault::Empty;
    } else if (length == 0) {
        number.fault = NumberReading::Fault::NotANumber;
    } else if (isRest(text + length)) {
        number.fault = NumberReading::Fault::CutOff;
        number.offset = length;
    } else if (!inRange) {
        number.fault = NumberReading::Fault::OutOfRange;
    } else if (!std::isfinite(number.value)) {
        number.fault = NumberReading::Fault::NotFinite;
    } else if (isHexadecimal(text)) {
        number.fault = NumberReading::Fault::Hexadecimal;
    }
    const bool ofAll =
        number.fault != NumberReading::Fault::None && number.fault != NumberReading::Fault::CutOff;
    if (ofAll && isRest(text))
        number.offset = std::strspn(text, whiteSpace);
}

} // namespace

std::string NumberReading::read() const {
    return fmt::format("{}", value);
}

bool isPlainNumber(const char* text, bool whole) {
    // So few digits that an integer and a double hold them, and none of them is too small.
    constexpr std::size_t most = 9;
    constexpr std::size_t mostOfFraction = 99;
    const char* const number = *text == '-' ? text + 1 : text;
    const std::size_t digits = std::strspn(number, decimalDigits);
    if (digits == 0 || digits > most)
        return false;
    const char* const rest = number + digits;
    if (*rest != '.' || whole)
        return *rest == '\0';
    const std::size_t fraction = std::strspn(rest + 1, decimalDigits);
    return fraction > 0 && fraction <= mostOfFraction && rest[1 + fraction] == '\0';
}

NumberReading readNumber(const char* text) {
    NumberReading number;
    char* end = nullptr;
    errno = 0;
    number.value = qenxml::decodeNumber(text, &end);
    // Numbers so small that they lose digits are out of range to the C library, but not here.
    const bool inRange = errno != ERANGE || (number.value != 0 && std::isfinite(number.value));
    findOddity(number, text, static_cast<std::size_t>(end - text), inRange);
    return number;
}

NumberReading readInteger(const char* text) {
    NumberReading number;
    const int value = integerOf(text);
    const std::size_t length = integerLength(text);
    number.value = value;
    // Anything of more digits than this is wrong by a factor, so a double tells it well enough.
    const double written = qenxml::decodeNumber(std::string(text, length).c_str(), nullptr);
    findOddity(number, text, length, written == number.value);
    return number;
}
