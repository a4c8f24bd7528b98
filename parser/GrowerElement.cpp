#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

QenGrower qenxml::PackageReader::grower(pugi::xml_node node) const {
    auto element = read<format::grower>(node);
    const auto [name] = element.values();
    const auto [id] = element.attributes();
    QenGrower grower(name, id);
    std::vector<QenFarm>& farms = grower.farms();
    readChildren(farms, element.firstItem(),
                 [&](pugi::xml_node item) { farms.push_back(farm(grower.id(), item)); });
    return grower;
}
