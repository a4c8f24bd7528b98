#include "tools/together/PackageTwins.h"

#include "tools/text/Fnv1a.h"

namespace {

void addNumber(Fnv1a& hash, std::uint64_t number) {
    for (unsigned shift = 0; shift < 64; shift += 8)
        hash.add(static_cast<char>(number >> shift & 0xFFU));
}

std::uint64_t contentOf(const std::vector<RecordVersion>& versions) {
    Fnv1a hash;
    for (const RecordVersion& version : versions) {
        addNumber(hash, version.place);
        addNumber(hash, version.content);
    }
    return hash.value();
}

} // namespace

void PackageTwins::add(const std::optional<boost::uuids::uuid>& uuid,
                       const std::vector<RecordVersion>& versions) {
    const auto number = static_cast<std::uint32_t>(packages_.size());
    First first{number, number, contentOf(versions)};
    if (uuid)
        first.byUuid = uuids_.try_emplace(*uuid, number).first->second;
    if (!versions.empty())
        first.byContent = contents_.try_emplace(first.content, number).first->second;
    packages_.push_back(first);
}

std::optional<PackageTwin> PackageTwins::of(std::size_t package) const {
    const First& first = packages_[package];
    if (first.byUuid < package)
        return PackageTwin{first.byUuid, true, packages_[first.byUuid].content == first.content};
    if (first.byContent < package)
        return PackageTwin{first.byContent, false, true};
    return std::nullopt;
}
