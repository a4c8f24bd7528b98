#include "parser/RecElement.h"

#include "model/QenRecData.h"
#include "parser/ChildCursor.h"
#include "parser/Identifier.h"
#include "parser/Number.h"
#include "parser/QenXmlParser.h"
#include "parser/RecDataElement.h"
#include "parser/TagNames.h"

namespace tag = qenxml::tag;

namespace {

boost::uuids::uuid identifierAttribute(pugi::xml_node node, const char* name) {
    return qenxml::uuidFromText(node.attribute(name).as_string());
}

void readOperation(pugi::xml_node operation, QenRec& rec) {
    if (operation.empty())
        return;
    const boost::uuids::uuid id = identifierAttribute(operation, tag::OpID);
    if (id.is_nil()) // A nil operation is none at all, so its name is dropped with it.
        return;
    rec.setOperationId(id);
    rec.setOperationName(operation.child(tag::OpName).text().as_string());
}

void readSeason(pugi::xml_node season, QenRec& rec) {
    if (season.empty())
        return;
    const int id = season.attribute(tag::SeasonID).as_int();
    if (id < 0) // A negative season is none at all, so its name is dropped with it.
        return;
    rec.setSeasonId(id);
    rec.setSeasonName(season.child(tag::SeasonName).text().as_string());
}

/// Without the element the statistics read as zeros: the unit codes become 0, unlike the -1 of a
/// rec that was not read from a package.
void readStatistics(pugi::xml_node statistics, QenRec& rec) {
    qenxml::ChildCursor children(statistics);
    const auto text = [&](const char* name) { return children.child(name).text(); };
    const auto number = [&](const char* name) {
        return qenxml::numberFromText(text(name).as_string());
    };
    rec.setMinimumRate(number(tag::MinimumRate));
    rec.setMaximumRate(number(tag::MaximumRate));
    rec.setAverageRate(number(tag::AverageRate));
    rec.setRateUomId(text(tag::RateUOMID).as_int());
    rec.setRateUom(text(tag::RateUOM).as_string());
    rec.setTotal(number(tag::Total));
    rec.setTotalUomId(text(tag::TotalUOMID).as_int());
    rec.setTotalUom(text(tag::TotalUOM).as_string());
    rec.setArea(number(tag::Area));
    rec.setAreaUomId(text(tag::AreaUOMID).as_int());
    rec.setAreaUom(text(tag::AreaUOM).as_string());
}

} // namespace

void qenxml::readRec(const boost::uuids::uuid& fieldId, const boost::uuids::uuid& fieldGeometryId,
                     const boost::uuids::uuid& package, pugi::xml_node node, QenRec& rec) {
    ChildCursor children(node);
    const auto text = [&](const char* name) { return children.child(name).text().as_string(); };

    rec.setFieldId(fieldId);
    rec.setFieldGeometryId(fieldGeometryId);
    rec.setName(children.child(tag::RecName).child_value());
    rec.setId(identifierAttribute(node, tag::RecID));
    rec.setRecGeometry(uuidFromText(text(tag::RecGeometry)));
    rec.setCreationDate(text(tag::CreationDate));
    rec.setEditDate(text(tag::EditDate));
    rec.setRecDbfCol(text(tag::RecDBFCol));
    readOperation(children.child(tag::Operation), rec);
    readSeason(children.child(tag::Season), rec);
    // The management zone alone may be empty: most recs have none.
    const char* const zone = node.attribute(tag::MgmtZoneID).as_string();
    if (*zone != '\0')
        rec.setMgMtZoneId(uuidFromText(zone));
    rec.setRecData(readRecData(rec.id(), children.child(tag::RecData)).release());
    readStatistics(children.child(tag::RecStats), rec);
    rec.setXmlFileName(package);
}

QenRec QenXmlParser::parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                                  pugi::xml_node node) {
    QenRec rec;
    qenxml::readRec(fieldId, fieldGeometryId, xmlFileName_, node, rec);
    return rec;
}
