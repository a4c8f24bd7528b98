#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

QenGrower qenxml::PackageReader::grower(pugi::xml_node node) const {
    QenGrower grower(ValueChildren(names_, node, origin_).value(format::growerName),
                     attributeValue(names_, node, format::growerId));
    std::vector<QenFarm>& farms = grower.farms();
    readChildren(farms, child(node, &TagNames::Farm_),
                 [&](pugi::xml_node item) { farms.push_back(farm(grower.id(), item)); });
    return grower;
}
