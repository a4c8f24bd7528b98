#include "parser/internal/PackageReader.h"

namespace qenxml {

void PackageReader::readOperation(RecDescription& rec, pugi::xml_node node) const {
    if (node.empty())
        return;
    auto element = read<format::operation>(node);
    element.readAttributes(rec);
    if (!rec.operationId
             .is_nil()) // A nil operation is none at all, so its name is dropped with it.
        element.readValues(rec);
}

void PackageReader::readSeason(RecDescription& rec, pugi::xml_node node) const {
    if (node.empty())
        return;
    auto element = read<format::season>(node);
    element.readAttributes(rec);
    if (rec.seasonId < 0) // A negative season is none at all, so its name is dropped with it.
        rec.seasonId = -1;
    else
        element.readValues(rec);
}

void PackageReader::readRec(QenRec& rec, const boost::uuids::uuid& fieldId,
                            const boost::uuids::uuid& fieldGeometryId, pugi::xml_node node) const {
    RecDescription& description = rec.description_;
    auto element = read<format::rec>(node);

    description.fieldId = fieldId;
    description.fieldGeometryId = fieldGeometryId;
    element.readAttributes(description);
    element.readValues(description);
    readOperation(description, element.part<format::operation>());
    readSeason(description, element.part<format::season>());
    rec.recData_.set(recData(description.id, element.part<format::recData>()).release());
    // Without the element the statistics read as zeros: the unit codes become 0, unlike the -1 of a
    // rec that was not read from a package.
    read<format::recStats>(element.part<format::recStats>()).readValues(rec.statistics_);
    rec.xmlFileName_ = package_;
}

} // namespace qenxml
