#include "tools/text/Escape.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include <fmt/format.h>

#include "tools/text/Utf8.h"

namespace {

constexpr std::size_t excerptLength = 60; // characters

/// Code points from the first to the last one.
struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array unseen = {
    Range{0x00, 0x1F},       // control characters
    Range{0x7F, 0x9F},       // more of them
    Range{0xAD, 0xAD},       // soft hyphen
    Range{0x034F, 0x034F},   // joins what stands around it
    Range{0x061C, 0x061C},   // Arabic letter mark: direction
    Range{0x115F, 0x1160},   // Hangul fillers
    Range{0x17B4, 0x17B5},   // Khmer vowels that are not written
    Range{0x180E, 0x180E},   // Mongolian vowel separator
    Range{0x200B, 0x200B},   // zero-width space
    Range{0x200E, 0x200F},   // marks of direction
    Range{0x2028, 0x2029},   // line and paragraph separator
    Range{0x202A, 0x202E},   // embeddings and overrides of direction
    Range{0x2060, 0x206F},   // word joiner, invisible operators, isolates of direction
    Range{0x3164, 0x3164},   // Hangul filler
    Range{0xFEFF, 0xFEFF},   // zero-width no-break space, or byte-order mark
    Range{0xFFA0, 0xFFA0},   // Hangul filler
    Range{0xFFF9, 0xFFFB},   // annotations between lines
    Range{0x1BCA0, 0x1BCA3}, // format of shorthand
    Range{0x1D173, 0x1D17A}, // format of music
    Range{0xE0000, 0xE0FFF}, // tags and the like
};

/// Beside those: blanks, and what shows only with a character beside it.
constexpr std::array blank = {
    Range{0x20, 0x20},     // space
    Range{0xA0, 0xA0},     // no-break space
    Range{0x1680, 0x1680}, // Ogham space
    Range{0x180B, 0x180F}, // Mongolian selectors of variants
    Range{0x2000, 0x200F}, // spaces of all widths, joiners
    Range{0x202F, 0x202F}, // narrow no-break space
    Range{0x205F, 0x205F}, // mathematical space
    Range{0x2800, 0x2800}, // Braille without dots
    Range{0x3000, 0x3000}, // ideographic space
    Range{0xFE00, 0xFE0F}, // selectors of variants
};

template <std::size_t size>
bool isIn(const std::array<Range, size>& ranges, char32_t c) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

void appendEscaped(std::string& result, std::string_view bytes, const Utf8Character& character) {
    const char32_t c = character.codePoint;
    const auto number = static_cast<unsigned>(c);
    const auto out = std::back_inserter(result);
    if (!character.valid || (isUnseen(c) && c < 0x80))
        fmt::format_to(out, "\\x{:02X}", number);
    else if (isUnseen(c))
        fmt::format_to(out, "\\u{{{:04X}}}", number);
    else
        result += bytes;
}

void appendOnOneLine(std::string& result, std::string_view bytes, const Utf8Character& character) {
    if (bytes == "\n")
        result += "\\n";
    else if (bytes == "\t")
        result += "\\t";
    else if (bytes == "\\")
        result += "\\\\";
    else
        appendEscaped(result, bytes, character);
}

std::string escapeUpTo(std::size_t maximum, std::string_view text) {
    std::string result;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == maximum)
            return result + "...";
        const Utf8Character character = firstCharacter(text);
        appendOnOneLine(result, text.substr(0, character.length), character);
        text.remove_prefix(character.length);
    }
    return result;
}

} // namespace

bool isUnseen(char32_t c) {
    if (c >= 0x20 && c < 0x7F) // most there are
        return false;
    return isIn(unseen, c);
}

bool isBlank(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        if (!character.valid ||
            !(isIn(blank, character.codePoint) || isUnseen(character.codePoint)))
            return false;
        text.remove_prefix(character.length);
    }
    return true;
}

std::string escape(std::string_view text) {
    return escapeUpTo(std::string_view::npos, text);
}

std::string escapeExcerpt(std::string_view text) {
    return escapeUpTo(excerptLength, text);
}

std::string escapeDocument(std::string_view text) {
    constexpr std::array<std::string_view, 3> layout = {"\r\n", "\n", "\t"};
    std::string result;
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    while (!text.empty()) {
        const auto* const kept =
            std::find_if(layout.begin(), layout.end(), [text](std::string_view end) {
                return text.substr(0, end.size()) == end;
            });
        const Utf8Character character = firstCharacter(text);
        const std::size_t length = kept == layout.end() ? character.length : kept->size();
        if (kept == layout.end())
            appendEscaped(result, text.substr(0, length), character);
        else
            result += *kept;
        text.remove_prefix(length);
    }
    return result;
}
