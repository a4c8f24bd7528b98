#include "tools/SourceText.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "tools/Utf8.h"

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The encoding that pugixml takes the content of a file for. It does not say so before it has
/// loaded it.
pugi::xml_encoding encodingOf(const std::string& bytes) {
    return pugi::xml_document().load_buffer(bytes.data(), bytes.size()).encoding;
}

/// One number of @p size bytes.
char32_t unitAt(const std::string& bytes, std::size_t index, std::size_t size, bool bigEndian) {
    char32_t unit = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t place = bigEndian ? i : size - 1 - i;
        unit = unit << 8U | static_cast<unsigned char>(bytes[index + place]);
    }
    return unit;
}

// What is no character is left out, as pugixml does.

std::string fromUtf16(const std::string& bytes, bool bigEndian) {
    std::string text;
    char32_t lead = 0;
    for (std::size_t i = 0; i + 2 <= bytes.size(); i += 2) {
        const char32_t unit = unitAt(bytes, i, 2, bigEndian);
        if (unit >= 0xD800 && unit <= 0xDBFF) {
            lead = unit;
            continue;
        }
        if (unit < 0xDC00 || unit > 0xDFFF)
            appendUtf8(text, unit);
        else if (lead != 0)
            appendUtf8(text, 0x10000U + ((lead & 0x3FFU) << 10U | (unit & 0x3FFU)));
        lead = 0;
    }
    return text;
}

std::string fromUtf32(const std::string& bytes, bool bigEndian) {
    std::string text;
    for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4) {
        const char32_t unit = unitAt(bytes, i, 4, bigEndian);
        if (unit <= 0x10FFFF && (unit < 0xD800 || unit > 0xDFFF))
            appendUtf8(text, unit);
    }
    return text;
}

std::string fromLatin1(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes)
        appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

std::string toUtf8(std::string bytes) {
    switch (encodingOf(bytes)) {
    case pugi::encoding_utf16_le:
        return fromUtf16(bytes, false);
    case pugi::encoding_utf16_be:
        return fromUtf16(bytes, true);
    case pugi::encoding_utf32_le:
        return fromUtf32(bytes, false);
    case pugi::encoding_utf32_be:
        return fromUtf32(bytes, true);
    case pugi::encoding_latin1:
        return fromLatin1(bytes);
    default:
        return bytes;
    }
}

} // namespace

SourceText::SourceText(std::string bytes) : utf8_(toUtf8(std::move(bytes))) {}

pugi::xml_parse_result SourceText::load(pugi::xml_document& document) const {
    return document.load_buffer(utf8_.data(), utf8_.size(), pugi::parse_default,
                                pugi::encoding_utf8);
}

Position SourceText::position(std::size_t offset) const {
    std::string_view before = std::string_view(utf8_).substr(0, offset);
    if (before.substr(0, byteOrderMark.size()) == byteOrderMark)
        before.remove_prefix(byteOrderMark.size());

    Position position{1, 1};
    while (!before.empty()) {
        const Utf8Character character = firstCharacter(before);
        before.remove_prefix(character.length);
        const bool firstOfTwo =
            character.codePoint == '\r' && !before.empty() && before.front() == '\n';
        if (firstOfTwo)
            continue; // The line feed after it ends the line.
        if (character.codePoint == '\n' || character.codePoint == '\r')
            position = {position.line + 1, 1};
        else
            ++position.column;
    }
    return position;
}

Position SourceText::position(pugi::xml_node node) const {
    const auto offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
    if (node.type() == pugi::node_element)
        return position(offset - 1); // pugixml points at the name
    return position(utf8_.find_first_not_of(" \t\r\n", offset));
}
