#include "tools/Escape.h"

#include <cstddef>
#include <iterator>

#include <fmt/format.h>

#include "tools/Utf8.h"

namespace {

constexpr std::size_t excerptLength = 60; // characters

bool changesDirection(char32_t c) {
    return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

bool separatesLines(char32_t c) {
    return c == 0x2028 || c == 0x2029;
}

void appendEscaped(std::string& result, std::string_view bytes, const Utf8Character& character) {
    const char32_t c = character.codePoint;
    const auto number = static_cast<unsigned>(c);
    const auto out = std::back_inserter(result);
    if (c == '\n')
        result += "\\n";
    else if (c == '\t')
        result += "\\t";
    else if (c == '\\')
        result += "\\\\";
    else if (!character.valid || c < 0x20 || c == 0x7F)
        fmt::format_to(out, "\\x{:02X}", number);
    else if ((c >= 0x80 && c <= 0x9F) || changesDirection(c) || separatesLines(c))
        fmt::format_to(out, "\\u{{{:04X}}}", number);
    else
        result += bytes;
}

std::string escapeUpTo(std::size_t maximum, std::string_view text) {
    std::string result;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == maximum)
            return result + "...";
        const Utf8Character character = firstCharacter(text);
        appendEscaped(result, text.substr(0, character.length), character);
        text.remove_prefix(character.length);
    }
    return result;
}

} // namespace

std::string escape(std::string_view text) {
    return escapeUpTo(std::string_view::npos, text);
}

std::string escapeExcerpt(std::string_view text) {
    return escapeUpTo(excerptLength, text);
}
