#ifndef QENXML_TOOLS_EXPORT_EXPORTJSON_H
#define QENXML_TOOLS_EXPORT_EXPORTJSON_H

#include <memory>

#include "tools/export/ExportFormat.h"
#include "tools/output/Output.h"

/// The whole tree as one JSON document: docs/export.schema.json.
std::unique_ptr<ExportFormat> makeJsonExport(TextSink sink);

#endif
