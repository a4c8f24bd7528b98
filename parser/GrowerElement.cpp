#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"

namespace tag = qenxml::tag;

QenGrower QenXmlParser::parseGrowerNode(pugi::xml_node node) {
    QenGrower grower(node.child(tag::GrowerName).child_value(),
                     qenxml::uuidFromText(node.attribute(tag::GrowerID).as_string()));
    qenxml::walkList(node, tag::Farm, [&](pugi::xml_node farm) {
        grower.farms().push_back(parseFarmNode(grower.id(), farm));
    });
    qenxml::keepLastOfEachIdentifier(grower.farms());
    return grower;
}
