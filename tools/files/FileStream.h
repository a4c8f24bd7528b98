#ifndef QENXML_TOOLS_FILES_FILESTREAM_H
#define QENXML_TOOLS_FILES_FILESTREAM_H

#include <cstddef>
#include <streambuf>
#include <string>
#include <vector>

#include "tools/files/Descriptor.h"

/// A regular file, read part by part: it may be larger than the memory. Of anything else it does
/// not wait for content, as readFileContent() does not.
class FileStream : public std::streambuf {
public:
    explicit FileStream(const std::string& path);

    /// Why the file cannot be read, in words; empty as long as it can.
    const std::string& failure() const { return failure_; }

protected:
    int_type underflow() override;

private:
    static constexpr std::size_t partSize = 65536;

    Descriptor file_;
    std::string failure_;
    std::vector<char> part_;
};

#endif
