#ifndef QENXML_TOOLS_INPUT_DIAGNOSIS_H
#define QENXML_TOOLS_INPUT_DIAGNOSIS_H

#include <optional>
#include <string>

#include "tools/text/SourceText.h"

/// Why a package file could not be read.
struct ReadFailure {
    std::string reason;               ///< In words, safe to print.
    std::optional<Position> position; ///< Where in the file, if it is about a place there.
};

/// Finds out why the library could not read a package file. The library itself says little, so the
/// file is read once more.
///
/// @throws std::bad_alloc
ReadFailure diagnose(const std::string& path);

#endif
