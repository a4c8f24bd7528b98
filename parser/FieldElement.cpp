#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"

namespace tag = qenxml::tag;

QenField QenXmlParser::parseFieldNode(boost::uuids::uuid growerId, boost::uuids::uuid farmId,
                                      pugi::xml_node node) {
    const auto text = [&](const char* name) { return node.child(name).child_value(); };

    const boost::uuids::uuid id = qenxml::uuidFromText(node.attribute(tag::FieldID).as_string());
    const boost::uuids::uuid geometryId = qenxml::uuidFromText(text(tag::FieldGeometryID));
    const boost::uuids::uuid geometry = qenxml::uuidFromText(text(tag::FieldGeometry));
    const pugi::xml_node centroidNode = node.child(tag::FieldCentroid);
    LLA centroid{};
    centroid.latitude = centroidNode.child(tag::Latitude).text().as_double();
    centroid.longitude = centroidNode.child(tag::Longitude).text().as_double();

    QenField field(text(tag::FieldName), id, growerId, farmId, text(tag::FieldGeometryDate),
                   geometryId, geometry, centroid);
    qenxml::walkList(node.child(tag::Recommendations), tag::Rec, [&](pugi::xml_node rec) {
        field.recs().push_back(parseRecNode(id, geometryId, rec));
    });
    qenxml::keepLastOfEachIdentifier(field.recs());
    return field;
}
