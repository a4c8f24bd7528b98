#ifndef QENXML_TOOLS_FILES_WRITTENFILE_H
#define QENXML_TOOLS_FILES_WRITTENFILE_H

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include <sys/types.h>

/// The regular file that the results of a command go to, by what the system knows it by, whatever
/// its names: to compare it with the files that are to be read.
class WrittenFile {
public:
    /// @param path as of `-o`; empty or "-" for the standard output
    explicit WrittenFile(const std::string& path);

    /// Whether a file is the one that is written.
    ///
    /// @param path "-" for the standard input
    bool is(const std::string& path) const;

    /// Whether it is that of the standard output.
    bool isStandardOutput() const { return isStandardOutput_; }

    /// Whether it has been empty from the beginning.
    bool isEmpty() const { return isEmpty_; }

private:
    using Identity = std::pair<dev_t, ino_t>;

    bool isStandardOutput_;
    bool isEmpty_ = true;
    std::optional<Identity> identity_; ///< None when it is no regular file, or a new one.
};

#endif
