#include "model/QenRecData.h"
#include "parser/Identifier.h"
#include "parser/QenXmlParser.h"
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
    const auto text = [&](const char* name) { return statistics.child(name).text(); };
    rec.setMinimumRate(text(tag::MinimumRate).as_double());
    rec.setMaximumRate(text(tag::MaximumRate).as_double());
    rec.setAverageRate(text(tag::AverageRate).as_double());
    rec.setRateUomId(text(tag::RateUOMID).as_int());
    rec.setRateUom(text(tag::RateUOM).as_string());
    rec.setTotal(text(tag::Total).as_double());
    rec.setTotalUomId(text(tag::TotalUOMID).as_int());
    rec.setTotalUom(text(tag::TotalUOM).as_string());
    rec.setArea(text(tag::Area).as_double());
    rec.setAreaUomId(text(tag::AreaUOMID).as_int());
    rec.setAreaUom(text(tag::AreaUOM).as_string());
}

} // namespace

QenRec QenXmlParser::parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                                  pugi::xml_node node) {
    const auto text = [&](const char* name) { return node.child(name).text().as_string(); };

    QenRec rec;
    rec.setFieldId(fieldId);
    rec.setFieldGeometryId(fieldGeometryId);
    rec.setName(node.child(tag::RecName).child_value());
    rec.setId(identifierAttribute(node, tag::RecID));
    rec.setRecGeometry(qenxml::uuidFromText(text(tag::RecGeometry)));
    rec.setCreationDate(text(tag::CreationDate));
    rec.setEditDate(text(tag::EditDate));
    rec.setRecDbfCol(text(tag::RecDBFCol));
    readOperation(node.child(tag::Operation), rec);
    readSeason(node.child(tag::Season), rec);
    // The management zone alone may be empty: most recs have none.
    if (*node.attribute(tag::MgmtZoneID).as_string() != '\0')
        rec.setMgMtZoneId(identifierAttribute(node, tag::MgmtZoneID));
    // The rec owns the data from the moment it exists, so a later failure leaks nothing.
    rec.setRecData(parseRecDataNode(rec.id(), node.child(tag::RecData)));
    readStatistics(node.child(tag::RecStats), rec);
    rec.setXmlFileName(xmlFileName_);
    return rec;
}
