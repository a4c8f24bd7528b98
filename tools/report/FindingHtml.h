/// @file
/// What the sections of the report about findings have in common.

#ifndef QENXML_TOOLS_REPORT_FINDINGHTML_H
#define QENXML_TOOLS_REPORT_FINDINGHTML_H

#include <optional>
#include <string>

#include "tools/check/Finding.h"
#include "tools/report/ReportData.h"

/// What to do about the findings of a code.
std::string cureHtml(FindingCode code);

/// What comes of a finding.
std::string consequenceHtml(const Finding& finding);

/// The records that a finding stands in, and its path.
std::string surroundingsHtml(const Finding& finding);

/// The name of the file and the place in it; of a report about one package the place alone.
///
/// @param finding its place; none for the file
std::string placeHtml(const ReportData& data, const ReportPackage& package,
                      const std::optional<Finding>& finding);

#endif
