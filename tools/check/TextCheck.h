#ifndef QENXML_TOOLS_CHECK_TEXTCHECK_H
#define QENXML_TOOLS_CHECK_TEXTCHECK_H

#include <string_view>

#include "tools/check/CheckReport.h"

/// Checks the characters of a value that is read for control characters.
///
/// @param extent where it stands, as it is written
/// @param step   the last step of its path
void checkCharacters(CheckReport& report, Extent extent, std::string_view step);

/// Checks a value for references that XML does not have.
///
/// @param value as it is read
void checkReferences(CheckReport& report, Extent extent, std::string_view value,
                     std::string_view step);

#endif
