/// @file
/// What is said when the command does not write what a golden file says.

#ifndef QENXML_TESTS_TOOLS_GOLDENDIFFERENCE_H
#define QENXML_TESTS_TOOLS_GOLDENDIFFERENCE_H

#include <string>

namespace test {

/// The lines in which what was written differs from the content of a golden file, with a few lines
/// around them; which file that is, and how it is written anew. Empty where nothing differs.
std::string goldenDifference(const std::string& file, const std::string& written);

} // namespace test

#endif
