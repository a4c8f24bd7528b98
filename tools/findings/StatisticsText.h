/// @file
/// Statistics about findings as people read them.

#ifndef QENXML_TOOLS_FINDINGS_STATISTICSTEXT_H
#define QENXML_TOOLS_FINDINGS_STATISTICSTEXT_H

#include <string>

#include "tools/findings/FindingStatistics.h"
#include "tools/output/Style.h"

/// How many files cannot be read, and which, a line each with the codes of their errors; empty when
/// all can.
std::string unreadableText(const FindingStatistics& statistics, const Style& style);

/// A table with a line for each code: in how many files it was found how often. Empty when nothing
/// was found.
std::string codesText(const FindingStatistics& statistics, const Style& style);

/// "2,000 files: 1 error, 3 warnings; 1 cannot be read, 1,996 without problems".
std::string sumText(const FindingStatistics& statistics);

#endif
