#ifndef QENXML_TOOLS_INPUT_INPUTCHECK_H
#define QENXML_TOOLS_INPUT_INPUTCHECK_H

#include <optional>

#include "tools/check/Finding.h"
#include "tools/files/FileContent.h"
#include "tools/input/PackageInput.h"

/// Finds what is wrong with a package and hands it to @p sink. That there is no file to check, or
/// not enough memory to do so, is one more finding.
///
/// @param content that of the file, if it has been read already
void checkInput(const PackageInput& input, FindingSink& sink,
                std::optional<FileContent> content = std::nullopt);

#endif
