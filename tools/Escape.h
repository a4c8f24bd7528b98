/// @file
/// Texts that the command did not write itself (from packages, file names, arguments) in a form
/// that is safe to print: they can neither drive a terminal nor forge a line of the output.

#ifndef QENXML_TOOLS_ESCAPE_H
#define QENXML_TOOLS_ESCAPE_H

#include <string>
#include <string_view>

/// The text with everything escaped that a terminal might act on, so that what is left is one line
/// of valid UTF-8:
///
/// - `\n`, `\t` and `\\` for a line feed, a tab and a backslash
/// - `\xNN` for the other control characters below U+0080 and for bytes that are not valid UTF-8
/// - `\u{NNNN}` for the control characters U+0080 to U+009F, the characters that change the
///   direction of writing, and the line and paragraph separators
std::string escape(std::string_view text);

/// As escape(), but a long text is cut, which three dots at the end show.
std::string escapeExcerpt(std::string_view text);

#endif
