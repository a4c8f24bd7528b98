#ifndef QENXML_TOOLS_EXPORT_EXPORTGEOJSON_H
#define QENXML_TOOLS_EXPORT_EXPORTGEOJSON_H

#include <memory>

#include "tools/export/ExportFormat.h"
#include "tools/output/Output.h"

/// Recs as features of GeoJSON (RFC 7946), a line each: points at the centroids of their
/// boundaries, with the columns of tables as properties, so that a map can be coloured by each. A
/// field without recs is a feature, too, one for each boundary. A feature whose centroid is no
/// place has no point, as the format provides; its properties say what the package gives.
std::unique_ptr<ExportFormat> makeGeoJsonExport(TextSink sink);

/// The same features as a sequence of texts (RFC 8142), which programs can take one by one.
std::unique_ptr<ExportFormat> makeGeoJsonSequenceExport(TextSink sink);

#endif
