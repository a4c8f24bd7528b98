#ifndef QENXML_TOOLS_TEXT_WRAPPEDTEXT_H
#define QENXML_TOOLS_TEXT_WRAPPEDTEXT_H

#include <cstddef>
#include <string>
#include <string_view>

/// A text in lines of no more than @p width characters where its words allow it. All but the first
/// begin with @p indent blanks, for which room is left in the first one, too.
std::string wrapped(std::string_view text, std::size_t indent, std::size_t width = 80);

#endif
