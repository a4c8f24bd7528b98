#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"

namespace tag = qenxml::tag;

QenGrower QenXmlParser::parseGrowerNode(pugi::xml_node node) {
    QenGrower grower(node.child(tag::GrowerName).child_value(),
                     qenxml::uuidFromText(node.attribute(tag::GrowerID).as_string()));
    std::vector<QenFarm>& farms = grower.farms();
    qenxml::readChildren(farms, node.child(tag::Farm), [&](pugi::xml_node farm) {
        farms.push_back(parseFarmNode(grower.id(), farm));
    });
    return grower;
}
