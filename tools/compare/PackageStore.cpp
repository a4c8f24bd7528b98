#include "tools/compare/PackageStore.h"

#include <algorithm>
#include <stdexcept>

#include "tools/compare/RecordValues.h"
#include "tools/input/PackageOptions.h"

std::size_t PackageStore::add(const PackageInput& input) {
    const std::size_t package = names_.size();
    names_.push_back(input.name());
    if (isStandardInput(input.name()))
        standardInput_ = {package, std::make_unique<RecordList>(readPackage(input))};
    else
        keep(package, input);
    return package;
}

const RecordList& PackageStore::records(std::size_t package) {
    if (standardInput_.second != nullptr && standardInput_.first == package)
        return *standardInput_.second;
    const auto found = std::find_if(kept_.begin(), kept_.end(),
                                    [package](const Kept& kept) { return kept.first == package; });
    return found == kept_.end() ? keep(package, PackageInput(names_[package])) : *found->second;
}

const RecordView& PackageStore::record(const RecordVersion& version) {
    const std::vector<RecordView>& all = records(version.package).records();
    if (version.number >= all.size() || contentHash(all[version.number]) != version.content)
        throw std::runtime_error(names_[version.package] + ": was changed while it was compared");
    return all[version.number];
}

const RecordList& PackageStore::keep(std::size_t package, const PackageInput& input) {
    if (kept_.size() == mostKept)
        kept_.pop_front();
    return *kept_.emplace_back(package, std::make_unique<RecordList>(readPackage(input))).second;
}
