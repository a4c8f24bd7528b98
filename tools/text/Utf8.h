#ifndef QENXML_TOOLS_TEXT_UTF8_H
#define QENXML_TOOLS_TEXT_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

/// The byte-order mark, with which a text may begin.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The first character of a text in UTF-8.
struct Utf8Character {
    char32_t codePoint; ///< The byte itself when it is not valid UTF-8.
    std::size_t length; ///< Bytes that it takes; 1 when it is not valid.
    bool valid;         ///< False for a byte that belongs to no character.
};

/// Takes a text apart, character by character. Overlong forms, surrogates and code points beyond
/// U+10FFFF are invalid: their bytes come one by one.
///
/// @param text not empty
Utf8Character firstCharacter(std::string_view text);

/// Where the character begins to which the byte at an offset belongs: the offset itself, unless it
/// is in the middle of one.
std::size_t characterStart(std::string_view text, std::size_t offset);

/// How many bytes at the front of a text are characters of ASCII.
std::size_t asciiLength(std::string_view text);

/// The text with U+FFFD, the replacement character, in the place of each byte that belongs to no
/// character.
std::string validUtf8(std::string_view text);

/// Appends a code point in UTF-8. A surrogate, or a number beyond U+10FFFF, gives bytes by the same
/// pattern, which are not valid.
void appendUtf8(std::string& text, char32_t codePoint);

#endif
