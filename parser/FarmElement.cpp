#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"

namespace tag = qenxml::tag;

QenFarm QenXmlParser::parseFarmNode(boost::uuids::uuid growerId, pugi::xml_node node) {
    QenFarm farm(node.child(tag::FarmName).child_value(),
                 qenxml::uuidFromText(node.attribute(tag::FarmID).as_string()), growerId);
    std::vector<QenField>& fields = farm.fields();
    qenxml::readChildren(fields, node.child(tag::Field), [&](pugi::xml_node field) {
        fields.push_back(parseFieldNode(growerId, farm.id(), field));
    });
    return farm;
}
