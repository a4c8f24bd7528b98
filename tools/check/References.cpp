#include "tools/check/References.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace {

constexpr std::array<std::string_view, 5> known = {"amp", "lt", "gt", "quot", "apos"};

bool isNameCharacter(char c) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetter || (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '-' || c == '.' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// What stands between "&" and ";"; nothing when no reference begins here.
std::optional<std::string_view> referenceAt(std::string_view value) {
    const std::size_t hash = value.size() > 1 && value[1] == '#' ? 1 : 0;
    const auto* const end =
        std::find_if_not(value.begin() + 1 + hash, value.end(), isNameCharacter);
    const auto length = static_cast<std::size_t>(end - value.begin());
    if (end == value.end() || *end != ';' || length == 1 + hash)
        return std::nullopt;
    return value.substr(1, length - 1);
}

/// A number as the XML library reads it: modulo 2^32.
struct Number {
    std::uint32_t value = 0;
    bool hasWrapped = false;
};

std::optional<unsigned> digitOf(char c, unsigned base) {
    const char lower = static_cast<char>(c | ' ');
    const auto isDigit = c >= '0' && c <= '9';
    const auto isLetter = lower >= 'a' && lower <= 'f';
    if (!isDigit && !(isLetter && base == 16))
        return std::nullopt;
    return static_cast<unsigned>(isDigit ? c - '0' : lower - 'a' + 10);
}

/// The number of "#38" or "#x26"; nothing when it is none.
std::optional<Number> numberOf(std::string_view reference) {
    const unsigned base = reference.substr(0, 2) == "#x" ? 16 : 10;
    reference.remove_prefix(base == 16 ? 2 : 1);
    Number number;
    for (const char c : reference) {
        const auto digit = digitOf(c, base);
        if (!digit)
            return std::nullopt;
        const std::uint64_t next = std::uint64_t{number.value} * base + *digit;
        number.value = static_cast<std::uint32_t>(next);
        number.hasWrapped = number.hasWrapped || next != number.value;
    }
    return reference.empty() ? std::nullopt : std::optional(number);
}

/// Whether XML has a character.
bool isCharacter(std::uint32_t codePoint) {
    const bool isBlank = codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    const bool isControl = codePoint < ' ' || (codePoint >= 0x7F && codePoint <= 0x9F);
    return isBlank || !(isControl || codePoint == 0xFFFE || codePoint == 0xFFFF);
}

std::optional<ReferenceFate> fateOfNumber(const Number& number) {
    constexpr std::uint32_t lastCodePoint = 0x10FFFF;
    if (number.value == 0)
        return ReferenceFate::EndsValue;
    if ((number.value >= 0xD800 && number.value <= 0xDFFF) || number.value > lastCodePoint)
        return ReferenceFate::GivesNoText;
    return number.hasWrapped || !isCharacter(number.value)
               ? std::optional(ReferenceFate::GivesOther)
               : std::nullopt;
}

std::optional<ReferenceFate> fateOf(std::string_view reference) {
    if (reference.front() != '#')
        return std::find(known.begin(), known.end(), reference) == known.end()
                   ? std::optional(ReferenceFate::Stands)
                   : std::nullopt;
    const std::optional<Number> number = numberOf(reference);
    return number ? fateOfNumber(*number) : ReferenceFate::Stands;
}

} // namespace

std::vector<OddReference> oddReferences(std::string_view value) {
    std::vector<OddReference> odd;
    for (std::size_t at = value.find('&'); at != std::string_view::npos;
         at = value.find('&', at + 1)) {
        const auto reference = referenceAt(value.substr(at));
        const auto fate = reference ? fateOf(*reference) : std::nullopt;
        if (!fate)
            continue;
        const auto first = std::find_if(
            odd.begin(), odd.end(), [&](const OddReference& other) { return other.fate == *fate; });
        if (first == odd.end())
            odd.push_back({at, value.substr(at, reference->size() + 2), *fate});
        else
            ++first->more;
    }
    return odd;
}
