#ifndef QENXML_TOOLS_REPORT_FINDINGGROUPS_H
#define QENXML_TOOLS_REPORT_FINDINGGROUPS_H

#include <array>
#include <cstddef>
#include <vector>

#include "tools/check/Finding.h"

/// A finding and the index of its package.
struct PackageFinding {
    std::size_t package = 0;
    Finding finding;
};

/// The findings of a code in all packages.
struct FindingGroup {
    std::vector<PackageFinding> kept; ///< The first ones.
    std::size_t more = 0;             ///< How many there are besides.
    std::size_t packagesOfMore = 0;   ///< In how many packages those are.
    std::size_t lastOfMore = 0;       ///< The last of these packages.

    std::size_t sum() const { return kept.size() + more; }
};

/// The findings of many packages by their code. They take no more room for more packages.
class FindingGroups {
public:
    static constexpr std::size_t mostOfACode = 10;

    bool wants(FindingCode code) const { return of(code).kept.size() < mostOfACode; }

    /// @param package not below that of the finding before
    void add(std::size_t package, const Finding& finding);
    void addCode(std::size_t package, FindingCode code);

    const FindingGroup& of(FindingCode code) const {
        return groups_[static_cast<std::size_t>(code)];
    }
    std::size_t of(Severity severity) const;

private:
    std::array<FindingGroup, findingKinds.size()> groups_;
};

#endif
