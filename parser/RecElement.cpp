#include <string>

#include "parser/internal/PackageReader.h"

namespace qenxml {

namespace {

void readOperation(const TagNames& names, pugi::xml_node operation, Origin origin,
                   RecDescription& rec) {
    if (operation.empty())
        return;
    const boost::uuids::uuid id = attributeValue(names, operation, format::operationId);
    if (id.is_nil()) // A nil operation is none at all, so its name is dropped with it.
        return;
    rec.operationId = id;
    rec.operationName =
        std::string(ValueChildren(names, operation, origin).value(format::operationName));
}

void readSeason(const TagNames& names, pugi::xml_node season, Origin origin, RecDescription& rec) {
    if (season.empty())
        return;
    const int id = attributeValue(names, season, format::seasonId);
    if (id < 0) // A negative season is none at all, so its name is dropped with it.
        return;
    rec.seasonId = id;
    rec.seasonName = std::string(ValueChildren(names, season, origin).value(format::seasonName));
}

} // namespace

void PackageReader::readRec(QenRec& rec, const boost::uuids::uuid& fieldId,
                            const boost::uuids::uuid& fieldGeometryId, pugi::xml_node node) const {
    RecDescription& description = rec.description_;
    ValueChildren children(names_, node, origin_);

    description.fieldId = fieldId;
    description.fieldGeometryId = fieldGeometryId;
    readAttributes<format::recAttributes>(names_, node, description);
    children.readInto<format::recValues>(description);
    readOperation(names_, children.element(&TagNames::Operation_), origin_, description);
    readSeason(names_, children.element(&TagNames::Season_), origin_, description);
    rec.recData_.set(recData(description.id, children.element(&TagNames::RecData_)).release());
    // Without the element the statistics read as zeros: the unit codes become 0, unlike the -1 of a
    // rec that was not read from a package.
    ValueChildren(names_, children.element(&TagNames::RecStats_), origin_)
        .readInto<format::statisticsValues>(rec.statistics_);
    rec.xmlFileName_ = package_;
}

} // namespace qenxml
