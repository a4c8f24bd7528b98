#include "tools/check/PlacedFindings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

/// What says more exactly why other programs refuse a file at the place that it is about.
constexpr std::array causesOfRefusal = {
    FindingCode::InvalidUtf8,       FindingCode::UnknownElement,
    FindingCode::RepeatedAttribute, FindingCode::ReferenceToNul,
    FindingCode::ReferenceUnknown,  FindingCode::ReferenceToNoCharacter,
    FindingCode::ControlCharacter};

/// Whether a finding says all that another one at the same place does.
bool covers(FindingCode code, FindingCode other) {
    return other == FindingCode::RefusedByOthers &&
           std::find(causesOfRefusal.begin(), causesOfRefusal.end(), code) != causesOfRefusal.end();
}

} // namespace

void PlacedFindings::put(FindingCode code, Extent extent, std::string found) {
    const auto later = std::find_if(waiting_.begin(), waiting_.end(), [&](const Placed& other) {
        return other.extent.offset > extent.offset;
    });
    const bool isSaid = later != waiting_.begin() &&
                        std::prev(later)->extent.offset == extent.offset &&
                        covers(std::prev(later)->code, code);
    if (!isSaid)
        waiting_.insert(later, {code, extent, std::move(found)});
}

void PlacedFindings::add(const Finding& other) {
    const std::size_t offset = other.location->extent.offset;
    while (!waiting_.empty() && waiting_.front().extent.offset < offset) {
        handOn(waiting_.front());
        waiting_.erase(waiting_.begin());
    }
    while (!waiting_.empty() && waiting_.front().extent.offset == offset &&
           covers(other.code, waiting_.front().code))
        waiting_.erase(waiting_.begin());
    sink_.add(other);
}

void PlacedFindings::finish() {
    for (const Placed& placed : std::exchange(waiting_, {}))
        handOn(placed);
}

void PlacedFindings::handOn(const Placed& placed) {
    sink_.offer({placed.code, placed.found, Kept{}, source_.location(placed.extent)});
}
