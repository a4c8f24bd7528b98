#ifndef QENXML_TOOLS_OUTPUT_OUTPUTPLACE_H
#define QENXML_TOOLS_OUTPUT_OUTPUTPLACE_H

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sys/stat.h>

#include "tools/files/Descriptor.h"

/// A file could not be written. Its text says which one and why; it is not escaped.
class OutputFileError : public std::runtime_error {
public:
    OutputFileError(const std::string& path, std::string_view reason);
    OutputFileError(const std::string& path, int error);
};

/// Where a result goes: the folder and the name that a path leads to.
///
/// Symbolic links at its end are followed as the system does where it protects the folders that
/// everybody may put files into, such as /tmp: what a stranger put there is neither followed nor
/// written, lest somebody with more rights be led to a file of the stranger's choice. The folder is
/// held open, so that all of it stays true whatever is renamed meanwhile.
class OutputPlace {
public:
    /// @throws OutputFileError
    explicit OutputPlace(const std::string& path);

    int folder() const { return folder_.number(); }
    const std::string& name() const { return name_; }

    /// What has the name now, if anything.
    const std::optional<struct stat>& present() const { return present_; }

    /// Whether there is something that is no regular file, to be written to as it is: a device, a
    /// pipe, an open file of this process (/dev/stdout).
    bool isSpecial() const { return present_ && !S_ISREG(present_->st_mode); }

    /// Opens something special.
    ///
    /// @throws OutputFileError
    /// @return none, with errno, when that failed
    Descriptor openSpecial() const;

private:
    void enter(const std::string& path);
    void lookAtName();
    bool mayBeATrap() const;
    bool isProcessFile() const;

    std::string path_; // as it was given
    Descriptor folder_;
    std::string name_;
    std::string link_; // what the name leads to, if it is a symbolic link
    std::optional<struct stat> present_;
};

#endif
