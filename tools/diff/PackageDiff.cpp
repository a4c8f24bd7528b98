#include "tools/diff/PackageDiff.h"

#include <algorithm>
#include <deque>
#include <iterator>

namespace {

using Versions = std::vector<const RecordVersion*>;

/// A version that only one side has, or one of each that belong together.
struct Pair {
    const RecordVersion* from;
    const RecordVersion* to;
};

using Place = std::deque<RecordVersion>::const_iterator;

/// The versions of a record that begin at a place, sorted by content; and the place behind them.
Versions takeRecord(Place& place, Place end, std::uint64_t record) {
    Versions versions;
    for (; place != end && place->record == record; ++place)
        versions.push_back(&*place);
    std::sort(versions.begin(), versions.end(), [](const auto* a, const auto* b) {
        return a->content != b->content ? a->content < b->content : a->isBefore(*b);
    });
    // In two places it may still be the same.
    versions.erase(
        std::unique(versions.begin(), versions.end(),
                    [](const auto* a, const auto* b) { return a->content == b->content; }),
        versions.end());
    return versions;
}

/// Those of @p versions that @p others lack, in the order of the packages.
Versions without(const Versions& versions, const Versions& others) {
    Versions left;
    std::set_difference(versions.begin(), versions.end(), others.begin(), others.end(),
                        std::back_inserter(left),
                        [](const auto* a, const auto* b) { return a->content < b->content; });
    std::sort(left.begin(), left.end(),
              [](const auto* a, const auto* b) { return a->isBefore(*b); });
    return left;
}

void addPairs(const Versions& from, const Versions& to, std::vector<Pair>& pairs) {
    const Versions before = without(from, to);
    const Versions after = without(to, from);
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i)
        pairs.push_back(
            {i < before.size() ? before[i] : nullptr, i < after.size() ? after[i] : nullptr});
}

std::vector<Pair> differingPairs(const std::deque<RecordVersion>& from,
                                 const std::deque<RecordVersion>& to) {
    std::vector<Pair> pairs;
    auto before = from.begin();
    auto after = to.begin();
    while (before != from.end() || after != to.end()) {
        const std::uint64_t record =
            after == to.end() || (before != from.end() && before->record < after->record)
                ? before->record
                : after->record;
        const Versions versionsBefore = takeRecord(before, from.end(), record);
        const Versions versionsAfter = takeRecord(after, to.end(), record);
        addPairs(versionsBefore, versionsAfter, pairs);
    }
    std::sort(pairs.begin(), pairs.end(), [](const Pair& a, const Pair& b) {
        if ((a.from == nullptr) != (b.from == nullptr))
            return b.from == nullptr;
        return a.from == nullptr ? a.to->isBefore(*b.to) : a.from->isBefore(*b.from);
    });
    return pairs;
}

} // namespace

std::size_t comparePackages(const DiffSide& from, const DiffSide& to, DiffWriter& writer) {
    const std::vector<Pair> pairs = differingPairs(from.versions.all(), to.versions.all());
    for (const auto& [before, after] : pairs) {
        const RecordView* const old = before == nullptr ? nullptr : &from.packages.record(*before);
        const RecordView* const now = after == nullptr ? nullptr : &to.packages.record(*after);
        const auto nameOf = [](const DiffSide& side, const RecordVersion* version) {
            return version == nullptr ? std::string() : side.packages.name(version->package);
        };
        const bool isChanged = old != nullptr && now != nullptr;
        writer.add({isChanged        ? DifferenceKind::Changed
                    : old == nullptr ? DifferenceKind::Added
                                     : DifferenceKind::Removed,
                    now == nullptr ? *old : *now, nameOf(from, before), nameOf(to, after),
                    isChanged ? changesBetween(*old, *now) : std::vector<ValueChange>()});
    }
    return pairs.size();
}
