#ifndef QENXML_TOOLS_CHECK_PACKAGECHECK_H
#define QENXML_TOOLS_CHECK_PACKAGECHECK_H

#include <string>
#include <vector>

#include "tools/check/Finding.h"
#include "tools/files/FileContent.h"

/// Finds what is wrong with a package file and hands it to @p sink in the order of the file. An
/// error is among it if and only if the library fails to read the file.
///
/// @throws std::bad_alloc
void checkPackage(const std::string& path, FindingSink& sink);

/// As above, with the content of the file, or why it cannot be had.
void checkPackage(const std::string& path, FileContent content, FindingSink& sink);

/// As above, but all at once.
std::vector<Finding> checkPackage(const std::string& path);

#endif
