#ifndef QENXML_TOOLS_INPUT_PACKAGEOPTIONS_H
#define QENXML_TOOLS_INPUT_PACKAGEOPTIONS_H

#include <string>
#include <vector>

/// What names the packages on a command line, and the result.
struct PackageOptions {
    std::vector<std::string> files; ///< Paths of files and folders, or "-" for the standard input.
    std::string list;               ///< A file with more names, or "-"; empty for none.
    bool zeroEnds = false;          ///< Whether names in it end with zero bytes.
    std::string uuid;               ///< Identity of the package on the standard input.
    std::string output;             ///< The file of `-o`; empty or "-" for the standard output.
};

/// Whether an argument stands for the standard input and not for a file.
inline bool isStandardInput(const std::string& file) {
    return file == "-";
}

#endif
