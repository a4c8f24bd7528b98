#include "tools/text/Encoding.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "tools/text/Utf8.h"

namespace {

/// One number of @p size bytes.
char32_t unitAt(const std::string& bytes, std::size_t index, std::size_t size, bool bigEndian) {
    char32_t unit = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t place = bigEndian ? i : size - 1 - i;
        unit = unit << 8U | static_cast<unsigned char>(bytes[index + place]);
    }
    return unit;
}

/// Leaves out what is no character, as pugixml does.
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

/// Keeps what is no character, as pugixml does: a host may read an identifier with it.
std::string fromUtf32(const std::string& bytes, bool bigEndian) {
    std::string text;
    for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4)
        appendUtf8(text, unitAt(bytes, i, 4, bigEndian));
    return text;
}

std::string fromLatin1(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes)
        appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

} // namespace

pugi::xml_encoding encodingOf(const std::string& bytes) {
    // The first bytes and the declaration say it, so a large file need not be loaded twice.
    constexpr std::size_t firstBytes = 64;
    std::size_t size = firstBytes;
    if (bytes.compare(0, 5, "<?xml") == 0)
        size = std::max(size, bytes.find("?>", 5)) + 2;
    const pugi::xml_parse_result loaded =
        pugi::xml_document().load_buffer(bytes.data(), std::min(size, bytes.size()));
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    return loaded.encoding;
}

const char* encodingName(pugi::xml_encoding encoding) {
    switch (encoding) {
    case pugi::encoding_utf16_le:
    case pugi::encoding_utf16_be:
        return "UTF-16";
    case pugi::encoding_utf32_le:
    case pugi::encoding_utf32_be:
        return "UTF-32";
    case pugi::encoding_latin1:
        return "ISO-8859-1";
    default:
        return "UTF-8";
    }
}

std::string_view declaredEncoding(std::string_view text) {
    constexpr std::string_view attribute = "encoding";
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    if (text.substr(0, 5) != "<?xml")
        return {};
    text = text.substr(0, text.find("?>"));
    const std::size_t name = text.find(attribute);
    const std::size_t begin = text.find_first_of("\"'", name);
    if (name == std::string_view::npos || begin == std::string_view::npos)
        return {};
    text.remove_prefix(begin + 1);
    return text.substr(0, text.find_first_of("\"'"));
}

std::string toUtf8(std::string bytes, pugi::xml_encoding encoding) {
    switch (encoding) {
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
