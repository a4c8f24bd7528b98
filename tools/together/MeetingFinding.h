/// @file
/// Findings about packages that are merged.

#ifndef QENXML_TOOLS_TOGETHER_MEETINGFINDING_H
#define QENXML_TOOLS_TOGETHER_MEETINGFINDING_H

#include "tools/check/Finding.h"
#include "tools/compare/PackageStore.h"
#include "tools/together/Meetings.h"
#include "tools/together/PackageTwins.h"

/// Reads again what a meeting is about, and says it of the package of its anchor.
Finding findingOf(const Meeting& meeting, PackageStore& packages);

/// @param other how the other one of the twins is called
Finding findingOf(const PackageTwin& twin, const std::string& other);

#endif
