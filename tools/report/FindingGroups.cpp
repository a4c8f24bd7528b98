#include "tools/report/FindingGroups.h"

void FindingGroups::add(std::size_t package, const Finding& finding) {
    if (wants(finding.code))
        groups_[static_cast<std::size_t>(finding.code)].kept.push_back({package, finding});
    else
        addCode(package, finding.code);
}

void FindingGroups::addCode(std::size_t package, FindingCode code) {
    FindingGroup& group = groups_[static_cast<std::size_t>(code)];
    if (group.more++ == 0 || group.lastOfMore != package)
        ++group.packagesOfMore;
    group.lastOfMore = package;
}

std::size_t FindingGroups::of(Severity severity) const {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < groups_.size(); ++i)
        sum += findingKinds[i].severity == severity ? groups_[i].sum() : 0;
    return sum;
}
