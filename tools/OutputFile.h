#ifndef QENXML_TOOLS_OUTPUTFILE_H
#define QENXML_TOOLS_OUTPUTFILE_H

#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/TemporaryName.h"

/// A file could not be written. Its text says which one and why; it is not escaped.
class OutputFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file that is there under its name only when it is whole. Until commit() it has another name in
/// the same folder; without commit() it goes away, and what had its name before stays.
///
/// What is no regular file, a device or a named pipe, is written to directly. A symbolic link
/// stays, and the file that it leads to is replaced.
class OutputFile {
public:
    /// @throws OutputFileError
    explicit OutputFile(const std::string& path);

    /// @throws OutputFileError
    void write(std::string_view text);

    /// Gives the file its name, once all of it is on the disk.
    ///
    /// @throws OutputFileError
    void commit();

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    void openDirectly();
    void openTemporary(bool replaces, unsigned mode);
    [[noreturn]] void fail(int error) const;

    std::string shownPath_; // as it was given
    std::string path_;      // without symbolic links
    std::optional<TemporaryName> temporary_;
    std::unique_ptr<std::FILE, Close> stream_;
};

#endif
