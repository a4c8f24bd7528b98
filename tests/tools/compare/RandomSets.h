/// @file
/// Sets of packages at random, and what the library makes of them.

#ifndef QENXML_TESTS_TOOLS_COMPARE_RANDOMSETS_H
#define QENXML_TESTS_TOOLS_COMPARE_RANDOMSETS_H

#include <cstddef>
#include <vector>

#include "model/QenGrower.h"
#include "tools/compare/RecordVersions.h"

namespace test {

using Growers = std::vector<QenGrower>;

/// The number in an environment variable, or the usual one.
unsigned fromEnvironment(const char* name, unsigned usual);

/// Two to four packages of few records with few contents; in some a grower comes twice.
std::vector<Growers> randomSet(unsigned seed);

/// What a host has that merges growers as the library does, in the order of the packages.
Growers mergedByTheLibrary(const std::vector<Growers>& packages,
                           const std::vector<std::size_t>& order);

std::vector<RecordVersion> versionsOf(const Growers& growers, std::size_t package);

} // namespace test

#endif
