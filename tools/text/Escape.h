/// @file
/// Texts that the command did not write itself (from packages, file names, arguments) in a form
/// that is safe to print: they can neither drive a terminal nor forge a line of the output.

#ifndef QENXML_TOOLS_TEXT_ESCAPE_H
#define QENXML_TOOLS_TEXT_ESCAPE_H

#include <string>
#include <string_view>

/// Whether a character is not seen in a text, or changes how others are seen: control characters,
/// those that change the direction of writing, line and paragraph separators, and invisible ones.
/// Joiners and selectors of variants are none of them, for Persian, Indian and Mongolian texts and
/// emoji are written with them.
bool isUnseen(char32_t c);

/// Whether nothing is seen of a text: it is empty, or holds only blanks of all widths, characters
/// that isUnseen() names, and joiners and selectors with nothing to work on.
bool isBlank(std::string_view text);

/// The text with everything escaped that a terminal might act on or hide, so that what is left is
/// one line of valid UTF-8:
///
/// - `\n`, `\t` and `\\` for a line feed, a tab and a backslash
/// - `\xNN` for the other control characters below U+0080 and for bytes that are not valid UTF-8
/// - `\u{NNNN}` for all others that isUnseen() names
std::string escape(std::string_view text);

/// As escape(), but a long text is cut, which three dots at the end show.
std::string escapeExcerpt(std::string_view text);

/// A document of many lines as a terminal may show it: as escape(), but line ends, tabs and
/// backslashes stay, and the byte-order mark that it may begin with is left out.
std::string escapeDocument(std::string_view text);

#endif
