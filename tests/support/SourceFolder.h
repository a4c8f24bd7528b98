/// @file
/// Where the sources of this project are, for tests that read documents and samples.

#ifndef QENXML_TESTS_SUPPORT_SOURCEFOLDER_H
#define QENXML_TESTS_SUPPORT_SOURCEFOLDER_H

#include <string>

namespace test {

/// The path of a file or folder of the sources, given from their outermost folder on. Only the
/// source of this function knows the folder, so that a compiler cache serves every checkout.
std::string inSources(const std::string& path);

} // namespace test

#endif
