/// @file
/// How every list of a package is walked.

#ifndef QENXML_PARSER_INTERNAL_LISTWALK_H
#define QENXML_PARSER_INTERNAL_LISTWALK_H

#include <algorithm>
#include <cstddef>
#include <vector>

#include <pugixml.hpp>

#include "model/QenRec.h"
#include "parser/internal/DuplicateIdentifiers.h"

namespace qenxml {

/// Calls @p readItem for each item of a list: its first item and *every* node after that in the
/// same parent, whatever its name and kind. What stands before the first item is skipped; a foreign
/// element after it is read as an item, and fails for lack of its identifier.
template <class ReadItem>
void walkList(pugi::xml_node firstItem, ReadItem readItem) {
    for (pugi::xml_node node = firstItem; node; node = node.next_sibling())
        readItem(node);
}

/// Makes room for @p count children. Of recs there is a reserve() of its own.
template <class Child>
void reserve(std::vector<Child>& children, std::size_t count) {
    children.reserve(count);
}

/// Makes room for the items from @p next on at once, so that a long list hardly grows step by step:
/// up to a few times what is in it, so that a file with many tiny items behind some proper ones
/// does not claim much more memory than its own size before it fails.
template <class Child>
void makeRoom(std::vector<Child>& children, pugi::xml_node next) {
    std::size_t count = children.size();
    const std::size_t limit = std::max<std::size_t>(1024, 5 * count);
    for (; next && count < limit; next = next.next_sibling())
        ++count;
    reserve(children, count);
}

/// Reads a whole list of children, one per identifier. @p readItem appends the item of a node.
template <class Child, class ReadItem>
void readChildren(std::vector<Child>& children, pugi::xml_node firstItem, ReadItem readItem) {
    walkList(firstItem, [&](pugi::xml_node item) {
        if (children.size() == children.capacity())
            makeRoom(children, item);
        readItem(item);
    });
    keepLastOfEachIdentifier(children);
}

} // namespace qenxml

#endif
