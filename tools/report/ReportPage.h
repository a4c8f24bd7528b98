#ifndef QENXML_TOOLS_REPORT_REPORTPAGE_H
#define QENXML_TOOLS_REPORT_REPORTPAGE_H

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// Writes one page of HTML about packages, of which there is at least one. It needs nothing from
/// elsewhere, and no script, and stays small for any number of packages: what is left out is said.
void writeReport(ReportData& data, const TextSink& sink);

#endif
