/// @file
/// Explanations of findings as people and programs read them.

#ifndef QENXML_TOOLS_FINDINGS_EXPLANATIONTEXT_H
#define QENXML_TOOLS_FINDINGS_EXPLANATIONTEXT_H

#include <string>

#include "tools/findings/Explanation.h"
#include "tools/output/Style.h"

/// The code with its severity and title, and below it cause, example and cure, in lines of no more
/// than 80 characters.
std::string explanationText(FindingCode code, const Style& style);

/// An object, of which docs/explanations.schema.json is the schema.
std::string explanationJson(FindingCode code);

#endif
