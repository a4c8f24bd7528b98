#include "model/ChildList.h"
#include "parser/ChildCursor.h"
#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/QenXmlParser.h"
#include "parser/RecElement.h"
#include "parser/TagNames.h"
#include "parser/ValueChildren.h"

namespace tag = qenxml::tag;

namespace {

LLA readCentroid(pugi::xml_node node, qenxml::Origin origin) {
    qenxml::ValueChildren child(node, origin);
    LLA centroid{};
    centroid.latitude = child.number(tag::Latitude);
    centroid.longitude = child.number(tag::Longitude);
    return centroid;
}

} // namespace

QenField QenXmlParser::parseFieldNode(boost::uuids::uuid growerId, boost::uuids::uuid farmId,
                                      pugi::xml_node node) {
    const qenxml::Origin origin =
        node.root() == document_ ? qenxml::Origin::File : qenxml::Origin::Unknown;
    qenxml::ChildCursor children(node);
    const auto text = [&](const char* name) { return children.child(name).child_value(); };

    const boost::uuids::uuid id = qenxml::uuidFromText(node.attribute(tag::FieldID).as_string());
    const char* const name = text(tag::FieldName);
    const boost::uuids::uuid geometryId = qenxml::uuidFromText(text(tag::FieldGeometryID));
    const char* const geometryDate = text(tag::FieldGeometryDate);
    const boost::uuids::uuid geometry = qenxml::uuidFromText(text(tag::FieldGeometry));
    LLA centroid = readCentroid(children.child(tag::FieldCentroid), origin);

    QenField field(name, id, growerId, farmId, geometryDate, geometryId, geometry, centroid);
    std::vector<QenRec>& recs = field.recs();
    const pugi::xml_node firstRec = children.child(tag::Recommendations).child(tag::Rec);
    qenxml::readChildren(recs, firstRec, [&](pugi::xml_node rec) {
        // In its place from the start: a rec cannot be moved.
        qenxml::RecElement(rec, origin)
            .readInto(qenxml::appendEmptyRec(recs), id, geometryId, xmlFileName_);
    });
    return field;
}
