#include "tools/export/RecordJson.h"

#include <boost/uuid/uuid_io.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "parser/internal/TagConstants.h"

namespace tag = qenxml::tag;

namespace {

/// Writes numbers; null for those that the package does not give.
class NumberMembers {
public:
    NumberMembers(JsonWriter& writer, const MissingNumbers& missing)
        : writer_(writer), missing_(missing) {}

    /// @param name in the package
    void operator()(std::string_view key, const char* name, double number) const {
        writer_.member(key, missing_.contains(name) ? nullptr : jsonNumber(number));
    }
    void operator()(std::string_view key, const char* name, int number) const {
        writer_.member(key, missing_.contains(name) ? nullptr : nlohmann::ordered_json(number));
    }

private:
    JsonWriter& writer_;
    const MissingNumbers& missing_;
};

/// An identifier that a package need not give; null when it does not.
nlohmann::ordered_json optionalIdentifier(const boost::uuids::uuid& id) {
    return id.is_nil() ? nullptr : jsonIdentifier(id);
}

void writeMembers(JsonWriter& writer, PlantingRec& planting, const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.member("kind", "planting");
    number("cropId", tag::CropID, planting.cropId());
    writer.member("cropName", jsonText(planting.cropName()));
    number("companyId", tag::CompanyID, planting.companyId());
    writer.member("companyName", jsonText(planting.companyName()));
    number("varietyId", tag::VarietyID, planting.varietyId());
    writer.member("varietyName", jsonText(planting.varietyName()));
    number("uomId", tag::UOMID, planting.uomId());
    writer.member("uom", jsonText(planting.uom()));
}

void writeMembers(JsonWriter& writer, CommercialFertilizerRec& fertilizer,
                  const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.member("kind", "commercialFertilizer");
    number("productId", tag::ProductID, fertilizer.productId());
    writer.member("productName", jsonText(fertilizer.productName()));
    number("uomId", tag::UOMID, fertilizer.uomId());
    writer.member("uom", jsonText(fertilizer.uom()));
}

void writeMembers(JsonWriter& writer, CustomFertilizerRec& blend, const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.member("kind", "customFertilizer");
    writer.member("productId", jsonIdentifier(blend.productId()));
    writer.member("productName", jsonText(blend.productName()));
    number("uomId", tag::UOMID, blend.uomId());
    writer.member("uom", jsonText(blend.uom()));
    number("sFertT_ID", tag::SFertT_ID, blend.sFertT_ID());
    number("spGravity", tag::SpGravity, blend.spGravity());
    number("pct_N", tag::Pct_N, blend.pct_N());
    number("pct_P", tag::Pct_P, blend.pct_P());
    number("pct_K", tag::Pct_K, blend.pct_K());
    number("pct_Ca", tag::Pct_Ca, blend.pct_Ca());
    number("pct_Mg", tag::Pct_Mg, blend.pct_Mg());
    number("pct_S", tag::Pct_S, blend.pct_S());
    number("pct_Fe", tag::Pct_Fe, blend.pct_Fe());
    number("pct_Mn", tag::Pct_Mn, blend.pct_Mn());
    number("pct_Zn", tag::Pct_Zn, blend.pct_Zn());
    number("pct_Cu", tag::Pct_Cu, blend.pct_Cu());
    number("pct_B", tag::Pct_B, blend.pct_B());
    number("pct_Mo", tag::Pct_Mo, blend.pct_Mo());
    number("pct_Cl", tag::Pct_Cl, blend.pct_Cl());
}

/// Packages give no pesticide mixes; the lines of one are left out.
void writeMembers(JsonWriter& writer, PesticideRec& mix, const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.member("kind", "pesticide");
    writer.member("pesticideMixName", jsonText(mix.pesticideMixName()));
    number("uomId", tag::UOMID, mix.uomId());
    writer.member("uom", jsonText(mix.uom()));
}

void writeMembers(JsonWriter& writer, QenRecData& data, const MissingNumbers& missing) {
    switch (data.recType()) {
    case RecTypePlanting:
        return writeMembers(writer, static_cast<PlantingRec&>(data), missing);
    case RecTypeCommercialFertilizer:
        return writeMembers(writer, static_cast<CommercialFertilizerRec&>(data), missing);
    case RecTypeCustomFertilizer:
        return writeMembers(writer, static_cast<CustomFertilizerRec&>(data), missing);
    case RecTypePesticide:
        return writeMembers(writer, static_cast<PesticideRec&>(data), missing);
    case RecTypeNone:
        break;
    }
}

void writeProduct(JsonWriter& writer, QenRecData* data, const MissingNumbers& missing) {
    if (data == nullptr || data->recType() == RecTypeNone) {
        writer.member("recData", nullptr);
        return;
    }
    writer.beginObject("recData");
    writeMembers(writer, *data, missing);
    writer.member("recType", static_cast<int>(data->recType()));
    writer.member("recId", jsonIdentifier(data->recId()));
    writer.endObject();
}

} // namespace

