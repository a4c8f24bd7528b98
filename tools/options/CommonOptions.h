/// @file
/// What several commands take: the packages to read, and the file for the result.

#ifndef QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H
#define QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// What names the packages on a command line.
struct PackageOptions {
    std::vector<std::string> files; ///< Paths, or "-" for the standard input.
    std::string uuid;               ///< Identity of the package on the standard input.
};

/// Adds FILE and `--uuid`.
///
/// @param files what may be given for FILE beside "-"
void addPackageOptions(CLI::App& parser, PackageOptions& options,
                       const std::string& files = "Package files, named UUID.xml");

/// Whether an argument stands for the standard input and not for a file.
bool isStandardInput(const std::string& file);

/// Refuses what is no way to name packages, such as "-" without `--uuid`; and to write the result
/// over one of them.
///
/// @param output of `-o`; empty or "-" for the standard output
/// @throws CLI::ValidationError
void requireUsable(const PackageOptions& options, const std::string& output = "");

/// Adds the option `-o`, which names the file for the result of a command.
void addOutputOption(CLI::App& parser, std::string& path);

#endif
