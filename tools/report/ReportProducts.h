#ifndef QENXML_TOOLS_REPORT_REPORTPRODUCTS_H
#define QENXML_TOOLS_REPORT_REPORTPRODUCTS_H

#include "tools/output/Output.h"
#include "tools/report/ProductTotals.h"

/// The section with a row for each product and unit.
void writeProducts(const ProductTotals& totals, const TextSink& sink);

#endif
