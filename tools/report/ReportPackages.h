#ifndef QENXML_TOOLS_REPORT_REPORTPACKAGES_H
#define QENXML_TOOLS_REPORT_REPORTPACKAGES_H

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// The section with a row for each package.
void writePackages(const ReportData& data, const TextSink& sink);

#endif
