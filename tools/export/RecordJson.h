/// @file
/// Records as JSON: null for what the package does not give.

#ifndef QENXML_TOOLS_EXPORT_RECORDJSON_H
#define QENXML_TOOLS_EXPORT_RECORDJSON_H

#include "tools/export/OutputFields.h"
#include "tools/output/JsonWriter.h"

nlohmann::ordered_json jsonValue(const OutputValue& value);

/// Writes the fields of an owner as members of the object that is being written.
void writeMembers(JsonWriter& writer, Owner owner, const OutputContext& context);

/// Writes a centroid as such a member.
void writeCentroid(JsonWriter& writer, const OutputContext& context);

/// Writes a rec as an element of an array.
void writeRec(JsonWriter& writer, const OutputContext& context);

#endif
