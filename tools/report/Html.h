/// @file
/// Texts of packages and file names in a page of HTML: nothing in them can be taken for markup.

#ifndef QENXML_TOOLS_REPORT_HTML_H
#define QENXML_TOOLS_REPORT_HTML_H

#include <string>
#include <string_view>

/// The text for the content of elements and for attributes in quotes. What is no valid UTF-8, and
/// the control characters that HTML forbids, are replaced.
std::string html(std::string_view text);

/// A text whose direction of writing changes nothing outside of it.
std::string htmlName(std::string_view text);

#endif
