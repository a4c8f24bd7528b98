/// @file
/// Records as JSON: what every accessor gives, under the accessor's name; null for a number, or an
/// identifier of an operation or zone, that the package does not give.

#ifndef QENXML_TOOLS_EXPORT_RECORDJSON_H
#define QENXML_TOOLS_EXPORT_RECORDJSON_H

#include <boost/uuid/uuid.hpp>
#include <nlohmann/json.hpp>

#include "model/QenField.h"
#include "model/QenFieldGeometry.h"
#include "model/QenRec.h"
#include "tools/output/JsonWriter.h"
#include "tools/records/MissingNumbers.h"

nlohmann::ordered_json jsonIdentifier(const boost::uuids::uuid& id);

/// Writes them as members of the object that is being written.
void writeMembers(JsonWriter& writer, QenFieldGeometry& geometry, const MissingNumbers& missing);
void writeMembers(JsonWriter& writer, QenRec& rec, const MissingNumbers& missing);

/// Writes a centroid as such a member.
void writeCentroid(JsonWriter& writer, const LLA& centroid, const MissingNumbers& missing);

#endif
