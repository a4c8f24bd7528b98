/// @file
/// Long texts, and texts in other encodings.

#ifndef QENXML_TESTS_SUPPORT_TEXTS_H
#define QENXML_TESTS_SUPPORT_TEXTS_H

#include <cstddef>
#include <string>

namespace test {

inline std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

/// Units of @p size bytes as they are, whether they are characters or not.
inline std::string inUnitsOf(std::size_t size, bool bigEndian, const std::u32string& units) {
    std::string result;
    for (const char32_t unit : units) {
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t byte = bigEndian ? size - 1 - i : i;
            result += static_cast<char>(static_cast<unsigned char>(unit >> (8 * byte)));
        }
    }
    return result;
}

inline std::u32string unitsOf(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

inline std::string inUnitsOf(std::size_t size, bool bigEndian, const std::string& ascii) {
    return inUnitsOf(size, bigEndian, unitsOf(ascii));
}

/// With a mark; the XML library has to convert it first, in further memory.
inline std::string inUtf16(const std::string& ascii) {
    return "\xFF\xFE" + inUnitsOf(2, false, ascii);
}

} // namespace test

#endif
