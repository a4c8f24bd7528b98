/// @file
/// How every list of a package is walked. Not part of the public interface.

#ifndef QENXML_PARSER_LISTWALK_H
#define QENXML_PARSER_LISTWALK_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <utility>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

namespace qenxml {

/// Calls @p readItem for each item of a list: its first item and *every* node after that in the
/// same parent, whatever its name and kind. What stands before the first item is skipped; a foreign
/// element after it is read as an item, and fails for lack of its identifier.
template <class ReadItem>
void walkList(pugi::xml_node firstItem, ReadItem readItem) {
    for (pugi::xml_node node = firstItem; node; node = node.next_sibling())
        readItem(node);
}

/// Makes room for the items of a list, so that it does not grow step by step. A limit keeps a file
/// of many tiny items from claiming much more memory than its own size before any of them is read.
template <class Child>
void reserveForItems(std::vector<Child>& children, pugi::xml_node firstItem) {
    constexpr std::size_t limit = 4096;
    std::size_t count = 0;
    for (pugi::xml_node node = firstItem; node && count < limit; node = node.next_sibling())
        ++count;
    children.reserve(count);
}

/// An identifier and where its child stands, in the form that sorts fastest: two numbers instead of
/// 16 bytes. Their order has no meaning, only equality has.
struct IdentifierPlace {
    IdentifierPlace(const boost::uuids::uuid& id, std::size_t childPlace) : place(childPlace) {
        std::memcpy(halves.data(), id.begin(), sizeof halves);
    }

    bool sameIdentifier(const IdentifierPlace& other) const { return halves == other.halves; }

    bool operator<(const IdentifierPlace& other) const {
        if (halves[0] != other.halves[0])
            return halves[0] < other.halves[0];
        if (halves[1] != other.halves[1])
            return halves[1] < other.halves[1];
        return place < other.place;
    }

    std::array<std::uint64_t, 2> halves{};
    std::size_t place;
};

/// Leaves one child per identifier: in the place of the first, with the content of the last, as
/// adding them one by one would. Sorts identifiers instead of searching the list for each child, so
/// that a list of any length is read in reasonable time; what is replaced is destroyed.
template <class Child>
void keepLastOfEachIdentifier(std::vector<Child>& children) {
    std::vector<IdentifierPlace> order;
    order.reserve(children.size());
    for (Child& child : children)
        order.emplace_back(child.id(), order.size());
    std::sort(order.begin(), order.end());
    const auto sameIdentifier = [](const IdentifierPlace& a, const IdentifierPlace& b) {
        return a.sameIdentifier(b);
    };
    if (std::adjacent_find(order.begin(), order.end(), sameIdentifier) == order.end())
        return;

    std::vector<std::pair<std::size_t, std::size_t>> firstAndLast;
    for (auto group = order.begin(); group != order.end();) {
        const auto next = std::find_if(group, order.end(), [&](const IdentifierPlace& entry) {
            return !entry.sameIdentifier(*group);
        });
        firstAndLast.emplace_back(group->place, std::prev(next)->place);
        group = next;
    }
    std::sort(firstAndLast.begin(), firstAndLast.end());
    std::vector<Child> kept;
    kept.reserve(firstAndLast.size());
    for (const auto& [first, last] : firstAndLast)
        kept.push_back(std::move(children[last]));
    children = std::move(kept);
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
