#ifndef QENXML_TOOLS_PACKAGECHECK_H
#define QENXML_TOOLS_PACKAGECHECK_H

#include <string>
#include <vector>

#include "tools/Finding.h"

/// What is wrong with a package file, in the order of the file. An error is among it if and only if
/// the library fails to read the file.
///
/// @throws std::bad_alloc
std::vector<Finding> checkPackage(const std::string& path);

#endif
