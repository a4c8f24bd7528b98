#include "tools/export/RecordJson.h"

#include <boost/uuid/uuid_io.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"

namespace {

void writeMembers(JsonWriter& writer, PlantingRec& planting) {
    writer.member("kind", "planting");
    writer.member("cropId", planting.cropId());
    writer.member("cropName", jsonText(planting.cropName()));
    writer.member("companyId", planting.companyId());
    writer.member("companyName", jsonText(planting.companyName()));
    writer.member("varietyId", planting.varietyId());
    writer.member("varietyName", jsonText(planting.varietyName()));
    writer.member("uomId", planting.uomId());
    writer.member("uom", jsonText(planting.uom()));
}

void writeMembers(JsonWriter& writer, CommercialFertilizerRec& fertilizer) {
    writer.member("kind", "commercialFertilizer");
    writer.member("productId", fertilizer.productId());
    writer.member("productName", jsonText(fertilizer.productName()));
    writer.member("uomId", fertilizer.uomId());
    writer.member("uom", jsonText(fertilizer.uom()));
}

void writeMembers(JsonWriter& writer, CustomFertilizerRec& blend) {
    writer.member("kind", "customFertilizer");
    writer.member("productId", jsonIdentifier(blend.productId()));
    writer.member("productName", jsonText(blend.productName()));
    writer.member("uomId", blend.uomId());
    writer.member("uom", jsonText(blend.uom()));
    writer.member("sFertT_ID", blend.sFertT_ID());
    writer.member("spGravity", jsonNumber(blend.spGravity()));
    writer.member("pct_N", jsonNumber(blend.pct_N()));
    writer.member("pct_P", jsonNumber(blend.pct_P()));
    writer.member("pct_K", jsonNumber(blend.pct_K()));
    writer.member("pct_Ca", jsonNumber(blend.pct_Ca()));
    writer.member("pct_Mg", jsonNumber(blend.pct_Mg()));
    writer.member("pct_S", jsonNumber(blend.pct_S()));
    writer.member("pct_Fe", jsonNumber(blend.pct_Fe()));
    writer.member("pct_Mn", jsonNumber(blend.pct_Mn()));
    writer.member("pct_Zn", jsonNumber(blend.pct_Zn()));
    writer.member("pct_Cu", jsonNumber(blend.pct_Cu()));
    writer.member("pct_B", jsonNumber(blend.pct_B()));
    writer.member("pct_Mo", jsonNumber(blend.pct_Mo()));
    writer.member("pct_Cl", jsonNumber(blend.pct_Cl()));
}

/// Packages give no pesticide mixes; the lines of one are left out.
void writeMembers(JsonWriter& writer, PesticideRec& mix) {
    writer.member("kind", "pesticide");
    writer.member("pesticideMixName", jsonText(mix.pesticideMixName()));
    writer.member("uomId", mix.uomId());
    writer.member("uom", jsonText(mix.uom()));
}

void writeMembers(JsonWriter& writer, QenRecData& data) {
    switch (data.recType()) {
    case RecTypePlanting:
        return writeMembers(writer, static_cast<PlantingRec&>(data));
    case RecTypeCommercialFertilizer:
        return writeMembers(writer, static_cast<CommercialFertilizerRec&>(data));
    case RecTypeCustomFertilizer:
        return writeMembers(writer, static_cast<CustomFertilizerRec&>(data));
    case RecTypePesticide:
        return writeMembers(writer, static_cast<PesticideRec&>(data));
    case RecTypeNone:
        break;
    }
}

void writeProduct(JsonWriter& writer, QenRecData* data) {
    if (data == nullptr || data->recType() == RecTypeNone) {
        writer.member("recData", nullptr);
        return;
    }
    writer.beginObject("recData");
    writeMembers(writer, *data);
    writer.member("recType", static_cast<int>(data->recType()));
    writer.member("recId", jsonIdentifier(data->recId()));
    writer.endObject();
}

} // namespace

nlohmann::ordered_json jsonIdentifier(const boost::uuids::uuid& id) {
    return to_string(id);
}

void writeMembers(JsonWriter& writer, QenFieldGeometry& geometry) {
    const LLA centroid = geometry.centroid();
    writer.member("geometryId", jsonIdentifier(geometry.geometryId()));
    writer.member("geometryDate", jsonText(geometry.geometryDate()));
    writer.member("geometry", jsonIdentifier(geometry.geometry()));
    writer.beginObject("centroid");
    writer.member("latitude", jsonNumber(centroid.latitude));
    writer.member("longitude", jsonNumber(centroid.longitude));
    writer.member("altitude", jsonNumber(centroid.altitude));
    writer.endObject();
}

void writeMembers(JsonWriter& writer, QenRec& rec) {
    writer.member("name", jsonText(rec.name()));
    writer.member("id", jsonIdentifier(rec.id()));
    writer.member("fieldId", jsonIdentifier(rec.fieldId()));
    writer.member("fieldGeometryId", jsonIdentifier(rec.fieldGeometryId()));
    writer.member("mgmtZoneId", jsonIdentifier(rec.mgmtZoneId()));
    writer.member("recGeometry", jsonIdentifier(rec.recGeometry()));
    writer.member("recDbfCol", jsonText(rec.recDbfCol()));
    writer.member("creationDate", jsonText(rec.creationDate()));
    writer.member("editDate", jsonText(rec.editDate()));
    writer.member("operationName", jsonText(rec.operationName()));
    writer.member("operationId", jsonIdentifier(rec.operationId()));
    writer.member("seasonName", jsonText(rec.seasonName()));
    writer.member("seasonId", rec.seasonId());
    writeProduct(writer, rec.recData());
    writer.member("minimumRate", jsonNumber(rec.minimumRate()));
    writer.member("averageRate", jsonNumber(rec.averageRate()));
    writer.member("maximumRate", jsonNumber(rec.maximumRate()));
    writer.member("rateUomId", rec.rateUomId());
    writer.member("rateUom", jsonText(rec.rateUom()));
    writer.member("total", jsonNumber(rec.total()));
    writer.member("totalUomId", rec.totalUomId());
    writer.member("totalUom", jsonText(rec.totalUom()));
    writer.member("area", jsonNumber(rec.area()));
    writer.member("areaUomId", rec.areaUomId());
    writer.member("areaUom", jsonText(rec.areaUom()));
    writer.member("isUsed", rec.isUsed());
    writer.member("xmlFileName", jsonIdentifier(rec.xmlFileName()));
}
