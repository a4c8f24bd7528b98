#ifndef QENXML_TOOLS_OUTPUT_OUTPUTFILE_H
#define QENXML_TOOLS_OUTPUT_OUTPUTFILE_H

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tools/files/TemporaryName.h"
#include "tools/files/UnnamedFile.h"
#include "tools/output/OutputPlace.h"

/// A file that is there under its name only when it is whole. Until commit() it has no name, or
/// another one in the same folder where the file system knows no files without; without commit() it
/// goes away, and what had its name before stays.
///
/// What is no regular file, a device or a named pipe, is written to directly. A symbolic link
/// stays, and the file that it leads to is replaced; see OutputPlace.
class OutputFile {
public:
    /// @throws OutputFileError
    explicit OutputFile(const std::string& path, FileKind kind = FileKind::Unnamed);

    /// @throws OutputFileError
    void write(std::string_view text);

    /// Gives the file its name, once all of it is on the disk.
    ///
    /// The mode of a file that it replaces is kept, as far as it gives rights to read, write and
    /// run, and the owner and the group where that is allowed. A group that cannot be kept leaves
    /// no more rights to the new one than everybody has.
    ///
    /// @throws OutputFileError
    void commit();

    /// Whether it is written to as it goes, so that what was written stays without commit().
    bool isDirect() const { return place_.isSpecial(); }

    /// After commit(), what the user should know about it; mostly nothing. It is not escaped.
    const std::string& remark() const { return remark_; }

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    Descriptor openTemporary(FileKind kind);
    Descriptor openNamed(unsigned mode);
    void requireReplaceable() const;
    void keepOwnerAndMode();
    void nameIt();
    [[noreturn]] void fail(int error) const;

    std::string path_; // as it was given
    OutputPlace place_;
    std::optional<TemporaryName> temporary_;
    std::unique_ptr<std::FILE, Close> stream_;
    std::string remark_;
};

#endif
