#ifndef QENXML_TOOLS_EXPORT_EXPORTGEOJSON_H
#define QENXML_TOOLS_EXPORT_EXPORTGEOJSON_H

#include <memory>

#include "tools/export/ExportFormat.h"
#include "tools/output/Output.h"

/// The boundaries of fields as features of GeoJSON (RFC 7946): each a point at its centroid, with
/// its recs as properties. A feature whose centroid is no place has no point, as the format
/// provides; its properties say what the package gives.
std::unique_ptr<ExportFormat> makeGeoJsonExport(TextSink sink);

#endif
