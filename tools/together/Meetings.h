#ifndef QENXML_TOOLS_TOGETHER_MEETINGS_H
#define QENXML_TOOLS_TOGETHER_MEETINGS_H

#include <cstddef>
#include <vector>

#include "tools/check/FindingCodes.h"
#include "tools/compare/RecordVersions.h"

/// Versions of records that meet when packages are merged, and what there is to say of it.
struct Meeting {
    /// So many versions are kept; of the others there is only the number.
    static constexpr std::size_t mostVersions = 10;

    FindingCode code;
    std::size_t anchor;                  ///< The one of the versions that it is said of.
    std::vector<RecordVersion> versions; ///< That which is shown first; the others in order.
    std::size_t more = 0;                ///< Versions that are not kept.
};

/// Everything that merging loses, changes or puts together, in the order of the packages:
///
/// - a record in one place with different contents, of which one is shown;
/// - a record in different places;
/// - a field with more than one boundary.
std::vector<Meeting> meetingsOf(RecordVersions& versions);

#endif
