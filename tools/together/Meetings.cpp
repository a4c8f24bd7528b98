#include "tools/together/Meetings.h"

#include <algorithm>
#include <deque>
#include <tuple>

namespace {

using Versions = std::vector<const RecordVersion*>;

bool standsBefore(const RecordVersion* a, const RecordVersion* b) {
    return a->isBefore(*b);
}

/// Of equal ones by a member, the first one.
Versions firstOfEach(Versions versions, std::uint64_t RecordVersion::*member) {
    std::sort(versions.begin(), versions.end(), [member](const auto* a, const auto* b) {
        return a->*member != b->*member ? a->*member < b->*member : a->isBefore(*b);
    });
    versions.erase(
        std::unique(versions.begin(), versions.end(),
                    [member](const auto* a, const auto* b) { return a->*member == b->*member; }),
        versions.end());
    std::sort(versions.begin(), versions.end(), standsBefore);
    return versions;
}

FindingCode codeOfDifferent(Owner owner) {
    return owner == Owner::Rec        ? FindingCode::RecDiffers
           : owner == Owner::Geometry ? FindingCode::BoundaryDiffers
                                      : FindingCode::NameDiffers;
}

class Finder {
public:
    std::vector<Meeting> take() {
        std::sort(meetings_.begin(), meetings_.end(), [](const Meeting& a, const Meeting& b) {
            const RecordVersion& first = a.versions[a.anchor];
            const RecordVersion& second = b.versions[b.anchor];
            return std::tie(first.package, first.number, a.code) <
                   std::tie(second.package, second.number, b.code);
        });
        return std::move(meetings_);
    }

    /// Takes all versions of a record, by place.
    void addRecord(const Versions& versions) {
        for (auto begin = versions.begin(); begin != versions.end();) {
            const auto end = std::find_if(begin, versions.end(), [begin](const auto* version) {
                return version->place != (*begin)->place;
            });
            addPlace({begin, end});
            begin = end;
        }
        const Versions places = firstOfEach(versions, &RecordVersion::parent);
        if (places.size() > 1)
            add(FindingCode::InTwoPlaces, places);
    }

    /// Takes the versions of all boundaries of a field.
    void addBoundaries(const Versions& versions) {
        const Versions boundaries = firstOfEach(versions, &RecordVersion::record);
        if (boundaries.size() > 1)
            add(FindingCode::BoundaryAdded, boundaries);
    }

private:
    void addPlace(Versions versions) {
        if (versions.size() < 2)
            return;
        std::sort(versions.begin(), versions.end(), standsBefore);
        const auto shown =
            std::min_element(versions.begin(), versions.end(),
                             [](const auto* a, const auto* b) { return outranks(*a, *b); });
        std::rotate(versions.begin(), shown, shown + 1);
        add(codeOfDifferent(versions.front()->owner), versions);
    }

    void add(FindingCode code, const Versions& versions) {
        Meeting meeting{code, 1, {}, 0};
        for (const RecordVersion* const version : versions) {
            if (meeting.versions.size() < Meeting::mostVersions)
                meeting.versions.push_back(*version);
            else
                ++meeting.more;
        }
        meetings_.push_back(std::move(meeting));
    }

    std::vector<Meeting> meetings_;
};

} // namespace

std::vector<Meeting> meetingsOf(RecordVersions& versions) {
    Finder finder;
    Versions ofRecord;
    Versions boundaries;
    const auto endRecord = [&] {
        if (ofRecord.size() > 1)
            finder.addRecord(ofRecord);
        ofRecord.clear();
    };
    for (const RecordVersion& version : versions.all()) {
        if (!ofRecord.empty() && ofRecord.front()->record != version.record)
            endRecord();
        ofRecord.push_back(&version);
        if (version.owner == Owner::Geometry)
            boundaries.push_back(&version);
    }
    endRecord();
    std::sort(boundaries.begin(), boundaries.end(),
              [](const auto* a, const auto* b) { return a->outer < b->outer; });
    for (auto begin = boundaries.begin(); begin != boundaries.end();) {
        const auto end = std::find_if(begin, boundaries.end(), [begin](const auto* boundary) {
            return boundary->outer != (*begin)->outer;
        });
        finder.addBoundaries({begin, end});
        begin = end;
    }
    return finder.take();
}
