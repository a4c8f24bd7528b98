/// @file
/// Finding the children of an element by name.

#ifndef QENXML_PARSER_INTERNAL_CHILDCURSOR_H
#define QENXML_PARSER_INTERNAL_CHILDCURSOR_H

#include <cstring>

#include <pugixml.hpp>

namespace qenxml {

/// Finds children by name as xml_node::child() does: the first of a name. Asking for them in the
/// order in which packages have them is fast, because the next child is then the one asked for;
/// any other order searches. Each name must be asked for once only.
class ChildCursor {
public:
    explicit ChildCursor(pugi::xml_node parent) : next_(parent.first_child()) {}

    /// The first child named @p name, or an empty node.
    pugi::xml_node child(const char* name) {
        // All children before next_ were asked for by other names, so none of them has this one.
        if (std::strcmp(next_.name(), name) != 0) {
            const pugi::xml_node later = next_.next_sibling(name);
            foundAll_ = foundAll_ && !later.empty();
            return later;
        }
        const pugi::xml_node found = next_;
        next_ = next_.next_sibling();
        return found;
    }

    /// True as long as every child that was asked for was there.
    bool foundAll() const { return foundAll_; }

private:
    pugi::xml_node next_;
    bool foundAll_ = true;
};

} // namespace qenxml

#endif
