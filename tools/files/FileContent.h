#ifndef QENXML_TOOLS_FILES_FILECONTENT_H
#define QENXML_TOOLS_FILES_FILECONTENT_H

#include <cstddef>
#include <string>

/// The content of a file, or why it cannot be had.
struct FileContent {
    std::string bytes;
    std::string failure; ///< In words; empty when there is none.
};

/// Reads a regular file. Of anything else it does not wait for content: a pipe without a writer
/// would never give any.
FileContent readFileContent(const std::string& path);

/// Reads @p size bytes of an open file, or all that there are.
FileContent readDescriptor(int file, std::size_t size);

/// In words, an error number of opening or reading a file.
std::string describeFileError(int error);

#endif
