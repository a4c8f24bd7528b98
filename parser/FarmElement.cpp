#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

QenFarm qenxml::PackageReader::farm(const boost::uuids::uuid& growerId, pugi::xml_node node) const {
    auto element = read<format::farm>(node);
    const auto [name] = element.values();
    const auto [id] = element.attributes();
    QenFarm farm(name, id, growerId);
    std::vector<QenField>& fields = farm.fields();
    readChildren(fields, element.firstItem(),
                 [&](pugi::xml_node item) { fields.push_back(field(growerId, farm.id(), item)); });
    return farm;
}
