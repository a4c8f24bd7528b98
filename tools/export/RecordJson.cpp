#include "tools/export/RecordJson.h"

#include <boost/uuid/uuid_io.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tools/JsonWriter.h"

using Json = nlohmann::ordered_json;

namespace {

Json plantingJson(PlantingRec& planting) {
    return {{"kind", "planting"},
            {"cropId", planting.cropId()},
            {"cropName", jsonText(planting.cropName())},
            {"companyId", planting.companyId()},
            {"companyName", jsonText(planting.companyName())},
            {"varietyId", planting.varietyId()},
            {"varietyName", jsonText(planting.varietyName())},
            {"uomId", planting.uomId()},
            {"uom", jsonText(planting.uom())}};
}

Json fertilizerJson(CommercialFertilizerRec& fertilizer) {
    return {{"kind", "commercialFertilizer"},
            {"productId", fertilizer.productId()},
            {"productName", jsonText(fertilizer.productName())},
            {"uomId", fertilizer.uomId()},
            {"uom", jsonText(fertilizer.uom())}};
}

Json blendJson(CustomFertilizerRec& blend) {
    return {{"kind", "customFertilizer"},
            {"productId", jsonIdentifier(blend.productId())},
            {"productName", jsonText(blend.productName())},
            {"uomId", blend.uomId()},
            {"uom", jsonText(blend.uom())},
            {"sFertT_ID", blend.sFertT_ID()},
            {"spGravity", jsonNumber(blend.spGravity())},
            {"pct_N", jsonNumber(blend.pct_N())},
            {"pct_P", jsonNumber(blend.pct_P())},
            {"pct_K", jsonNumber(blend.pct_K())},
            {"pct_Ca", jsonNumber(blend.pct_Ca())},
            {"pct_Mg", jsonNumber(blend.pct_Mg())},
            {"pct_S", jsonNumber(blend.pct_S())},
            {"pct_Fe", jsonNumber(blend.pct_Fe())},
            {"pct_Mn", jsonNumber(blend.pct_Mn())},
            {"pct_Zn", jsonNumber(blend.pct_Zn())},
            {"pct_Cu", jsonNumber(blend.pct_Cu())},
            {"pct_B", jsonNumber(blend.pct_B())},
            {"pct_Mo", jsonNumber(blend.pct_Mo())},
            {"pct_Cl", jsonNumber(blend.pct_Cl())}};
}

/// Packages give no pesticide mixes; the lines of one are left out.
Json pesticideJson(PesticideRec& mix) {
    return {{"kind", "pesticide"},
            {"pesticideMixName", jsonText(mix.pesticideMixName())},
            {"uomId", mix.uomId()},
            {"uom", jsonText(mix.uom())}};
}

Json productJson(QenRecData* data) {
    const RecType type = data == nullptr ? RecTypeNone : data->recType();
    switch (type) {
    case RecTypePlanting:
        return plantingJson(static_cast<PlantingRec&>(*data));
    case RecTypeCommercialFertilizer:
        return fertilizerJson(static_cast<CommercialFertilizerRec&>(*data));
    case RecTypeCustomFertilizer:
        return blendJson(static_cast<CustomFertilizerRec&>(*data));
    case RecTypePesticide:
        return pesticideJson(static_cast<PesticideRec&>(*data));
    case RecTypeNone:
        break;
    }
    return nullptr;
}

Json recDataJson(QenRecData* data) {
    Json json = productJson(data);
    if (!json.is_null()) {
        json["recType"] = static_cast<int>(data->recType());
        json["recId"] = jsonIdentifier(data->recId());
    }
    return json;
}

} // namespace

Json jsonIdentifier(const boost::uuids::uuid& id) {
    return to_string(id);
}

Json geometryJson(QenFieldGeometry& geometry) {
    const LLA centroid = geometry.centroid();
    return {{"geometryId", jsonIdentifier(geometry.geometryId())},
            {"geometryDate", jsonText(geometry.geometryDate())},
            {"geometry", jsonIdentifier(geometry.geometry())},
            {"centroid",
             {{"latitude", jsonNumber(centroid.latitude)},
              {"longitude", jsonNumber(centroid.longitude)},
              {"altitude", jsonNumber(centroid.altitude)}}}};
}

Json recJson(QenRec& rec) {
    return {{"name", jsonText(rec.name())},
            {"id", jsonIdentifier(rec.id())},
            {"fieldId", jsonIdentifier(rec.fieldId())},
            {"fieldGeometryId", jsonIdentifier(rec.fieldGeometryId())},
            {"mgmtZoneId", jsonIdentifier(rec.mgmtZoneId())},
            {"recGeometry", jsonIdentifier(rec.recGeometry())},
            {"recDbfCol", jsonText(rec.recDbfCol())},
            {"creationDate", jsonText(rec.creationDate())},
            {"editDate", jsonText(rec.editDate())},
            {"operationName", jsonText(rec.operationName())},
            {"operationId", jsonIdentifier(rec.operationId())},
            {"seasonName", jsonText(rec.seasonName())},
            {"seasonId", rec.seasonId()},
            {"recData", recDataJson(rec.recData())},
            {"minimumRate", jsonNumber(rec.minimumRate())},
            {"averageRate", jsonNumber(rec.averageRate())},
            {"maximumRate", jsonNumber(rec.maximumRate())},
            {"rateUomId", rec.rateUomId()},
            {"rateUom", jsonText(rec.rateUom())},
            {"total", jsonNumber(rec.total())},
            {"totalUomId", rec.totalUomId()},
            {"totalUom", jsonText(rec.totalUom())},
            {"area", jsonNumber(rec.area())},
            {"areaUomId", rec.areaUomId()},
            {"areaUom", jsonText(rec.areaUom())},
            {"isUsed", rec.isUsed()},
            {"xmlFileName", jsonIdentifier(rec.xmlFileName())}};
}
