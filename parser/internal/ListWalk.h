/// @file
/// How every list of a package is walked.

#ifndef QENXML_PARSER_INTERNAL_LISTWALK_H
#define QENXML_PARSER_INTERNAL_LISTWALK_H

#include <algorithm>
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

/// The length of the text between two nodes of a document; 0 where it is not known, as for nodes
/// that a program made.
inline std::size_t textBetween(pugi::xml_node first, pugi::xml_node later) {
    const std::ptrdiff_t begin = first.offset_debug();
    const std::ptrdiff_t end = later.offset_debug();
    return begin < 0 || end < begin ? 0 : static_cast<std::size_t>(end - begin);
}

/// Makes room for the items of a list, so that it does not grow step by step. The items of a long
/// list are not counted all, which would bring each of them into the cache twice, but estimated
/// from the text that they take. A limit keeps a file of many tiny items from claiming much more
/// memory than its own size before any of them is read.
template <class Child>
void reserveForItems(std::vector<Child>& children, pugi::xml_node firstItem) {
    constexpr std::size_t countedItems = 1024;
    constexpr std::size_t bytesPerByteOfText = 4;
    std::size_t count = 0;
    pugi::xml_node node = firstItem;
    for (; node && count < countedItems; node = node.next_sibling())
        ++count;
    if (node) {
        const std::size_t itemText =
            std::max<std::size_t>(textBetween(firstItem, node) / countedItems, 1);
        const std::size_t listText = textBetween(firstItem, firstItem.parent().last_child());
        const std::size_t estimate = listText / itemText;
        // In this order, in which gigabytes of text do not overflow a size of 32 bits.
        const std::size_t limit = listText / sizeof(Child) * bytesPerByteOfText;
        count = std::max(count, std::min(estimate + estimate / 16, limit));
    }
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
