#ifndef QENXML_TOOLS_CHECK_REFERENCES_H
#define QENXML_TOOLS_CHECK_REFERENCES_H

#include <cstddef>
#include <string_view>
#include <vector>

/// What becomes of a reference that XML does not have.
enum class ReferenceFate {
    EndsValue,   ///< "&#0;": nothing behind it is read.
    GivesNoText, ///< "&#xD800;": bytes that are no UTF-8.
    GivesOther,  ///< "&#7;": a character that XML does not allow, or another one than is written.
    Stands       ///< "&ha;", "&#xZ;": read as it is written.
};

/// A reference in a value of which a reader of XML makes nothing, or something else.
struct OddReference {
    std::size_t offset; ///< In the value, of its "&".
    std::string_view text;
    ReferenceFate fate;
    std::size_t more = 0; ///< How many of the same fate follow in the value.
};

/// The odd references of a value, of each fate the first one, in order. A "&" that begins no
/// reference is none: it reads as what a person sees in it.
///
/// @param value of an attribute or a text, as it is written in the file
std::vector<OddReference> oddReferences(std::string_view value);

#endif
