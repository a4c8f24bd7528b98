#include "tools/check/ValueOffset.h"

#include <array>
#include <cstdint>
#include <string>

#include "tools/text/Utf8.h"

namespace {

/// A piece of a source: how many bytes it has there, and how many when it is read.
struct Piece {
    std::size_t written;
    std::size_t read;
};

constexpr Piece oneByte = {1, 1};

std::uint32_t digitValue(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<std::uint32_t>(c - '0');
    return static_cast<std::uint32_t>((c | ' ') - 'a' + 10);
}

/// A character given by its number: "&#32;" or "&#x20;".
Piece numberedCharacter(std::string_view text) {
    const bool hexadecimal = text.substr(2, 1) == "x";
    const std::size_t begin = hexadecimal ? 3 : 2;
    const std::size_t end =
        text.find_first_not_of(hexadecimal ? "0123456789abcdefABCDEF" : "0123456789", begin);
    if (end == begin || text.substr(end < text.size() ? end : text.size(), 1) != ";")
        return oneByte;
    std::uint32_t number = 0;
    for (const char digit : text.substr(begin, end - begin))
        number = number * (hexadecimal ? 16 : 10) + digitValue(digit);
    std::string character;
    appendUtf8(character, number);
    return {end + 1, character.size()};
}

/// What begins with "&".
Piece reference(std::string_view text) {
    if (text.substr(0, 2) == "&#")
        return numberedCharacter(text);
    constexpr std::array<std::string_view, 5> names = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
    for (const std::string_view name : names) {
        if (text.substr(0, name.size()) == name)
            return {name.size(), 1};
    }
    return oneByte; // which stands for itself
}

} // namespace

std::size_t sourceOffset(std::string_view source, std::size_t begin, std::size_t index) {
    constexpr std::string_view section = "<![CDATA[";
    const bool verbatim =
        begin >= section.size() && source.substr(begin - section.size(), section.size()) == section;
    std::size_t offset = begin;
    for (std::size_t read = 0; read < index && offset < source.size();) {
        const std::string_view rest = source.substr(offset);
        const Piece piece = rest.substr(0, 2) == "\r\n"        ? Piece{2, 1}
                            : rest.front() == '&' && !verbatim ? reference(rest)
                                                               : oneByte;
        offset += piece.written;
        read += piece.read;
    }
    return offset;
}
