#ifndef QENXML_TOOLS_DIFF_PACKAGEDIFF_H
#define QENXML_TOOLS_DIFF_PACKAGEDIFF_H

#include <cstddef>
#include <vector>

#include "tools/compare/PackageStore.h"
#include "tools/compare/RecordVersions.h"
#include "tools/diff/RecordDifference.h"

/// One of the two sides that are compared.
struct DiffSide {
    PackageStore& packages;
    RecordVersions& versions; ///< Of all that could be read.
};

/// Compares the records of two sides, and gives what differs to @p writer: what is changed or
/// removed in the order of the first side, then what is added in that of the second.
///
/// Records are the same whose kind and identifier are. One that is there in several versions is
/// compared version by version: those that both sides have are no difference.
///
/// @return how many differences there are
/// @throws std::runtime_error when a package is not what it was when its versions were made
std::size_t comparePackages(const DiffSide& from, const DiffSide& to, DiffWriter& writer);

#endif
