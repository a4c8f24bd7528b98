#ifndef QENXML_TOOLS_SOURCETEXT_H
#define QENXML_TOOLS_SOURCETEXT_H

#include <cstddef>
#include <string>

#include <pugixml.hpp>

/// A place in a file as an editor shows it: both count from 1, columns in characters.
struct Position {
    std::size_t line;
    std::size_t column;
};

/// The text of an XML file. It tells where in the file something stands, which pugixml alone does
/// not: what pugixml calls an offset is one into the text after conversion to UTF-8.
class SourceText {
public:
    /// @param bytes the content of the file, in any encoding that pugixml recognises
    explicit SourceText(std::string bytes);

    /// Loads the text as the library loads package files, so that offsets in the document are
    /// offsets into this text.
    pugi::xml_parse_result load(pugi::xml_document& document) const;

    /// The position of the byte at an offset that pugixml gave; for one beyond the end, that of the
    /// end.
    Position position(std::size_t offset) const;

    /// The position of a node of a document loaded by load(): of an element's "<", or of the first
    /// character of a text that is not blank.
    Position position(pugi::xml_node node) const;

private:
    std::string utf8_; // with the byte-order mark, if there is one
};

#endif
