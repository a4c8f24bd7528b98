#include "parser/RecElement.h"

#include "model/QenRecData.h"
#include "parser/Identifier.h"
#include "parser/QenXmlParser.h"
#include "parser/RecDataElement.h"
#include "parser/TagNames.h"
#include "parser/ValueChildren.h"

namespace tag = qenxml::tag;
using qenxml::Origin;
using qenxml::ValueChildren;

namespace {

boost::uuids::uuid identifierAttribute(pugi::xml_node node, const char* name) {
    return qenxml::uuidFromText(node.attribute(name).as_string());
}

void readOperation(pugi::xml_node operation, Origin origin, QenRec& rec) {
    if (operation.empty())
        return;
    const boost::uuids::uuid id = identifierAttribute(operation, tag::OpID);
    if (id.is_nil()) // A nil operation is none at all, so its name is dropped with it.
        return;
    rec.setOperationId(id);
    rec.setOperationName(ValueChildren(operation, origin).text(tag::OpName));
}

void readSeason(pugi::xml_node season, Origin origin, QenRec& rec) {
    if (season.empty())
        return;
    const int id = season.attribute(tag::SeasonID).as_int();
    if (id < 0) // A negative season is none at all, so its name is dropped with it.
        return;
    rec.setSeasonId(id);
    rec.setSeasonName(ValueChildren(season, origin).text(tag::SeasonName));
}

/// Without the element the statistics read as zeros: the unit codes become 0, unlike the -1 of a
/// rec that was not read from a package.
void readStatistics(pugi::xml_node statistics, Origin origin, QenRec& rec) {
    ValueChildren child(statistics, origin);
    rec.setMinimumRate(child.number(tag::MinimumRate));
    rec.setMaximumRate(child.number(tag::MaximumRate));
    rec.setAverageRate(child.number(tag::AverageRate));
    rec.setRateUomId(child.integer(tag::RateUOMID));
    rec.setRateUom(child.text(tag::RateUOM));
    rec.setTotal(child.number(tag::Total));
    rec.setTotalUomId(child.integer(tag::TotalUOMID));
    rec.setTotalUom(child.text(tag::TotalUOM));
    rec.setArea(child.number(tag::Area));
    rec.setAreaUomId(child.integer(tag::AreaUOMID));
    rec.setAreaUom(child.text(tag::AreaUOM));
}

} // namespace

void qenxml::readRec(const boost::uuids::uuid& fieldId, const boost::uuids::uuid& fieldGeometryId,
                     const boost::uuids::uuid& package, pugi::xml_node node, Origin origin,
                     QenRec& rec) {
    ValueChildren child(node, origin);

    rec.setFieldId(fieldId);
    rec.setFieldGeometryId(fieldGeometryId);
    rec.setName(child.element(tag::RecName).child_value());
    rec.setId(identifierAttribute(node, tag::RecID));
    rec.setRecGeometry(uuidFromText(child.text(tag::RecGeometry)));
    rec.setCreationDate(child.text(tag::CreationDate));
    rec.setEditDate(child.text(tag::EditDate));
    rec.setRecDbfCol(child.text(tag::RecDBFCol));
    readOperation(child.element(tag::Operation), origin, rec);
    readSeason(child.element(tag::Season), origin, rec);
    // The management zone alone may be empty: most recs have none.
    const char* const zone = node.attribute(tag::MgmtZoneID).as_string();
    if (*zone != '\0')
        rec.setMgMtZoneId(uuidFromText(zone));
    rec.setRecData(readRecData(rec.id(), child.element(tag::RecData), origin).release());
    readStatistics(child.element(tag::RecStats), origin, rec);
    rec.setXmlFileName(package);
}

QenRec QenXmlParser::parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                                  pugi::xml_node node) {
    QenRec rec;
    qenxml::readRec(fieldId, fieldGeometryId, xmlFileName_, node, Origin::Unknown, rec);
    return rec;
}
