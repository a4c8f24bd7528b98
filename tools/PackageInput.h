#ifndef QENXML_TOOLS_PACKAGEINPUT_H
#define QENXML_TOOLS_PACKAGEINPUT_H

#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "tools/InputCopy.h"

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

/// Refuses what is no way to name packages, such as "-" without `--uuid`; and to write the result,
/// if it has a name, over one of them.
///
/// @throws CLI::ValidationError
void requireUsable(const PackageOptions& options, const std::string& output = "");

/// One package to read: a file, or the standard input.
///
/// Of the standard input there is a copy as long as this object.
class PackageInput {
public:
    /// A file.
    explicit PackageInput(std::string path);

    /// @param file one of options.files
    PackageInput(const std::string& file, const PackageOptions& options);

    /// What messages call it: as it was named on the command line.
    const std::string& name() const { return name_; }

    /// The file to read.
    const std::string& path() const { return path_; }

    /// Why there is no file to read, safe to print; none when there may be one.
    const std::optional<std::string>& failure() const { return failure_; }

private:
    std::string name_;
    std::string path_;
    std::optional<std::string> failure_;
    std::optional<InputCopy> copy_;
};

#endif
