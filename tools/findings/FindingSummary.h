#ifndef QENXML_TOOLS_FINDINGS_FINDINGSUMMARY_H
#define QENXML_TOOLS_FINDINGS_FINDINGSUMMARY_H

#include <string>

#include "tools/check/FindingCollection.h"
#include "tools/output/Style.h"

/// The word for a severity, as it looks.
std::string severityText(Severity severity, const Style& style);

/// The findings of one file as people want to see them: grouped by code, the gravest last; of a
/// code of which not all are kept, how many more there are. No line begins with a blank but those
/// that say more of a finding, so that programs tell them apart.
///
/// @param file how the file is called, safe to print
std::string summaryText(const FindingCollection& findings, const std::string& file,
                        const Style& style);

#endif
