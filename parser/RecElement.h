/// @file
/// Reading a Rec element into a rec that is in its place already. Not part of the public interface.

#ifndef QENXML_PARSER_RECELEMENT_H
#define QENXML_PARSER_RECELEMENT_H

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "model/QenRec.h"
#include "parser/ValueChildren.h"

namespace qenxml {

/// Fills @p rec, which is freshly constructed.
/// @throws std::runtime_error "invalid uuid string"
void readRec(const boost::uuids::uuid& fieldId, const boost::uuids::uuid& fieldGeometryId,
             const boost::uuids::uuid& package, pugi::xml_node node, Origin origin, QenRec& rec);

} // namespace qenxml

#endif
