/// @file
/// Lists hold one child per identifier.

#ifndef QENXML_PARSER_INTERNAL_DUPLICATEIDENTIFIERS_H
#define QENXML_PARSER_INTERNAL_DUPLICATEIDENTIFIERS_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <utility>
#include <vector>

#include <boost/uuid/uuid.hpp>

namespace qenxml {

/// An identifier and where its child stands, in the form that compares fastest: two numbers instead
/// of 16 bytes. Their order has no meaning, only equality has.
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

    /// A number of so many bits that depends on all of the identifier.
    std::size_t hash(unsigned bits) const {
        constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
        constexpr std::uint64_t otherOdd = 0xC2B2AE3D27D4EB4F;
        return static_cast<std::size_t>((halves[0] * odd + halves[1] * otherOdd) >> (64 - bits));
    }

    std::array<std::uint64_t, 2> halves{};
    std::size_t place;
};

/// The children whose identifiers may occur more than once in the list: those that share a slot of
/// a table, chosen by the identifier, with another child. One step per child instead of a search or
/// a sort, which takes 3 % more of the instructions of reading 30,000 siblings; a file made so that
/// all children share slots only makes all of them suspects.
template <class Child>
std::vector<IdentifierPlace> suspectedDuplicates(std::vector<Child>& children) {
    enum Use : unsigned char { Free, Once, Shared };
    constexpr std::size_t slotsPerChild = 8; // Few share one by chance.
    unsigned bits = 4;
    while ((std::size_t{1} << bits) < slotsPerChild * children.size())
        ++bits;
    std::vector<Use> slots(std::size_t{1} << bits, Free);

    bool anyShared = false;
    for (Child& child : children) {
        Use& slot = slots[IdentifierPlace(child.id(), 0).hash(bits)];
        anyShared = anyShared || slot != Free;
        slot = slot == Free ? Once : Shared;
    }
    std::vector<IdentifierPlace> suspects;
    if (!anyShared)
        return suspects;
    for (std::size_t place = 0; place < children.size(); ++place) {
        const IdentifierPlace suspect(children[place].id(), place);
        if (slots[suspect.hash(bits)] == Shared)
            suspects.push_back(suspect);
    }
    return suspects;
}

/// Leaves one child per identifier: in the place of the first, with the content of the last, as
/// adding them one by one would, but without searching the list for each child. What is replaced is
/// destroyed.
template <class Child>
void keepLastOfEachIdentifier(std::vector<Child>& children) {
    if (children.size() < 2)
        return;
    std::vector<IdentifierPlace> suspects = suspectedDuplicates(children);
    std::sort(suspects.begin(), suspects.end());
    const auto sameIdentifier = [](const IdentifierPlace& a, const IdentifierPlace& b) {
        return a.sameIdentifier(b);
    };
    auto repeated = std::adjacent_find(suspects.begin(), suspects.end(), sameIdentifier);
    if (repeated == suspects.end())
        return;

    constexpr std::size_t nothing = SIZE_MAX;
    std::vector<std::size_t> content(children.size()); // of each place in the list
    std::iota(content.begin(), content.end(), std::size_t{0});
    std::size_t keptCount = children.size();
    while (repeated != suspects.end()) {
        const std::size_t first = repeated->place;
        for (; repeated + 1 != suspects.end() && repeated->sameIdentifier(repeated[1]);
             ++repeated) {
            content[repeated[1].place] = nothing;
            --keptCount;
        }
        content[first] = repeated->place;
        repeated = std::adjacent_find(repeated, suspects.end(), sameIdentifier);
    }

    std::vector<Child> kept;
    kept.reserve(keptCount);
    for (const std::size_t place : content) {
        if (place != nothing)
            kept.push_back(std::move(children[place]));
    }
    children = std::move(kept);
}

} // namespace qenxml

#endif
