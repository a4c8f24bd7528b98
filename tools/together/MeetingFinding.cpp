#include "tools/together/MeetingFinding.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "tools/compare/RecordNames.h"
#include "tools/compare/RecordValues.h"
#include "tools/text/DateText.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace {

/// What a version has to say, without its package.
struct ReadVersion {
    std::string file; ///< Escaped.
    std::vector<RecordName> records;
    std::vector<std::pair<const char*, std::string>> values; ///< As texts.
    std::string edited;
};

ReadVersion readVersion(const RecordVersion& version, PackageStore& packages) {
    const RecordView& record = packages.record(version);
    ReadVersion read{escape(packages.name(version.package)), namesOf(record), {}, {}};
    for (const RecordValue& value : comparedValues(record))
        read.values.emplace_back(value.name, valueText(value));
    if (record.owner == Owner::Rec)
        read.edited = record.context.rec->editDate();
    return read;
}

/// The values that are not the same in all versions, by their numbers.
std::set<std::size_t> differingValues(const std::vector<ReadVersion>& versions) {
    std::set<std::size_t> differing;
    for (const ReadVersion& version : versions) {
        for (std::size_t i = 0; i < version.values.size(); ++i) {
            if (version.values[i].second != versions.front().values[i].second)
                differing.insert(i);
        }
    }
    return differing;
}

/// The number of the version that was edited after all others, if their dates say so.
std::optional<std::size_t> editedLast(const std::vector<ReadVersion>& versions) {
    std::vector<TimeSpan> dates;
    for (const ReadVersion& version : versions) {
        const DateText date = readDate(version.edited);
        if (date.kind != DateKind::Iso)
            return std::nullopt;
        dates.push_back(date.span);
    }
    for (std::size_t last = 0; last < dates.size(); ++last) {
        const auto isLast = [&](const TimeSpan& other) {
            return &other == &dates[last] || isBefore(other, dates[last]);
        };
        if (std::all_of(dates.begin(), dates.end(), isLast))
            return last;
    }
    return std::nullopt;
}

Merges mergesOf(const Meeting& meeting, const std::vector<ReadVersion>& versions) {
    const std::set<std::size_t> differing = differingValues(versions);
    Merges merges;
    merges.more = meeting.more;
    for (std::size_t i = 0; i < versions.size(); ++i) {
        const RecordVersion& version = meeting.versions[i];
        MergedVersion& merged = merges.versions.emplace_back();
        merged.file = versions[i].file;
        merged.packages = version.count;
        merged.canCount = version.canCount;
        for (const std::size_t value : differing)
            merged.values.emplace_back(versions[i].values[value].first,
                                       versions[i].values[value].second);
    }
    if (meeting.more == 0)
        merges.editedLast = editedLast(versions);
    return merges;
}

/// "farm \"Home\"", of the record around one.
std::string outerName(const ReadVersion& version) {
    const RecordName& outer = version.records.at(version.records.size() - 2);
    return fmt::format("{} \"{}\"", outer.kind, outer.name);
}

std::string andMore(std::size_t more) {
    return more == 0 ? "" : fmt::format(" ({} more elsewhere)", more);
}

/// What is wrong with the version that the finding is about, beside the first one.
std::string describe(const Meeting& meeting, const std::vector<ReadVersion>& versions) {
    const ReadVersion& first = versions.front();
    const ReadVersion& here = versions.at(meeting.anchor);
    const char* const kind = here.records.back().kind;
    const std::size_t more = versions.size() + meeting.more - 2;
    if (meeting.code == FindingCode::NameDiffers)
        return fmt::format("the {} is called \"{}\", but \"{}\" in {}{}", kind,
                           here.records.back().name, first.records.back().name, first.file,
                           andMore(more));
    if (meeting.code == FindingCode::InTwoPlaces)
        return fmt::format("the {} stands in {}, but in {} in {}{}", kind, outerName(here),
                           outerName(first), first.file, andMore(more));
    if (meeting.code == FindingCode::BoundaryAdded)
        return fmt::format("the field has another boundary than in {}{}", first.file,
                           andMore(more));
    std::vector<std::string> names;
    for (const std::size_t value : differingValues({first, here}))
        names.emplace_back(first.values[value].first);
    return fmt::format("the {} differs in {} from that in {}{}", kind, joined(names), first.file,
                       andMore(more));
}

bool oneIsShown(FindingCode code) {
    return code != FindingCode::InTwoPlaces && code != FindingCode::BoundaryAdded;
}

} // namespace

Finding findingOf(const Meeting& meeting, PackageStore& packages) {
    std::vector<ReadVersion> versions;
    for (const RecordVersion& version : meeting.versions)
        versions.push_back(readVersion(version, packages));
    Consequence consequence = Kept{};
    if (oneIsShown(meeting.code))
        consequence = mergesOf(meeting, versions);
    return {meeting.code, describe(meeting, versions),        std::move(consequence), {},
            {},           versions.at(meeting.anchor).records};
}

Finding findingOf(const PackageTwin& twin, const std::string& other) {
    if (!twin.sameUuid)
        return {FindingCode::PackageRenamed,
                fmt::format("{} has the same content under another UUID", escape(other)), Kept{}};
    return {FindingCode::PackageTwice,
            fmt::format("the package UUID is that of {}, too, with {} content", escape(other),
                        twin.sameContent ? "the same" : "another"),
            Kept{}};
}
