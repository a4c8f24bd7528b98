/// @file
/// Reading a Rec element into a rec that is in its place already. Not part of the public interface.

#ifndef QENXML_PARSER_RECELEMENT_H
#define QENXML_PARSER_RECELEMENT_H

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "model/QenRec.h"
#include "parser/ValueChildren.h"

namespace qenxml {

/// A Rec element, read straight into the values of a rec: by way of its setters, which take texts
/// by value, a small package takes 2 % more time.
class RecElement {
public:
    RecElement(pugi::xml_node node, Origin origin) : node_(node), origin_(origin) {}

    /// Fills @p rec, which is freshly constructed.
    /// @throws std::runtime_error "invalid uuid string"
    void readInto(QenRec& rec, const boost::uuids::uuid& fieldId,
                  const boost::uuids::uuid& fieldGeometryId,
                  const boost::uuids::uuid& package) const;

private:
    pugi::xml_node node_;
    Origin origin_;
};

} // namespace qenxml

#endif
