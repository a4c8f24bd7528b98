#ifndef QENXML_TOOLS_REPORT_REPORTPAGE_H
#define QENXML_TOOLS_REPORT_REPORTPAGE_H

#include <vector>

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// Writes one page of HTML about packages. It needs nothing from elsewhere, and no script.
void writeReport(std::vector<ReportPackage>& packages, const TextSink& sink);

#endif
