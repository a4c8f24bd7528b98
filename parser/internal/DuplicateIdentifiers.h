/// @file
/// Lists hold one child per identifier.

#ifndef QENXML_PARSER_INTERNAL_DUPLICATEIDENTIFIERS_H
#define QENXML_PARSER_INTERNAL_DUPLICATEIDENTIFIERS_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>
#include <vector>

#include <boost/uuid/uuid.hpp>

namespace qenxml {

/// An identifier and the index of its child, in the form that compares fastest: two numbers instead
/// of 16 bytes. Their order has no meaning, only equality has.
struct IndexedIdentifier {
    IndexedIdentifier(const boost::uuids::uuid& id, std::size_t childIndex) : index(childIndex) {
        std::memcpy(halves.data(), id.begin(), sizeof halves);
    }

    bool operator<(const IndexedIdentifier& other) const {
        return std::tie(halves[0], halves[1], index) <
               std::tie(other.halves[0], other.halves[1], other.index);
    }

    std::array<std::uint64_t, 2> halves{};
    std::size_t index;
};

/// Leaves one child per identifier: in the place of the first, with the content of the last, as
/// adding them one by one would, but without searching the list for each child. What is replaced is
/// destroyed.
template <class Child>
void keepLastOfEachIdentifier(std::vector<Child>& children) {
    if (children.size() < 2)
        return;
    std::vector<IndexedIdentifier> sorted;
    sorted.reserve(children.size());
    for (Child& child : children)
        sorted.emplace_back(child.id(), sorted.size());
    std::sort(sorted.begin(), sorted.end());
    const auto sameIdentifier = [](const IndexedIdentifier& a, const IndexedIdentifier& b) {
        return a.halves == b.halves;
    };
    if (std::adjacent_find(sorted.begin(), sorted.end(), sameIdentifier) == sorted.end())
        return;

    constexpr std::size_t nothing = SIZE_MAX;
    std::vector<std::size_t> content(children.size(), nothing); // of each place in the list
    std::size_t keptCount = 0;
    for (auto first = sorted.begin(); first != sorted.end(); ++keptCount) {
        auto last = first;
        while (last + 1 != sorted.end() && sameIdentifier(*first, last[1]))
            ++last;
        content[first->index] = last->index;
        first = last + 1;
    }

    std::vector<Child> kept;
    kept.reserve(keptCount);
    for (const std::size_t index : content) {
        if (index != nothing)
            kept.push_back(std::move(children[index]));
    }
    children = std::move(kept);
}

} // namespace qenxml

#endif
