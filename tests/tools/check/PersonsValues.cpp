/// @file
/// The values of a package as a person reads them.

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "tests/tools/check/PersonsReading.h"

namespace test {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The value of a hexadecimal digit; nothing when it is none.
std::optional<unsigned> hexadecimal(char c) {
    if (isDigit(c))
        return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A' + 10);
    return std::nullopt;
}

/// Takes digits from the beginning of a text, and says whether there were any.
bool takeDigits(std::string_view& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count > 0;
}

bool take(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

bool isInteger(std::string_view text) {
    take(text, "+-");
    return takeDigits(text) && text.empty();
}

/// Digits with a point at most, and perhaps a power of ten: "54.5", ".5", "5.45e1".
bool isNumber(std::string_view text) {
    take(text, "+-");
    bool digits = takeDigits(text);
    if (take(text, "."))
        digits = takeDigits(text) || digits;
    if (!digits)
        return false;
    if (!take(text, "eE"))
        return text.empty();
    take(text, "+-");
    return takeDigits(text) && text.empty();
}

/// The value of digits; nothing when it is larger than any number here.
std::optional<double> valueOf(std::string_view number) {
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    double value = 0;
    stream >> value;
    if (stream.fail() && std::abs(value) > 1)
        return std::nullopt;
    return value;
}

} // namespace

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

std::optional<double> personsNumber(std::string_view text) {
    const std::string_view number = withoutBlanks(text);
    if (!isNumber(number))
        return std::nullopt;
    return valueOf(number);
}

std::optional<int> personsInteger(std::string_view text) {
    const std::string_view number = withoutBlanks(text);
    if (!isInteger(number))
        return std::nullopt;
    const auto value = valueOf(number);
    if (!value || *value > std::numeric_limits<int>::max() ||
        *value < std::numeric_limits<int>::min())
        return std::nullopt;
    return static_cast<int>(*value);
}

std::optional<boost::uuids::uuid> personsIdentifier(std::string_view text) {
    std::string_view digits = withoutBlanks(text);
    if (digits.size() > 2 && digits.front() == '{' && digits.back() == '}')
        digits = digits.substr(1, digits.size() - 2);
    constexpr std::string_view form = "00000000-0000-0000-0000-000000000000";
    const bool withHyphens = digits.size() == form.size();
    if (!withHyphens && digits.size() != 32)
        return std::nullopt;
    boost::uuids::uuid result{};
    std::size_t halves = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (withHyphens && form[i] == '-') {
            if (digits[i] != '-')
                return std::nullopt;
            continue;
        }
        const auto digit = hexadecimal(digits[i]);
        if (!digit)
            return std::nullopt;
        auto& byte = result.begin()[halves / 2];
        byte = static_cast<unsigned char>(byte * 16U + *digit);
        ++halves;
    }
    return result;
}

} // namespace test
