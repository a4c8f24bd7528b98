#ifndef QENXML_TOOLS_CHECK_OPENELEMENT_H
#define QENXML_TOOLS_CHECK_OPENELEMENT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// An element that has begun and not ended.
struct OpenElement {
    std::string name;
    std::size_t offset; ///< Of its "<".
};

/// What is open where a text of XML ends.
struct OpenMarkup {
    std::vector<OpenElement> elements; ///< From the outermost to the innermost.
    std::string unfinished;            ///< "a tag", "a comment" ...; empty when that is complete.
    std::size_t end = 0; ///< Where the last complete markup, or the text behind it, ends.
};

/// What is open where a text of XML ends.
OpenMarkup openMarkup(std::string_view text);

/// The text behind a byte-order mark and blanks.
std::string_view afterMarkAndBlanks(std::string_view text);

/// The name of the root element of a text of XML, which need not be well-formed behind it; empty
/// when there is none.
std::string_view rootName(std::string_view text);

#endif
