#include "parser/RecElement.h"

#include <string>

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

// Templates, because the type of the values is private to QenRec. Texts are moved in as strings of
// their own: assigning characters to an empty string reserves more memory than they take.

template <class Values>
void readOperation(pugi::xml_node operation, Origin origin, Values& values) {
    if (operation.empty())
        return;
    const boost::uuids::uuid id = identifierAttribute(operation, tag::OpID);
    if (id.is_nil()) // A nil operation is none at all, so its name is dropped with it.
        return;
    values.operationId = id;
    values.operationName = std::string(ValueChildren(operation, origin).text(tag::OpName));
}

template <class Values>
void readSeason(pugi::xml_node season, Origin origin, Values& values) {
    if (season.empty())
        return;
    const int id = season.attribute(tag::SeasonID).as_int();
    if (id < 0) // A negative season is none at all, so its name is dropped with it.
        return;
    values.seasonId = id;
    values.seasonName = std::string(ValueChildren(season, origin).text(tag::SeasonName));
}

/// Without the element the statistics read as zeros: the unit codes become 0, unlike the -1 of a
/// rec that was not read from a package.
template <class Values>
void readStatistics(pugi::xml_node statistics, Origin origin, Values& values) {
    ValueChildren child(statistics, origin);
    values.minimumRate = child.number(tag::MinimumRate);
    values.maximumRate = child.number(tag::MaximumRate);
    values.averageRate = child.number(tag::AverageRate);
    values.rateUomId = child.integer(tag::RateUOMID);
    values.rateUom = std::string(child.text(tag::RateUOM));
    values.total = child.number(tag::Total);
    values.totalUomId = child.integer(tag::TotalUOMID);
    values.totalUom = std::string(child.text(tag::TotalUOM));
    values.area = child.number(tag::Area);
    values.areaUomId = child.integer(tag::AreaUOMID);
    values.areaUom = std::string(child.text(tag::AreaUOM));
}

} // namespace

void qenxml::RecElement::readInto(QenRec& rec, const boost::uuids::uuid& fieldId,
                                  const boost::uuids::uuid& fieldGeometryId,
                                  const boost::uuids::uuid& package) const {
    QenRec::Values& values = rec.values_;
    ValueChildren child(node_, origin_);

    values.fieldId = fieldId;
    values.fieldGeometryId = fieldGeometryId;
    values.name = std::string(child.element(tag::RecName).child_value());
    values.id = identifierAttribute(node_, tag::RecID);
    values.recGeometry = uuidFromText(child.text(tag::RecGeometry));
    values.creationDate = std::string(child.text(tag::CreationDate));
    values.editDate = std::string(child.text(tag::EditDate));
    values.recDbfCol = std::string(child.text(tag::RecDBFCol));
    readOperation(child.element(tag::Operation), origin_, values);
    readSeason(child.element(tag::Season), origin_, values);
    // The management zone alone may be empty: most recs have none.
    const char* const zone = node_.attribute(tag::MgmtZoneID).as_string();
    if (*zone != '\0')
        values.mgmtZoneId = uuidFromText(zone);
    rec.recData_ = readRecData(values.id, child.element(tag::RecData), origin_).release();
    readStatistics(child.element(tag::RecStats), origin_, values);
    values.xmlFileName = package;
}

QenRec QenXmlParser::parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                                  pugi::xml_node node) {
    QenRec rec;
    qenxml::RecElement(node, Origin::Unknown).readInto(rec, fieldId, fieldGeometryId, xmlFileName_);
    return rec;
}
