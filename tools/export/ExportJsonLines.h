#ifndef QENXML_TOOLS_EXPORT_EXPORTJSONLINES_H
#define QENXML_TOOLS_EXPORT_EXPORTJSONLINES_H

#include <memory>

#include "tools/export/ExportFormat.h"
#include "tools/output/Output.h"

/// A line of JSON per rec, with what is around it: docs/recs.schema.json.
std::unique_ptr<ExportFormat> makeJsonLinesExport(TextSink sink);

#endif
