/// @file
/// Records as JSON: what every accessor gives, under the accessor's name.

#ifndef QENXML_TOOLS_EXPORT_RECORDJSON_H
#define QENXML_TOOLS_EXPORT_RECORDJSON_H

#include <boost/uuid/uuid.hpp>
#include <nlohmann/json.hpp>

#include "model/QenField.h"
#include "model/QenFieldGeometry.h"
#include "model/QenRec.h"

nlohmann::ordered_json jsonIdentifier(const boost::uuids::uuid& id);
nlohmann::ordered_json geometryJson(QenFieldGeometry& geometry);
nlohmann::ordered_json recJson(QenRec& rec);

#endif
