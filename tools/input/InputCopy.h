#ifndef QENXML_TOOLS_INPUT_INPUTCOPY_H
#define QENXML_TOOLS_INPUT_INPUTCOPY_H

#include <optional>
#include <string>

#include "tools/files/TemporaryName.h"
#include "tools/files/UnnamedFile.h"

/// A copy of the standard input that the library can read, which reads nothing but files, and takes
/// the UUID of the package from the end of their path. It goes away with this object.
class InputCopy {
public:
    explicit InputCopy(const std::string& uuid, FileKind kind = FileKind::Unnamed);

    /// What to give to the library.
    const std::string& path() const { return path_; }

    /// Why there is no whole copy, safe to print; none when there is one.
    const std::optional<std::string>& failure() const { return failure_; }

private:
    Descriptor openUnnamed(const std::string& uuid);
    Descriptor openNamed(const std::string& uuid);

    std::string path_;
    std::optional<std::string> failure_;
    Descriptor file_;
    std::optional<TemporaryName> folder_;
    std::optional<TemporaryName> name_; // removed before its folder
};

#endif
