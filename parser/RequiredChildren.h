/// @file
/// How product elements are read: all of their children or nothing. Not part of the public
/// interface.

#ifndef QENXML_PARSER_REQUIREDCHILDREN_H
#define QENXML_PARSER_REQUIREDCHILDREN_H

#include <pugixml.hpp>

#include "parser/ChildCursor.h"
#include "parser/Number.h"

namespace qenxml {

/// Looks children of a product element up by name and remembers whether all were there. What is
/// missing, or holds no text, reads as the empty text, 0 or 0.0.
class RequiredChildren {
public:
    explicit RequiredChildren(pugi::xml_node product) : children_(product) {}

    /// Texts belong to the document.
    const char* text(const char* name) { return find(name).as_string(); }
    int integer(const char* name) { return find(name).as_int(); }
    double number(const char* name) { return numberFromText(text(name)); }

    /// True as long as every child that was asked for was there.
    bool complete() const { return complete_; }

private:
    pugi::xml_text find(const char* name) {
        const pugi::xml_node child = children_.child(name);
        if (child.empty())
            complete_ = false;
        return child.text();
    }

    ChildCursor children_;
    bool complete_ = true;
};

} // namespace qenxml

#endif
