#ifndef QENXML_TOOLS_REPORT_REPORTSUMMARY_H
#define QENXML_TOOLS_REPORT_REPORTSUMMARY_H

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// The section that says how many of everything there are.
void writeSummary(const ReportData& data, const TextSink& sink);

#endif
