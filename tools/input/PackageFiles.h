#ifndef QENXML_TOOLS_INPUT_PACKAGEFILES_H
#define QENXML_TOOLS_INPUT_PACKAGEFILES_H

#include <string>
#include <vector>

/// The files that arguments stand for.
struct PackageFiles {
    std::vector<std::string> paths;
    std::vector<std::string> complaints; ///< About folders; safe to print.
};

/// Takes files as they are, whether they exist or not, the standard input too, and of folders all
/// files in them and in their folders that end in ".xml", whatever the case, sorted by path.
PackageFiles packageFiles(const std::vector<std::string>& arguments);

#endif
