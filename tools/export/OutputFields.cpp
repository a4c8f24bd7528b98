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

OutputField date(OutputField field) {
    field.isDate = true;
    return field;
}

/// The field with its integers as texts.
OutputField asText(OutputField field) {
    field.read = [read = field.read](const OutputContext& context) {
        std::optional<OutputValue> value = read(context);
        const int* const number = value ? std::get_if<int>(&*value) : nullptr;
        return number == nullptr ? value : std::optional(OutputValue(std::to_string(*number)));
    };
    return field;
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

/// Of a rec the package that gave it, which merging may have put beside those of others.
std::optional<OutputValue> packageOf(const OutputContext& context) {
    if (context.rec != nullptr)
        return toValue(context.rec->xmlFileName());
    return context.package == nullptr ? std::nullopt : std::optional(toValue(*context.package));
}

/// Whether the record of an owner is at hand.
bool isAtHand(Owner owner, const OutputContext& context) {
    switch (owner) {
    case Owner::Package:
        return true;
    case Owner::Grower:
        return context.grower != nullptr;
    case Owner::Farm:
        return context.farm != nullptr;
    case Owner::Field:
        return context.field != nullptr;
    case Owner::Geometry:
    case Owner::Centroid:
        return context.geometry != nullptr;
    case Owner::Rec:
    case Owner::Product:
        return context.rec != nullptr;
    }
    return false;
}

std::vector<OutputField> makeFields() {
    constexpr const char* no = nullptr;
    return {
        {Owner::Package,
         {no, "file"},
         no,
         [](const OutputContext& context) {
             return context.file == nullptr ? std::nullopt
                                            : std::optional(OutputValue(*context.file));
         }},
        {Owner::Package, {no, "package"}, no, packageOf},
        field({"xmlFileName", no}, &QenRec::xmlFileName),
        field({"name", "grower"}, &QenGrower::name),
        field({"name", "farm"}, &QenFarm::name),
        field({"name", "field"}, &QenField::name),
        field({"name", "rec"}, &QenRec::name),
        field({"operationName", "operation"}, &QenRec::operationName),
        field({"seasonName", "season"}, &QenRec::seasonName),
        recField(
            {"seasonId", "season_id"},
            [](QenRec& rec) {
                return rec.seasonId() == -1 ? OutputValue() : OutputValue(rec.seasonId());
            },
            tag::SeasonID),
        date(field({"creationDate", "created"}, &QenRec::creationDate)),
        date(field({"editDate", "edited"}, &QenRec::editDate)),
        anyProductField({"kind", no},
                        [](QenRecData& data) { return OutputValue(productKindKey(&data)); }),
        anyProductField({no, "product_kind"},
                        [](QenRecData& data) { return OutputValue(productKind(&data)); }),
        productField({"productId", no}, tag::ProductID, &Fertilizer::productId, &Blend::productId),
        productField({"productName", no}, no, &Fertilizer::productName, &Blend::productName),
        // A column has values of one type, and that of a blend is a UUID.
        asText(productField({no, "product_id"}, tag::ProductID, &Fertilizer::productId,
                            &Blend::productId)),
        anyProductField({no, "product"},
                        [](QenRecData& data) { return OutputValue(productTitle(&data)); }),
        productField({"pesticideMixName", no}, no, &PesticideRec::pesticideMixName),
        productField({"cropId", "crop_id"}, tag::CropID, &PlantingRec::cropId),
        productField({"cropName", "crop"}, no, &PlantingRec::cropName),
        productField({"companyId", "company_id"}, tag::CompanyID, &PlantingRec::companyId),
        productField({"companyName", "company"}, no, &PlantingRec::companyName),
        productField({"varietyId", "variety_id"}, tag::VarietyID, &PlantingRec::varietyId),
        productField({"varietyName", "variety"}, no, &PlantingRec::varietyName),
        productField({"uomId", "product_unit_id"}, tag::UOMID, &Fertilizer::uomId, &Blend::uomId,
                     &PlantingRec::uomId, &PesticideRec::uomId),
        productField({"uom", "product_unit"}, no, &Fertilizer::uom, &Blend::uom, &PlantingRec::uom,
                     &PesticideRec::uom),
        productField({"sFertT_ID", "sfertt_id"}, tag::SFertT_ID, &Blend::sFertT_ID),
        productField({"spGravity", "specific_gravity"}, tag::SpGravity, &Blend::spGravity),
        nutrient({"pct_N", "pct_n"}, tag::Pct_N, &Blend::pct_N),
        nutrient({"pct_P", "pct_p"}, tag::Pct_P, &Blend::pct_P),
        nutrient({"pct_K", "pct_k"}, tag::Pct_K, &Blend::pct_K),
        nutrient({"pct_Ca", "pct_ca"}, tag::Pct_Ca, &Blend::pct_Ca),
        nutrient({"pct_Mg", "pct_mg"}, tag::Pct_Mg, &Blend::pct_Mg),
        nutrient({"pct_S", "pct_s"}, tag::Pct_S, &Blend::pct_S),
        nutrient({"pct_Fe", "pct_fe"}, tag::Pct_Fe, &Blend::pct_Fe),
        nutrient({"pct_Mn", "pct_mn"}, tag::Pct_Mn, &Blend::pct_Mn),
        nutrient({"pct_Zn", "pct_zn"}, tag::Pct_Zn, &Blend::pct_Zn),
        nutrient({"pct_Cu", "pct_cu"}, tag::Pct_Cu, &Blend::pct_Cu),
        nutrient({"pct_B", "pct_b"}, tag::Pct_B, &Blend::pct_B),
        nutrient({"pct_Mo", "pct_mo"}, tag::Pct_Mo, &Blend::pct_Mo),
        nutrient({"pct_Cl", "pct_cl"}, tag::Pct_Cl, &Blend::pct_Cl),
        anyProductField(
            {"recType", no},
            [](QenRecData& data) { return OutputValue(static_cast<int>(data.recType())); }),
        anyProductField({"recId", no}, [](QenRecData& data) { return toValue(data.recId()); }),
        inUnit("rateUom",
               field({"minimumRate", "minimum_rate"}, &QenRec::minimumRate, tag::MinimumRate)),
        inUnit("rateUom",
               field({"averageRate", "average_rate"}, &QenRec::averageRate, tag::AverageRate)),
        inUnit("rateUom",
               field({"maximumRate", "maximum_rate"}, &QenRec::maximumRate, tag::MaximumRate)),
        field({"rateUomId", "rate_unit_id"}, &QenRec::rateUomId, tag::RateUOMID),
        field({"rateUom", "rate_unit"}, &QenRec::rateUom),
        inUnit("totalUom", field({"total", "total"}, &QenRec::total, tag::Total)),
        field({"totalUomId", "total_unit_id"}, &QenRec::totalUomId, tag::TotalUOMID),
        field({"totalUom", "total_unit"}, &QenRec::totalUom),
        inUnit("areaUom", field({"area", "area"}, &QenRec::area, tag::Area)),
        field({"areaUomId", "area_unit_id"}, &QenRec::areaUomId, tag::AreaUOMID),
        field({"areaUom", "area_unit"}, &QenRec::areaUom),
        centroidField({"latitude", "latitude"}, &LLA::latitude, tag::Latitude),
        centroidField({"longitude", "longitude"}, &LLA::longitude, tag::Longitude),
        {Owner::Centroid,
         {"altitude", no},
         no,
         [](const OutputContext& /*context*/) {
             return std::optional(OutputValue()); // No package gives one.
         }},
        field({"recDbfCol", "dbf_column"}, &QenRec::recDbfCol),
        field({"id", "grower_id"}, &QenGrower::id),
        field({"id", "farm_id"}, &QenFarm::id),
        field({"growerId", no}, &QenFarm::growerId),
        field({"id", "field_id"}, &QenField::id),
        field({"growerId", no}, &QenField::growerId),
        field({"farmId", no}, &QenField::farmId),
        field({"id", "rec_id"}, &QenRec::id),
        field({"fieldId", no}, &QenRec::fieldId),
        field({"fieldGeometryId", no}, &QenRec::fieldGeometryId),
        field({"geometryId", "boundary_id"}, &QenFieldGeometry::geometryId),
        date(field({"geometryDate", "boundary_date"}, &QenFieldGeometry::geometryDate)),
        field({"geometry", "boundary_file_id"}, &QenFieldGeometry::geometry),
        field({"recGeometry", "rec_geometry"}, &QenRec::recGeometry),
        recField({"operationId", "operation_id"},
                 [](QenRec& rec) { return optionalIdentifier(rec.operationId()); }),
        recField({"mgmtZoneId", "zone_id"},
                 [](QenRec& rec) { return optionalIdentifier(rec.mgmtZoneId()); }),
        field({"isUsed", no}, &QenRec::isUsed),
    };
}

} // namespace

std::optional<OutputValue> OutputField::value(const OutputContext& context) const {
    if (!isAtHand(owner, context))
        return std::nullopt;
    std::optional<OutputValue> value = read(context);
    if (value && number != nullptr && context.missing.contains(number))
        return OutputValue();
    return value;
}

OutputValue OutputField::cell(const OutputContext& context) const {
    std::optional<OutputValue> value = this->value(context);
    const auto* const text = value ? std::get_if<std::string>(&*value) : nullptr;
    if (!value || (text != nullptr && text->empty()))
        return {};
    return *std::move(value);
}

const std::vector<OutputField>& outputFields() {
    static const std::vector<OutputField> fields = makeFields();
    return fields;
}

const std::vector<OutputField>& outputColumns() {
    static const std::vector<OutputField> columns = [] {
        std::vector<OutputField> result;
        for (const OutputField& field : outputFields()) {
            if (field.names.column != nullptr)
                result.push_back(field);
        }
        return result;
    }();
    return columns;
}
