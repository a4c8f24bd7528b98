#ifndef QENXML_TOOLS_INPUT_PACKAGEFILES_H
#define QENXML_TOOLS_INPUT_PACKAGEFILES_H

#include <string>
#include <vector>

/// The files that arguments stand for.
struct PackageFiles {
    std::vector<std::string> paths;
    std::vector<std::string> complaints; ///< About folders; safe to print.
    std::vector<std::string> remarks;    ///< What was passed over in folders; safe to print.
};

/// Takes files as they are, whether they exist or not, the standard input too, and of folders all
/// files in them and in their folders that end in ".xml", whatever the case, sorted by path. What
/// is hidden is passed over, as is what a system keeps for itself; and no link to a folder is
/// followed.
PackageFiles packageFiles(const std::vector<std::string>& arguments);

#endif
