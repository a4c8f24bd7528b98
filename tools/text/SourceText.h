#ifndef QENXML_TOOLS_TEXT_SOURCETEXT_H
#define QENXML_TOOLS_TEXT_SOURCETEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

/// A place in a file as an editor shows it: both count from 1, columns in characters.
struct Position {
    std::size_t line;
    std::size_t column;
};

/// A line of a file as a compiler shows it, escaped. Of a long line, the part around a place.
struct Excerpt {
    std::string line;
    std::size_t caret = 0; ///< The place: how many characters of `line` come before it.
};

/// The text of an XML file. It tells where in the file something stands, which pugixml alone does
/// not: what pugixml calls an offset is one into the text after conversion to UTF-8.
class SourceText {
public:
    /// @param bytes the content of the file, in any encoding that pugixml recognises
    explicit SourceText(std::string bytes);

    /// The text in UTF-8, with the byte-order mark if there is one.
    std::string_view text() const { return utf8_; }

    /// The encoding that the XML declaration names; empty when it names none. pugixml does not know
    /// each of them, and takes the text for UTF-8 then.
    std::string_view declaredEncoding() const;

    /// Loads the text as the library loads package files, so that offsets in the document are
    /// offsets into this text.
    pugi::xml_parse_result load(pugi::xml_document& document) const;

    /// The position of the byte at an offset that pugixml gave; for one beyond the end, that of the
    /// end. Takes the same time wherever in the file that is.
    Position position(std::size_t offset) const;

    /// The position of a node of a document loaded by load(): of an element's "<", or of the first
    /// character of a text that is not blank.
    Position position(pugi::xml_node node) const { return position(offset(node)); }

    /// As position(), the offset.
    std::size_t offset(pugi::xml_node node) const;

    /// The line around the byte at an offset.
    Excerpt excerpt(std::size_t offset) const;

private:
    /// A character of which the position is known.
    struct Mark {
        std::size_t offset;
        Position position;
    };

    std::string utf8_;
    std::vector<Mark> marks_; // close enough together to count from the last one before a place
};

/// The offset of the name of an attribute in a document loaded by SourceText::load().
std::size_t nameOffset(pugi::xml_node element, pugi::xml_attribute attribute);

/// The offset of the value of such an attribute.
std::size_t valueOffset(pugi::xml_node element, pugi::xml_attribute attribute);

#endif
