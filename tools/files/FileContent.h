#ifndef QENXML_TOOLS_FILES_FILECONTENT_H
#define QENXML_TOOLS_FILES_FILECONTENT_H

#include <cstddef>
#include <string>

#include "tools/files/Descriptor.h"

/// The content of a file, or why it cannot be had.
struct FileContent {
    std::string bytes;
    std::string failure; ///< In words; empty when there is none.
};

/// A file that was opened for reading, or why it could not be.
struct OpenFile {
    Descriptor file;
    std::size_t size = 0;
    std::string failure; ///< In words; empty when there is none.
};

/// Opens a regular file, and nothing else.
OpenFile openRegularFile(const std::string& path);

/// Reads a regular file. Of anything else it does not wait for content: a pipe without a writer
/// would never give any.
FileContent readFileContent(const std::string& path);

/// Reads @p size bytes of an open file, or all that there are.
FileContent readDescriptor(int file, std::size_t size);

/// In words, an error number of opening or reading a file.
std::string describeFileError(int error);

#endif
