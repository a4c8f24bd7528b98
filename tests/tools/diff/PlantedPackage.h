/// @file
/// Packages into which changes are planted, with what a comparison has to say of each.

#ifndef QENXML_TESTS_TOOLS_DIFF_PLANTEDPACKAGE_H
#define QENXML_TESTS_TOOLS_DIFF_PLANTEDPACKAGE_H

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace test {

/// A record with the texts of its values, by the names that the comparison has for them.
struct PlantedRecord {
    std::string kind; ///< "field"
    unsigned id = 0;
    std::map<std::string, std::string> values;
    std::vector<PlantedRecord> children;
};

/// Several packages.
using PlantedPackages = std::vector<std::vector<PlantedRecord>>;

/// Packages whose records all have different identifiers.
PlantedPackages plantedPackages(std::mt19937& random);

/// Puts some changes into packages: values changed, taken away and given; records removed and
/// added.
///
/// @return "rec 7 total" for each value that differs, and "removed rec 7" or "added rec 8" for each
///         record
std::set<std::string> plantChanges(PlantedPackages& packages, std::mt19937& random);

/// The text of a package.
std::string textOf(const std::vector<PlantedRecord>& growers);

} // namespace test

#endif
