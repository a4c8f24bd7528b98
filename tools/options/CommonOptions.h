/// @file
/// What several commands take: the packages to read, and the file for the result.

#ifndef QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H
#define QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// What names the packages on a command line, and the result.
struct PackageOptions {
    std::vector<std::string> files; ///< Paths of files and folders, or "-" for the standard input.
    std::string list;               ///< A file with more names, or "-"; empty for none.
    bool zeroEnds = false;          ///< Whether names in it end with zero bytes.
    std::string uuid;               ///< Identity of the package on the standard input.
    std::string output;             ///< The file of `-o`; empty or "-" for the standard output.
};

/// Adds FILE, `--files-from` with `--null`, and `--uuid`.
void addPackageOptions(CLI::App& parser, PackageOptions& options);

/// Adds `-o`, which names the file for the result of a command.
void addOutputOption(CLI::App& parser, PackageOptions& options);

/// Adds `--uuid` alone.
void addUuidOption(CLI::App& parser, PackageOptions& options);

/// Whether an argument stands for the standard input and not for a file.
bool isStandardInput(const std::string& file);

/// Refuses what is no way to name packages, such as "-" without `--uuid`; and to write the result
/// over one of them.
///
/// @throws CLI::ValidationError
void requireUsable(const PackageOptions& options);

#endif
