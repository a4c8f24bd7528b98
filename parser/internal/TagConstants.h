/// @file
/// The names of the package format as constants, for lists that are made while compiling.

#ifndef QENXML_PARSER_INTERNAL_TAGCONSTANTS_H
#define QENXML_PARSER_INTERNAL_TAGCONSTANTS_H

#include <array>

#include "parser/TagNames.h"

namespace qenxml::tag {

#define QENXML_TAG_CONSTANT(name, text) inline constexpr const char* name = text;
QENXML_TAG_NAMES(QENXML_TAG_CONSTANT)
#undef QENXML_TAG_CONSTANT

/// All names, in the order of the table.
inline constexpr std::array all = {
#define QENXML_TAG_ELEMENT(name, text) name,
    QENXML_TAG_NAMES(QENXML_TAG_ELEMENT)
#undef QENXML_TAG_ELEMENT
};

} // namespace qenxml::tag

#endif
