/// @file
/// Reading the product data of a rec. Not part of the public interface.

#ifndef QENXML_PARSER_RECDATAELEMENT_H
#define QENXML_PARSER_RECDATAELEMENT_H

#include <memory>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "model/QenRecData.h"
#include "parser/ValueChildren.h"

namespace qenxml {

/// The product data of a RecData element, or null.
/// @throws std::runtime_error "invalid uuid string"
std::unique_ptr<QenRecData> readRecData(const boost::uuids::uuid& recId, pugi::xml_node node,
                                        Origin origin);

} // namespace qenxml

#endif
