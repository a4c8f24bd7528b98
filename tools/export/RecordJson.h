/// @file
/// Records as JSON: what every accessor gives, under the accessor's name.

#ifndef QENXML_TOOLS_EXPORT_RECORDJSON_H
#define QENXML_TOOLS_EXPORT_RECORDJSON_H

#include <boost/uuid/uuid.hpp>
#include <nlohmann/json.hpp>

#include "model/QenField.h"
#include "model/QenFieldGeometry.h"
#include "model/QenRec.h"
#include "tools/JsonWriter.h"

nlohmann::ordered_json jsonIdentifier(const boost::uuids::uuid& id);

/// Writes them as members of the object that is being written.
void writeMembers(JsonWriter& writer, QenFieldGeometry& geometry);
void writeMembers(JsonWriter& writer, QenRec& rec);

#endif
