#ifndef QENXML_TOOLS_INPUT_PACKAGEINPUT_H
#define QENXML_TOOLS_INPUT_PACKAGEINPUT_H

#include <optional>
#include <string>

#include "tools/input/InputCopy.h"
#include "tools/input/PackageOptions.h"

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
