#ifndef QENXML_TOOLS_CHECK_OPENELEMENT_H
#define QENXML_TOOLS_CHECK_OPENELEMENT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// An element that has begun and not ended.
struct OpenElement {
    std::string name;
    std::size_t offset; ///< Of its "<".
};

/// The innermost element that is open where a text of XML ends; nothing when none is.
std::optional<OpenElement> innermostOpenElement(std::string_view text);

#endif
