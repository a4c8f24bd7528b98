#ifndef QENXML_TOOLS_INPUT_INPUTCHECK_H
#define QENXML_TOOLS_INPUT_INPUTCHECK_H

#include "tools/check/Finding.h"
#include "tools/input/PackageInput.h"

/// Finds what is wrong with a package and hands it to @p sink. That there is no file to check, or
/// not enough memory to do so, is one more finding.
void checkInput(const PackageInput& input, FindingSink& sink);

#endif
