#include "tests/support/PlainTree.h"

#include <stdexcept>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"

namespace plain {

namespace {

/// Makes product data, which the rec that it is given to owns.
struct ProductDataMaker {
    QenRecData* operator()(std::monostate) const { return nullptr; }

    QenRecData* operator()(const CommercialFertilizer& from) const {
        return new CommercialFertilizerRec(from.recId, from.productId, from.productName, from.uomId,
                                           from.uom);
    }

    QenRecData* operator()(const CustomFertilizer& from) const {
        return new CustomFertilizerRec(from.recId, from.productId, from.productName, from.uomId,
                                       from.uom, from.typeId, from.gravity, from.n, from.p, from.k,
                                       from.ca, from.mg, from.s, from.fe, from.mn, from.zn, from.cu,
                                       from.b, from.mo, from.cl);
    }

    QenRecData* operator()(const Planting& from) const {
        return new PlantingRec(from.recId, from.cropId, from.cropName, from.companyId,
                               from.companyName, from.varietyId, from.varietyName, from.uomId,
                               from.uom);
    }
};

QenRec toLibrary(const Rec& rec) {
    QenRec result(rec.fieldId, rec.fieldGeometryId, rec.name, rec.id, rec.geometry,
                  rec.creationDate, rec.dbfCol, rec.operationName, rec.operationId, rec.seasonName,
                  rec.seasonId, rec.zoneId, std::visit(ProductDataMaker(), rec.product),
                  rec.minimumRate, rec.maximumRate, rec.averageRate, rec.rateUom, rec.rateUomId,
                  rec.total, rec.totalUomId, rec.totalUom, rec.area, rec.areaUomId, rec.areaUom,
                  rec.isUsed, rec.package);
    result.setEditDate(rec.editDate);
    return result;
}

} // namespace

QenField toLibrary(const Field& field) {
    QenField result(field.name, field.id, field.growerId, field.farmId);
    for (const Geometry& geometry : field.geometries)
        result.addFieldGeometry(
            QenFieldGeometry(geometry.id, geometry.date, geometry.file,
                             LLA{geometry.latitude, geometry.longitude, geometry.altitude}));
    for (const Rec& rec : field.recs)
        result.recs().push_back(toLibrary(rec));
    return result;
}

QenFarm toLibrary(const Farm& farm) {
    QenFarm result(farm.name, farm.id, farm.growerId);
    for (const Field& field : farm.fields)
        result.fields().push_back(toLibrary(field));
    return result;
}

QenGrower toLibrary(const Grower& grower) {
    QenGrower result(grower.name, grower.id);
    for (const Farm& farm : grower.farms)
        result.farms().push_back(toLibrary(farm));
    return result;
}

namespace {

CommercialFertilizer fromLibrary(CommercialFertilizerRec& product) {
    return {product.recId(), product.productId(), product.productName(), product.uomId(),
            product.uom()};
}

CustomFertilizer fromLibrary(CustomFertilizerRec& product) {
    return {product.recId(),  product.productId(), product.productName(), product.uomId(),
            product.uom(),    product.sFertT_ID(), product.spGravity(),   product.pct_N(),
            product.pct_P(),  product.pct_K(),     product.pct_Ca(),      product.pct_Mg(),
            product.pct_S(),  product.pct_Fe(),    product.pct_Mn(),      product.pct_Zn(),
            product.pct_Cu(), product.pct_B(),     product.pct_Mo(),      product.pct_Cl()};
}

Planting fromLibrary(PlantingRec& product) {
    return {product.recId(),       product.cropId(),      product.cropName(),
            product.companyId(),   product.companyName(), product.varietyId(),
            product.varietyName(), product.uomId(),       product.uom()};
}

Product fromLibrary(QenRecData* product) {
    if (product == nullptr)
        return {};
    switch (product->recType()) {
    case RecTypeCommercialFertilizer:
        return fromLibrary(static_cast<CommercialFertilizerRec&>(*product));
    case RecTypeCustomFertilizer:
        return fromLibrary(static_cast<CustomFertilizerRec&>(*product));
    case RecTypePlanting:
        return fromLibrary(static_cast<PlantingRec&>(*product));
    default:
        throw std::runtime_error("product data of an unexpected kind");
    }
}

Rec fromLibrary(QenRec& rec) {
    return {rec.fieldId(),       rec.fieldGeometryId(),
            rec.name(),          rec.id(),
            rec.recGeometry(),   rec.creationDate(),
            rec.editDate(),      rec.recDbfCol(),
            rec.operationName(), rec.operationId(),
            rec.seasonName(),    rec.seasonId(),
            rec.mgmtZoneId(),    fromLibrary(rec.recData()),
            rec.minimumRate(),   rec.maximumRate(),
            rec.averageRate(),   rec.rateUomId(),
            rec.rateUom(),       rec.total(),
            rec.totalUomId(),    rec.totalUom(),
            rec.area(),          rec.areaUomId(),
            rec.areaUom(),       rec.isUsed(),
            rec.xmlFileName()};
}

Geometry fromLibrary(QenFieldGeometry& geometry) {
    const LLA centroid = geometry.centroid();
    return {geometry.geometryId(), geometry.geometryDate(), geometry.geometry(),
            centroid.latitude,     centroid.longitude,      centroid.altitude};
}

} // namespace

Field fromLibrary(QenField field) {
    Field result{field.name(), field.id(), field.growerId(), field.farmId(), {}, {}};
    for (QenFieldGeometry& geometry : field.geometries())
        result.geometries.push_back(fromLibrary(geometry));
    for (QenRec& rec : field.recs())
        result.recs.push_back(fromLibrary(rec));
    return result;
}

Farm fromLibrary(QenFarm farm) {
    Farm result{farm.name(), farm.id(), farm.growerId(), {}};
    for (const QenField& field : farm.fields())
        result.fields.push_back(fromLibrary(field));
    return result;
}

Grower fromLibrary(QenGrower grower) {
    Grower result{grower.name(), grower.id(), {}};
    for (const QenFarm& farm : grower.farms())
        result.farms.push_back(fromLibrary(farm));
    return result;
}

} // namespace plain
