#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageReader.h"

namespace qenxml {

LLA PackageReader::centroid(pugi::xml_node node) const {
    const auto [latitude, longitude] =
        ValueChildren(names_, node, origin_).values<format::centroidValues>();
    return {latitude, longitude, 0.0};
}

QenField PackageReader::field(const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
                              pugi::xml_node node) const {
    ValueChildren children(names_, node, origin_);
    const boost::uuids::uuid id = attributeValue(names_, node, format::fieldId);
    const auto values = children.values<format::fieldValues>();
    const auto& [name, geometryId, geometryDate, geometry] = values;
    LLA centroid = this->centroid(children.element(&TagNames::FieldCentroid_));

    QenField field(name, id, growerId, farmId, geometryDate, geometryId, geometry, centroid);
    std::vector<QenRec>& recs = field.recs();
    const pugi::xml_node firstRec =
        child(children.element(&TagNames::Recommendations_), &TagNames::Rec_);
    readChildren(recs, firstRec, [&, &geometryId = geometryId](pugi::xml_node item) {
        readRec(QenRec::appendEmpty(recs), id, geometryId, item);
    });
    return field;
}

} // namespace qenxml