nlohmann::ordered_json jsonIdentifier(const boost::uuids::uuid& id) {
    return to_string(id);
}

void writeCentroid(JsonWriter& writer, const LLA& centroid, const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.beginObject("centroid");
    number("latitude", tag::Latitude, centroid.latitude);
    number("longitude", tag::Longitude, centroid.longitude);
    writer.member("altitude", nullptr); // No package gives one.
    writer.endObject();
}

void writeMembers(JsonWriter& writer, QenFieldGeometry& geometry, const MissingNumbers& missing) {
    writer.member("geometryId", jsonIdentifier(geometry.geometryId()));
    writer.member("geometryDate", jsonText(geometry.geometryDate()));
    writer.member("geometry", jsonIdentifier(geometry.geometry()));
    writeCentroid(writer, geometry.centroid(), missing);
}

void writeMembers(JsonWriter& writer, QenRec& rec, const MissingNumbers& missing) {
    const NumberMembers number(writer, missing);
    writer.member("name", jsonText(rec.name()));
    writer.member("id", jsonIdentifier(rec.id()));
    writer.member("fieldId", jsonIdentifier(rec.fieldId()));
    writer.member("fieldGeometryId", jsonIdentifier(rec.fieldGeometryId()));
    writer.member("mgmtZoneId", optionalIdentifier(rec.mgmtZoneId()));
    writer.member("recGeometry", jsonIdentifier(rec.recGeometry()));
    writer.member("recDbfCol", jsonText(rec.recDbfCol()));
    writer.member("creationDate", jsonText(rec.creationDate()));
    writer.member("editDate", jsonText(rec.editDate()));
    writer.member("operationName", jsonText(rec.operationName()));
    writer.member("operationId", optionalIdentifier(rec.operationId()));
    writer.member("seasonName", jsonText(rec.seasonName()));
    if (rec.seasonId() == -1)
        writer.member("seasonId", nullptr);
    else
        number("seasonId", tag::SeasonID, rec.seasonId());
    writeProduct(writer, rec.recData(), missing);
    number("minimumRate", tag::MinimumRate, rec.minimumRate());
    number("averageRate", tag::AverageRate, rec.averageRate());
    number("maximumRate", tag::MaximumRate, rec.maximumRate());
    number("rateUomId", tag::RateUOMID, rec.rateUomId());
    writer.member("rateUom", jsonText(rec.rateUom()));
    number("total", tag::Total, rec.total());
    number("totalUomId", tag::TotalUOMID, rec.totalUomId());
    writer.member("totalUom", jsonText(rec.totalUom()));
    number("area", tag::Area, rec.area());
    number("areaUomId", tag::AreaUOMID, rec.areaUomId());
    writer.member("areaUom", jsonText(rec.areaUom()));
    writer.member("isUsed", rec.isUsed());
    writer.member("xmlFileName", jsonIdentifier(rec.xmlFileName()));
}
