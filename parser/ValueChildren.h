/// @file
/// Reading children that hold a text or a number. Not part of the public interface.

#ifndef QENXML_PARSER_VALUECHILDREN_H
#define QENXML_PARSER_VALUECHILDREN_H

#include <optional>

#include <pugixml.hpp>

#include "parser/ChildCursor.h"
#include "parser/Number.h"

namespace qenxml {

/// Where nodes come from.
enum class Origin {
    File,   ///< From the document of the parser: each text node has a value.
    Unknown ///< From a caller, whose program may have made text nodes without a value.
};

/// Looks children of an element up by name and reads what they hold, as xml_node::text() gives it.
/// What is missing, or holds no text, reads as the empty text, 0 or 0.0. Texts belong to the
/// document. Each name must be asked for once only.
class ValueChildren {
public:
    ValueChildren(pugi::xml_node parent, Origin origin) : children_(parent), origin_(origin) {}

    /// The first child named @p name, or an empty node.
    pugi::xml_node element(const char* name) { return children_.child(name); }

    const char* text(const char* name) { return textOf(element(name)); }

    double number(const char* name) { return numberFromText(text(name)); }

    int integer(const char* name) {
        const pugi::xml_node child = element(name);
        if (const std::optional<int> number = shortInteger(textOf(child)))
            return *number;
        return child.text().as_int();
    }

    /// True as long as every child that was asked for was there.
    bool complete() const { return children_.foundAll(); }

private:
    const char* textOf(pugi::xml_node child) const {
        // child_value() is the faster one, but it passes over text nodes without a value.
        return origin_ == Origin::File ? child.child_value() : child.text().as_string();
    }

    ChildCursor children_;
    Origin origin_;
};

} // namespace qenxml

#endif
