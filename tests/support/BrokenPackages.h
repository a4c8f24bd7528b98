/// @file
/// The samples of broken packages: how reading each of them ends, and how it is mended.

#ifndef QENXML_TESTS_SUPPORT_BROKENPACKAGES_H
#define QENXML_TESTS_SUPPORT_BROKENPACKAGES_H

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace test {

struct BrokenPackage {
    std::string folder;  ///< Under examples/packages/broken: the code of what is wrong with it.
    std::string outcome; ///< What parseFile() returns, or the error that it throws.
    std::vector<std::string> survivors; ///< Names of the growers that are read.
    std::string
        wrong; ///< What has to be replaced in the file to mend it; empty when it is the name.
    std::string right; ///< The replacement.
    std::vector<std::string> mendedGrowers;
};

/// For GoogleTest to print one.
void PrintTo(const BrokenPackage& package, std::ostream* out);

const std::vector<BrokenPackage>& brokenPackages();

/// The path of a sample.
std::filesystem::path brokenSample(const BrokenPackage& package);

/// The text of a sample, mended.
std::string mended(const BrokenPackage& package, std::string text);

} // namespace test

#endif
