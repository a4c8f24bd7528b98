#include "tools/export/OutputFields.h"

#include <type_traits>

#include <boost/uuid/uuid_io.hpp>

#include "model/internal/RecDataVisit.h"
#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"

namespace tag = qenxml::tag;

namespace {

OutputValue toValue(const boost::uuids::uuid& id) {
    return to_string(id);
}

template <class Value>
OutputValue toValue(Value value) {
    return value;
}

/// An identifier that a package need not give.
OutputValue optionalIdentifier(const boost::uuids::uuid& id) {
    return id.is_nil() ? OutputValue() : toValue(id);
}

/// The record of a type, and whose fields those that it gives are.
template <class Record>
struct Source;

template <>
struct Source<QenGrower> {
    static constexpr Owner owner = Owner::Grower;
    static QenGrower& of(const OutputContext& context) { return *context.grower; }
};

template <>
struct Source<QenFarm> {
    static constexpr Owner owner = Owner::Farm;
    static QenFarm& of(const OutputContext& context) { return *context.farm; }
};

template <>
struct Source<QenField> {
    static constexpr Owner owner = Owner::Field;
    static QenField& of(const OutputContext& context) { return *context.field; }
};

template <>
struct Source<QenFieldGeometry> {
    static constexpr Owner owner = Owner::Geometry;
    static QenFieldGeometry& of(const OutputContext& context) { return *context.geometry; }
};

template <>
struct Source<QenRec> {
    static constexpr Owner owner = Owner::Rec;
    static QenRec& of(const OutputContext& context) { return *context.rec; }
};

/// A field that an accessor gives.
template <class Record, class Accessor>
OutputField fieldOf(OutputNames names, Accessor accessor, const char* number) {
    return {Source<Record>::owner, names, number, [accessor](const OutputContext& context) {
                return std::optional(toValue((Source<Record>::of(context).*accessor)()));
            }};
}

template <class Record, class Value>
OutputField field(OutputNames names, Value (Record::*accessor)(), const char* number = nullptr) {
    return fieldOf<Record>(names, accessor, number);
}

template <class Record, class Value>
OutputField field(OutputNames names, Value (Record::*accessor)() const) {
    return fieldOf<Record>(names, accessor, nullptr);
}

/// A field of a rec that takes more than an accessor.
OutputField recField(OutputNames names, OutputValue (*read)(QenRec&),
                     const char* number = nullptr) {
    return {Owner::Rec, names, number,
            [read](const OutputContext& context) { return std::optional(read(*context.rec)); }};
}

OutputField centroidField(OutputNames names, double LLA::*degrees, const char* number) {
    return {Owner::Centroid, names, number, [degrees](const OutputContext& context) {
                return std::optional(OutputValue(context.centroid.*degrees));
            }};
}

template <class Product, class Value>
void readFrom(Product& product, Value (Product::*accessor)(), std::optional<OutputValue>& value) {
    value = toValue((product.*accessor)());
}

/// The accessor is that of another product.
template <class Product, class Accessor>
void readFrom(Product& /*product*/, Accessor /*accessor*/, std::optional<OutputValue>& /*value*/) {}

/// A field of the products that have one of the accessors.
template <class... Products, class... Values>
OutputField productField(OutputNames names, const char* number,
                         Values (Products::*... accessors)()) {
    return {
        Owner::Product, names, number, [=](const OutputContext& context) {
            std::optional<OutputValue> value;
            QenRecData* const data = context.rec->recData();
            if (data != nullptr)
                qenxml::visitRecData(
                    *data,
                    [&](auto& product) { return (readFrom(product, accessors, value), ..., 0); },
                    0);
            return value;
        }};
}

/// A field of products of all kinds.
OutputField anyProductField(OutputNames names, OutputValue (*read)(QenRecData&)) {
    return {Owner::Product, names, nullptr, [read](const OutputContext& context) {
                QenRecData* const data = context.rec->recData();
                return data == nullptr ? std::nullopt : std::optional(read(*data));
            }};
}

using Fertilizer = CommercialFertilizerRec;
using Blend = CustomFertilizerRec;

OutputField inUnit(const char* unit, OutputField field) {
    field.unit = unit;
    return field;
}

OutputField nutrient(OutputNames names, const char* number, double (Blend::*percentage)()) {
    return inUnit("%", productField(names, number, percentage));
}

std::vector<OutputField> makeFields() {
    constexpr const char* no = nullptr;
    return {
        field({"xmlFileName", no, "package"}, &QenRec::xmlFileName),
        field({"name", "growerName", "grower"}, &QenGrower::name),
        field({"name", "farmName", "farm"}, &QenFarm::name),
        field({"name", "name", "field"}, &QenField::name),
        field({"name", no, "rec"}, &QenRec::name),
        field({"operationName", no, "operation"}, &QenRec::operationName),
        field({"seasonName", no, "season"}, &QenRec::seasonName),
        recField(
            {"seasonId", no, "season_id"},
            [](QenRec& rec) {
                return rec.seasonId() == -1 ? OutputValue() : OutputValue(rec.seasonId());
            },
            tag::SeasonID),
        field({"creationDate", no, "created"}, &QenRec::creationDate),
        field({"editDate", no, "edited"}, &QenRec::editDate),
        anyProductField({"kind", no, no},
                        [](QenRecData& data) { return OutputValue(productKindKey(&data)); }),
        anyProductField({no, no, "product_kind"},
                        [](QenRecData& data) { return OutputValue(productKind(&data)); }),
        productField({"productId", no, "product_id"}, tag::ProductID, &Fertilizer::productId,
                     &Blend::productId),
        productField({"productName", no, "product"}, no, &Fertilizer::productName,
                     &Blend::productName),
        productField({"pesticideMixName", no, no}, no, &PesticideRec::pesticideMixName),
        productField({"cropId", no, "crop_id"}, tag::CropID, &PlantingRec::cropId),
        productField({"cropName", no, "crop"}, no, &PlantingRec::cropName),
        productField({"companyId", no, "company_id"}, tag::CompanyID, &PlantingRec::companyId),
        productField({"companyName", no, "company"}, no, &PlantingRec::companyName),
        productField({"varietyId", no, "variety_id"}, tag::VarietyID, &PlantingRec::varietyId),
        productField({"varietyName", no, "variety"}, no, &PlantingRec::varietyName),
        productField({"uomId", no, "product_unit_id"}, tag::UOMID, &Fertilizer::uomId,
                     &Blend::uomId, &PlantingRec::uomId, &PesticideRec::uomId),
        productField({"uom", no, "product_unit"}, no, &Fertilizer::uom, &Blend::uom,
                     &PlantingRec::uom, &PesticideRec::uom),
        productField({"sFertT_ID", no, "sfertt_id"}, tag::SFertT_ID, &Blend::sFertT_ID),
        productField({"spGravity", no, "specific_gravity"}, tag::SpGravity, &Blend::spGravity),
        nutrient({"pct_N", no, "pct_n"}, tag::Pct_N, &Blend::pct_N),
        nutrient({"pct_P", no, "pct_p"}, tag::Pct_P, &Blend::pct_P),
        nutrient({"pct_K", no, "pct_k"}, tag::Pct_K, &Blend::pct_K),
        nutrient({"pct_Ca", no, "pct_ca"}, tag::Pct_Ca, &Blend::pct_Ca),
        nutrient({"pct_Mg", no, "pct_mg"}, tag::Pct_Mg, &Blend::pct_Mg),
        nutrient({"pct_S", no, "pct_s"}, tag::Pct_S, &Blend::pct_S),
        nutrient({"pct_Fe", no, "pct_fe"}, tag::Pct_Fe, &Blend::pct_Fe),
        nutrient({"pct_Mn", no, "pct_mn"}, tag::Pct_Mn, &Blend::pct_Mn),
        nutrient({"pct_Zn", no, "pct_zn"}, tag::Pct_Zn, &Blend::pct_Zn),
        nutrient({"pct_Cu", no, "pct_cu"}, tag::Pct_Cu, &Blend::pct_Cu),
        nutrient({"pct_B", no, "pct_b"}, tag::Pct_B, &Blend::pct_B),
        nutrient({"pct_Mo", no, "pct_mo"}, tag::Pct_Mo, &Blend::pct_Mo),
        nutrient({"pct_Cl", no, "pct_cl"}, tag::Pct_Cl, &Blend::pct_Cl),
        anyProductField(
            {"recType", no, no},
            [](QenRecData& data) { return OutputValue(static_cast<int>(data.recType())); }),
        anyProductField({"recId", no, no}, [](QenRecData& data) { return toValue(data.recId()); }),
        inUnit("rateUom",
               field({"minimumRate", no, "minimum_rate"}, &QenRec::minimumRate, tag::MinimumRate)),
        inUnit("rateUom",
               field({"averageRate", no, "average_rate"}, &QenRec::averageRate, tag::AverageRate)),
        inUnit("rateUom",
               field({"maximumRate", no, "maximum_rate"}, &QenRec::maximumRate, tag::MaximumRate)),
        field({"rateUomId", no, "rate_unit_id"}, &QenRec::rateUomId, tag::RateUOMID),
        field({"rateUom", no, "rate_unit"}, &QenRec::rateUom),
        inUnit("totalUom", field({"total", no, "total"}, &QenRec::total, tag::Total)),
        field({"totalUomId", no, "total_unit_id"}, &QenRec::totalUomId, tag::TotalUOMID),
        field({"totalUom", no, "total_unit"}, &QenRec::totalUom),
        inUnit("areaUom", field({"area", no, "area"}, &QenRec::area, tag::Area)),
        field({"areaUomId", no, "area_unit_id"}, &QenRec::areaUomId, tag::AreaUOMID),
        field({"areaUom", no, "area_unit"}, &QenRec::areaUom),
        centroidField({"latitude", no, "latitude"}, &LLA::latitude, tag::Latitude),
        centroidField({"longitude", no, "longitude"}, &LLA::longitude, tag::Longitude),
        {Owner::Centroid,
         {"altitude", no, no},
         no,
         [](const OutputContext& /*context*/) {
             return std::optional(OutputValue()); // No package gives one.
         }},
        field({"recDbfCol", no, "dbf_column"}, &QenRec::recDbfCol),
        field({"id", "growerId", "grower_id"}, &QenGrower::id),
        field({"id", "farmId", "farm_id"}, &QenFarm::id),
        field({"growerId", no, no}, &QenFarm::growerId),
        field({"id", "fieldId", "field_id"}, &QenField::id),
        field({"growerId", no, no}, &QenField::growerId),
        field({"farmId", no, no}, &QenField::farmId),
        field({"id", no, "rec_id"}, &QenRec::id),
        field({"fieldId", no, no}, &QenRec::fieldId),
        field({"fieldGeometryId", no, "boundary_id"}, &QenRec::fieldGeometryId),
        field({"recGeometry", no, "rec_geometry"}, &QenRec::recGeometry),
        recField({"operationId", no, "operation_id"},
                 [](QenRec& rec) { return optionalIdentifier(rec.operationId()); }),
        recField({"mgmtZoneId", no, "zone_id"},
                 [](QenRec& rec) { return optionalIdentifier(rec.mgmtZoneId()); }),
        field({"isUsed", no, no}, &QenRec::isUsed),
        field({"geometryId", "geometryId", no}, &QenFieldGeometry::geometryId),
        field({"geometryDate", "geometryDate", no}, &QenFieldGeometry::geometryDate),
        // A property "geometry" would be a second column of that name where properties and shapes
        // become one table.
        field({"geometry", "geometryFileId", no}, &QenFieldGeometry::geometry),
    };
}

} // namespace

std::optional<OutputValue> OutputField::value(const OutputContext& context) const {
    std::optional<OutputValue> value = read(context);
    if (value && number != nullptr && context.missing.contains(number))
        return OutputValue();
    return value;
}

const std::vector<OutputField>& outputFields() {
    static const std::vector<OutputField> fields = makeFields();
    return fields;
}
