/// @file
/// Recs with a value of its own in every place, and the table of these values.

#ifndef QENXML_TESTS_MODEL_WHOLEREC_H
#define QENXML_TESTS_MODEL_WHOLEREC_H

#include <string>
#include <vector>

#include "model/PlantingRec.h"
#include "model/QenRec.h"
#include "tests/support/Property.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace test {

/// A row of the table. The types of getter and setter are exactly those that are expected.
template <class Value>
Property<QenRec> row(const std::string& name, Getter<QenRec, Value> getter,
                     Setter<QenRec, Value> setter, const Value& initial, const Value& built,
                     const Value& changed) {
    return property<QenRec>(name, getter, setter, initial, built, changed);
}

/// Every value of a rec but its product data, as wholeRec() has it when it is used. Note
/// setMgMtZoneId, spelt unlike its getter.
inline std::vector<Property<QenRec>> properties() {
    using Rec = QenRec;
    using Uuid = boost::uuids::uuid;
    using std::string;
    return {
        row<Uuid>("fieldId", &Rec::fieldId, &Rec::setFieldId, {}, uuid(1), uuid(101)),
        row<Uuid>("fieldGeometryId", &Rec::fieldGeometryId, &Rec::setFieldGeometryId, {}, uuid(2),
                  uuid(102)),
        row<string>("name", &Rec::name, &Rec::setName, "", "name", "a name"),
        row<Uuid>("id", &Rec::id, &Rec::setId, {}, uuid(3), uuid(103)),
        row<Uuid>("recGeometry", &Rec::recGeometry, &Rec::setRecGeometry, {}, uuid(4), uuid(104)),
        row<string>("creationDate", &Rec::creationDate, &Rec::setCreationDate, "", "created",
                    "born"),
        row<string>("editDate", &Rec::editDate, &Rec::setEditDate, "", "", "edited"),
        row<string>("recDbfCol", &Rec::recDbfCol, &Rec::setRecDbfCol, "", "column", "a column"),
        row<string>("operationName", &Rec::operationName, &Rec::setOperationName, "", "operation",
                    "an operation"),
        row<Uuid>("operationId", &Rec::operationId, &Rec::setOperationId, {}, uuid(5), uuid(105)),
        row<string>("seasonName", &Rec::seasonName, &Rec::setSeasonName, "", "season", "a season"),
        row<int>("seasonId", &Rec::seasonId, &Rec::setSeasonId, -1, 6, 106),
        row<Uuid>("mgmtZoneId", &Rec::mgmtZoneId, &Rec::setMgMtZoneId, {}, uuid(7), uuid(107)),
        row<double>("minimumRate", &Rec::minimumRate, &Rec::setMinimumRate, 0.0, 8.5, 108.5),
        row<double>("maximumRate", &Rec::maximumRate, &Rec::setMaximumRate, 0.0, 9.5, 109.5),
        row<double>("averageRate", &Rec::averageRate, &Rec::setAverageRate, 0.0, 10.5, 110.5),
        row<int>("rateUomId", &Rec::rateUomId, &Rec::setRateUomId, -1, 11, 111),
        row<string>("rateUom", &Rec::rateUom, &Rec::setRateUom, "", "rate unit", "a rate's unit"),
        row<double>("total", &Rec::total, &Rec::setTotal, 0.0, 12.5, 112.5),
        row<int>("totalUomId", &Rec::totalUomId, &Rec::setTotalUomId, -1, 13, 113),
        row<string>("totalUom", &Rec::totalUom, &Rec::setTotalUom, "", "total unit",
                    "a total's unit"),
        row<double>("area", &Rec::area, &Rec::setArea, 0.0, 14.5, -114.5),
        row<int>("areaUomId", &Rec::areaUomId, &Rec::setAreaUomId, -1, 15, -115),
        row<string>("areaUom", &Rec::areaUom, &Rec::setAreaUom, "", "area unit", "an area's unit"),
        row<bool>("isUsed", &Rec::isUsed, &Rec::setIsUsed, false, true, true),
        row<Uuid>("xmlFileName", &Rec::xmlFileName, &Rec::setXmlFileName, {}, uuid(16), uuid(116)),
    };
}

/// A rec of the full constructor. No two of its values of one type are the same.
inline QenRec wholeRec(QenRecData* data = nullptr, bool isUsed = false) {
    return QenRec(uuid(1), uuid(2), "name", uuid(3), uuid(4), "created", "column", "operation",
                  uuid(5), "season", 6, uuid(7), data, 8.5, 9.5, 10.5, "rate unit", 11, 12.5, 13,
                  "total unit", 14.5, 15, "area unit", isUsed, uuid(16));
}

inline PlantingRec* planting(int cropId = 1) {
    return new PlantingRec(uuid(1), cropId, "crop", 2, "company", 3, "variety", 4, "seeds");
}

/// Counts how many were destroyed. Its kind is none of a variant.
class CountingRecData : public QenRecData {
public:
    explicit CountingRecData(int& destroyed, RecType recType = RecTypeNone)
        : QenRecData(uuid(1), recType), destroyed_(destroyed) {}
    CountingRecData(const CountingRecData&) = delete;
    CountingRecData& operator=(const CountingRecData&) = delete;
    ~CountingRecData() override { ++destroyed_; }

private:
    int& destroyed_;
};

/// A rec whose product data reports this kind, whatever it means.
inline QenRec recOfKind(RecType kind) {
    return wholeRec(new QenRecData(uuid(1), kind));
}

} // namespace test

#endif
