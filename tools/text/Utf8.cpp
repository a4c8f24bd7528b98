#include "tools/text/Utf8.h"

#include <cstdint>
#include <cstring>

Utf8Character firstCharacter(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const Utf8Character invalid{byte(0), 1, false};

    if (byte(0) < 0x80)
        return {byte(0), 1, true};
    const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : byte(0) >= 0xC0 ? 2 : 0;
    if (length == 0 || byte(0) > 0xF4 || text.size() < length)
        return invalid;

    char32_t codePoint = byte(0) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80)
            return invalid;
        codePoint = codePoint << 6U | (byte(i) & 0x3FU);
    }
    const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest || surrogate || codePoint > 0x10FFFF)
        return invalid;
    return {codePoint, length, true};
}

std::size_t characterStart(std::string_view text, std::size_t offset) {
    constexpr std::size_t longest = 4;
    for (std::size_t back = 1; back < longest && back <= offset && offset < text.size(); ++back) {
        if (firstCharacter(text.substr(offset - back)).length > back)
            return offset - back;
    }
    return offset;
}

std::size_t asciiLength(std::string_view text) {
    constexpr std::uint64_t others = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t bytes = 0; length + sizeof bytes <= text.size(); length += sizeof bytes) {
        std::memcpy(&bytes, text.data() + length, sizeof bytes);
        if ((bytes & others) != 0)
            break;
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80)
        ++length;
    return length;
}

std::string validUtf8(std::string_view text) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        result += character.valid ? text.substr(0, character.length) : replacement;
        text.remove_prefix(character.length);
    }
    return result;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80U | (codePoint >> shift & 0x3FU));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0U | codePoint >> 6U);
        tail(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0U | codePoint >> 12U);
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0U | codePoint >> 18U);
        tail(12);
        tail(6);
        tail(0);
    }
}
