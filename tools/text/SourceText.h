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

/// A part of a text, in bytes of its UTF-8 form.
struct Extent {
    std::size_t offset = 0;
    std::size_t length = 0;
};

/// A part of a file.
struct Location {
    Extent extent;
    Position begin = {};  ///< Of its first character.
    Position end = {};    ///< Behind its last character.
    Excerpt excerpt;      ///< The line in which it begins, around that place.
    bool isInFile = true; ///< Whether the file has these bytes: it is not in another encoding.
};

/// The text of an XML file. It tells where in the file something stands, which pugixml alone does
/// not: what pugixml calls an offset is one into the text after conversion to UTF-8.
class SourceText {
public:
    /// @param bytes the content of the file, in any encoding that pugixml recognises
    explicit SourceText(std::string bytes);

    /// The text in UTF-8, with the byte-order mark if there is one.
    std::string_view text() const { return utf8_; }

    /// The encoding that pugixml takes the file for.
    pugi::xml_encoding encoding() const { return encoding_; }

    /// Loads the text as the library loads package files, so that offsets in the document are
    /// offsets into this text.
    pugi::xml_parse_result load(pugi::xml_document& document) const;

    /// The position of the byte at an offset that pugixml gave; for one beyond the end, that of the
    /// end. Takes the same time wherever in the file that is.
    Position position(std::size_t offset) const;

    /// The part of the text that a node of a document loaded by load() is about: the start tag of
    /// an element, or a text without the white space around it.
    Extent extent(pugi::xml_node node) const;

    /// A text with the white space around it.
    Extent wholeText(pugi::xml_node text) const;

    /// The value of an attribute of an element.
    Extent extent(pugi::xml_node element, pugi::xml_attribute attribute) const;

    Location location(Extent extent) const;

    /// The line around the byte at an offset.
    Excerpt excerpt(std::size_t offset) const;

private:
    /// A character of which the position is known.
    struct Mark {
        std::size_t offset;
        Position position;
    };

    void setMarksUpTo(std::size_t offset) const;

    pugi::xml_encoding encoding_; // of the file
    std::string utf8_;
    /// Close enough together to count from the last one before a place. They are set when a place
    /// is asked for: most files have none to ask for.
    mutable std::vector<Mark> marks_;
};

/// The name of an attribute in a document loaded by SourceText::load().
Extent nameExtent(pugi::xml_node element, pugi::xml_attribute attribute);

/// Where the tag ends that begins at an offset of a text: behind its ">", which may stand in a
/// value, too; npos when it does not end.
std::size_t endOfTag(std::string_view text, std::size_t offset);

#endif
