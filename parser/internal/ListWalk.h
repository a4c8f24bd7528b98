/// @file
/// How every list of a package is walked.

#ifndef QENXML_PARSER_INTERNAL_LISTWALK_H
#define QENXML_PARSER_INTERNAL_LISTWALK_H

#include <cstddef>
#include <vector>

#include <pugixml.hpp>

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

/// Makes room for the items of a list, as far as they are not many, so that a short list does not
/// grow step by step and a file of many tiny items claims little memory before any of them is read.
template <class Child>
void reserveForItems(std::vector<Child>& children, pugi::xml_node firstItem) {
    constexpr std::size_t many = 1024;
    std::size_t count = 0;
    for (pugi::xml_node node = firstItem; node && count < many; node = node.next_sibling())
        ++count;
    children.reserve(count);
}

/// Reads a whole list of children, one per identifier. @p readItem appends the item of a node.
template <class Child, class ReadItem>
void readChildren(std::vector<Child>& children, pugi::xml_node firstItem, ReadItem readItem) {
    reserveForItems(children, firstItem);
    walkList(firstItem, readItem);
    keepLastOfEachIdentifier(children);
}

} // namespace qenxml

#endif
