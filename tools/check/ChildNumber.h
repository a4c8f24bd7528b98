#ifndef QENXML_TOOLS_CHECK_CHILDNUMBER_H
#define QENXML_TOOLS_CHECK_CHILDNUMBER_H

#include <pugixml.hpp>

#include "tools/check/NumberReading.h"

/// A number in a child of an element, as the library reads it: 0 where there is no such child. See
/// GivenNumber for what a person takes it for.
struct ChildNumber {
    ChildNumber(pugi::xml_node parent, const char* childName)
        : name(childName),
          node(parent.child(childName)),
          number(readNumber(node.text().as_string())) {}

    const char* name;
    pugi::xml_node node; ///< The first child of the name; empty when there is none.
    NumberReading number;
};

#endif
