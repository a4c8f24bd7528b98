/// @file
/// What several commands take: the packages to read, and the file for the result.

#ifndef QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H
#define QENXML_TOOLS_OPTIONS_COMMONOPTIONS_H

#include "tools/input/PackageOptions.h"
#include "tools/options/CommandLineTypes.h"

/// Adds FILE, `--files-from` with `--null`, and `--uuid`.
void addPackageOptions(CLI::App& parser, PackageOptions& options);

/// Adds `-o`, which names the file for the result of a command.
void addOutputOption(CLI::App& parser, PackageOptions& options);

/// Adds `--uuid` alone.
void addUuidOption(CLI::App& parser, PackageOptions& options);

/// Refuses what is no way to name packages, such as "-" without `--uuid`; and to write the result
/// over one of them.
///
/// @throws CLI::ValidationError
void requireUsable(const PackageOptions& options);

#endif
