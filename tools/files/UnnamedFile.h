#ifndef QENXML_TOOLS_FILES_UNNAMEDFILE_H
#define QENXML_TOOLS_FILES_UNNAMEDFILE_H

#include <string>

#include "tools/files/Descriptor.h"

/// How something temporary is kept from being left behind.
enum class FileKind {
    Unnamed, ///< By having no name; where the system knows no such files, as Named.
    Named    ///< By being removed.
};

/// Makes a file without a name, which is gone with the process, whatever ends it.
///
/// @param start  the folder in which a relative path begins
/// @param folder in whose file system it is
/// @return none where the system knows no such files, or gives them no path (Descriptor::path)
Descriptor openUnnamedFile(int start, const std::string& folder, unsigned mode);

#endif
