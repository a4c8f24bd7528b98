#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

QenFarm qenxml::PackageReader::farm(const boost::uuids::uuid& growerId, pugi::xml_node node) const {
    QenFarm farm(ValueChildren(names_, node, origin_).value(format::farmName),
                 attributeValue(names_, node, format::farmId), growerId);
    std::vector<QenField>& fields = farm.fields();
    readChildren(fields, child(node, &TagNames::Field_),
                 [&](pugi::xml_node item) { fields.push_back(field(growerId, farm.id(), item)); });
    return farm;
}
