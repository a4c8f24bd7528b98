#include "tools/compare/RecordVersions.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

#include "tools/compare/RecordValues.h"
#include "tools/text/Fnv1a.h"

namespace {

std::uint64_t hashOf(Owner owner, const boost::uuids::uuid& id, std::uint64_t outer = 0) {
    Fnv1a hash;
    hash.add(static_cast<char>(owner));
    for (const std::uint8_t byte : id)
        hash.add(static_cast<char>(byte));
    for (unsigned shift = 0; shift < 64; shift += 8)
        hash.add(static_cast<char>(outer >> shift & 0xFFU));
    return hash.value();
}

/// How many records one stands in.
std::size_t depthOf(Owner owner) {
    return owner == Owner::Grower ? 0 : owner == Owner::Farm ? 1 : owner == Owner::Field ? 2 : 3;
}

/// Of several versions in one place of a package, merging can show one only: a grower may come
/// twice, and the packages come in any order, but not the growers of one.
void markHidden(std::vector<RecordVersion>& versions) {
    std::map<std::uint64_t, RecordVersion*> shown;
    for (RecordVersion& version : versions) {
        RecordVersion*& best = shown.try_emplace(version.place, &version).first->second;
        RecordVersion* loser = &version;
        if (best == loser)
            continue;
        if (outranks(version, *best))
            std::swap(best, loser);
        loser->canCount = false;
    }
}

bool hasGrowerTwice(const std::vector<RecordVersion>& versions) {
    std::vector<std::uint64_t> growers;
    for (const RecordVersion& version : versions) {
        if (version.owner == Owner::Grower)
            growers.push_back(version.place);
    }
    std::sort(growers.begin(), growers.end());
    return std::adjacent_find(growers.begin(), growers.end()) != growers.end();
}

} // namespace

bool outranks(const RecordVersion& a, const RecordVersion& b) {
    return a.owner == Owner::Farm ? b.isBefore(a) : a.isBefore(b);
}

std::vector<RecordVersion> versionsOf(const RecordList& records, std::size_t package) {
    std::vector<RecordVersion> versions;
    versions.reserve(records.records().size());
    std::array<std::uint64_t, 4> places{};
    for (const RecordView& record : records.records()) {
        const std::size_t depth = depthOf(record.owner);
        const std::uint64_t outer = depth == 0 ? 0 : places.at(depth - 1);
        places.at(depth) = hashOf(record.owner, record.id(), outer);
        RecordVersion version{};
        version.record = hashOf(record.owner, record.id());
        version.place = places.at(depth);
        version.outer = outer;
        version.parent = hashOf(record.owner, record.parentId());
        version.content = contentHash(record);
        version.package = static_cast<std::uint32_t>(package);
        version.number = static_cast<std::uint32_t>(versions.size());
        version.owner = record.owner;
        versions.push_back(version);
    }
    if (hasGrowerTwice(versions))
        markHidden(versions);
    return versions;
}

void RecordVersions::add(const std::vector<RecordVersion>& versions) {
    versions_.insert(versions_.end(), versions.begin(), versions.end());
    if (versions_.size() < limit_)
        return;
    compact();
    limit_ = std::max(limit_, 2 * versions_.size());
}

const std::deque<RecordVersion>& RecordVersions::all() {
    compact();
    return versions_;
}

/// Puts equal versions next to each other, the one that is kept first.
void RecordVersions::compact() {
    const bool byContent = keep_ == Keep::Contents;
    std::sort(versions_.begin(), versions_.end(),
              [byContent](const RecordVersion& a, const RecordVersion& b) {
                  const auto rank = [byContent](const RecordVersion& version) {
                      return std::tuple(version.record, version.place,
                                        byContent ? version.content : 0);
                  };
                  return rank(a) != rank(b) ? rank(a) < rank(b) : outranks(a, b);
              });
    auto last = versions_.begin();
    for (auto next = versions_.begin(); next != versions_.end(); ++next) {
        if (next == last)
            continue;
        if (isEqual(*last, *next)) {
            last->count += next->count;
            last->canCount = last->canCount || next->canCount;
        } else {
            *++last = *next;
        }
    }
    if (!versions_.empty())
        versions_.erase(last + 1, versions_.end());
}

bool RecordVersions::isEqual(const RecordVersion& a, const RecordVersion& b) const {
    return a.record == b.record && a.place == b.place &&
           (keep_ == Keep::Merged || a.content == b.content);
}
