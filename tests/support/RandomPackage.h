/// @file
/// Packages made at random, most of them with something wrong.

#ifndef QENXML_TESTS_SUPPORT_RANDOMPACKAGE_H
#define QENXML_TESTS_SUPPORT_RANDOMPACKAGE_H

#include <random>
#include <string>

namespace test {

/// The text of a package. Identifiers come from a small pool, so that siblings share some; parts
/// are missing, repeated, misspelt or out of place; identifiers and numbers are damaged.
std::string randomPackage(std::mt19937& random);

/// A text with a few of its bytes, or pieces, changed, removed, repeated or added.
std::string mutated(std::string text, std::mt19937& random);

} // namespace test

#endif
