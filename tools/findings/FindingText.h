/// @file
/// The sentences about the data of findings: their only home.

#ifndef QENXML_TOOLS_FINDINGS_FINDINGTEXT_H
#define QENXML_TOOLS_FINDINGS_FINDINGTEXT_H

#include <string>

#include "tools/check/FindingCollection.h"

/// What reading makes of it: "it is read as 135".
std::string consequenceText(const Finding& finding);

/// The records around it that have names: "grower "Ana", farm "Nord""; may be empty.
std::string recordsText(const Finding& finding);

/// "1 error, 2,000 warnings", or "no problems found".
std::string countsText(const FindingCounts& counts);

#endif
