#ifndef QENXML_TOOLS_FILES_TEMPORARYFOLDER_H
#define QENXML_TOOLS_FILES_TEMPORARYFOLDER_H

#include <string>

/// The folder for temporary files: `TMPDIR`, or "/tmp" where that is not set.
std::string temporaryFolder();

#endif
