/// @file
/// Packages as people and programs write them: whole ones in all the ways that XML allows, and
/// ones with slips.

#ifndef QENXML_TESTS_TOOLS_CHECK_SLIPPEDPACKAGE_H
#define QENXML_TESTS_TOOLS_CHECK_SLIPPEDPACKAGE_H

#include <random>
#include <string>

namespace test {

/// The bytes of a package. In many nothing is lost; the others have a few slips in values, names,
/// markup, encoding or bytes.
std::string slippedPackage(std::mt19937& random);

} // namespace test

#endif
