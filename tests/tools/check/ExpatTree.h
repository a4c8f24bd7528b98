/// @file
/// Documents as a conforming XML reader sees them: read by libexpat, and by nothing of the library
/// or the command.

#ifndef QENXML_TESTS_TOOLS_CHECK_EXPATTREE_H
#define QENXML_TESTS_TOOLS_CHECK_EXPATTREE_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace test {

/// An element of a document. Texts are in UTF-8.
struct XmlElement {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<XmlElement> children;
    std::string text; ///< All texts in it, those of CDATA sections too, but not its children's.
    std::size_t pieces = 0; ///< In how many pieces the text is written: what is not text ends one.
};

struct XmlReading {
    std::optional<XmlElement> root; ///< None when the document is refused.
    std::string refusal;
    std::size_t line = 0; ///< Where it is refused, if that is somewhere.
};

/// Reads a document as a conforming reader that does not validate does. It knows encodings by
/// their names as the system does.
XmlReading readXml(std::string_view bytes);

} // namespace test

#endif
