#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

namespace qenxml {

LLA PackageReader::centroid(pugi::xml_node node) const {
    const auto [latitude, longitude] = read<format::fieldCentroid>(node).values();
    return {latitude, longitude, 0.0};
}

QenField PackageReader::field(const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
                              pugi::xml_node node) const {
    auto element = read<format::field>(node);
    const auto attributes = element.attributes();
    const auto values = element.values();
    const auto& [id] = attributes;
    const auto& [name, geometryId, geometryDate, geometry] = values;
    LLA centroid = this->centroid(element.part<format::fieldCentroid>());

    QenField field(name, id, growerId, farmId, geometryDate, geometryId, geometry, centroid);
    std::vector<QenRec>& recs = field.recs();
    const auto recommendations =
        read<format::recommendations>(element.part<format::recommendations>());
    readChildren(recs, recommendations.firstItem(),
                 [&, &id = id, &geometryId = geometryId](pugi::xml_node item) {
                     readRec(QenRec::appendEmpty(recs), id, geometryId, item);
                 });
    return field;
}

} // namespace qenxml
