#include "bench/PlainTree.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <tuple>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"

namespace bench::plain {

namespace {

std::uint64_t bits(double number) {
    std::uint64_t result = 0;
    static_assert(sizeof result == sizeof number);
    std::memcpy(&result, &number, sizeof result);
    return result;
}

template <class... Numbers>
auto bitsOf(Numbers... numbers) {
    return std::make_tuple(bits(numbers)...);
}

template <class Product>
bool same(const std::unique_ptr<Product>& left, const std::unique_ptr<Product>& right) {
    return left && right ? *left == *right : !left && !right;
}

auto content(const CommercialFertilizer& product) {
    return std::tie(product.recId, product.productId, product.productName, product.uomId,
                    product.uom);
}

auto content(const CustomFertilizer& product) {
    return std::tuple_cat(std::tie(product.recId, product.productId, product.productName,
                                   product.uomId, product.uom, product.typeId),
                          bitsOf(product.gravity, product.n, product.p, product.k, product.ca,
                                 product.mg, product.s, product.fe, product.mn, product.zn,
                                 product.cu, product.b, product.mo, product.cl));
}

auto content(const Planting& product) {
    return std::tie(product.recId, product.cropId, product.cropName, product.companyId,
                    product.companyName, product.varietyId, product.varietyName, product.uomId,
                    product.uom);
}

/// All but the product data.
auto content(const Rec& rec) {
    return std::tuple_cat(
        std::tie(rec.fieldId, rec.fieldGeometryId, rec.name, rec.id, rec.geometry, rec.creationDate,
                 rec.editDate, rec.dbfCol, rec.operationName, rec.operationId, rec.seasonName,
                 rec.seasonId, rec.zoneId, rec.rateUomId, rec.rateUom, rec.totalUomId, rec.totalUom,
                 rec.areaUomId, rec.areaUom, rec.isUsed, rec.package),
        bitsOf(rec.minimumRate, rec.maximumRate, rec.averageRate, rec.total, rec.area));
}

auto content(const Field& field) {
    return std::tuple_cat(std::tie(field.name, field.id, field.growerId, field.farmId,
                                   field.geometryId, field.geometryDate, field.geometryFile,
                                   field.recs),
                          bitsOf(field.latitude, field.longitude, field.altitude));
}

auto content(const Farm& farm) {
    return std::tie(farm.name, farm.id, farm.growerId, farm.fields);
}

auto content(const Grower& grower) {
    return std::tie(grower.name, grower.id, grower.farms);
}

} // namespace

bool operator==(const CommercialFertilizer& left, const CommercialFertilizer& right) {
    return content(left) == content(right);
}

bool operator==(const CustomFertilizer& left, const CustomFertilizer& right) {
    return content(left) == content(right);
}

bool operator==(const Planting& left, const Planting& right) {
    return content(left) == content(right);
}

bool operator==(const Rec& left, const Rec& right) {
    return content(left) == content(right) &&
           same(left.commercialFertilizer, right.commercialFertilizer) &&
           same(left.customFertilizer, right.customFertilizer) &&
           same(left.planting, right.planting);
}

bool operator==(const Field& left, const Field& right) {
    return content(left) == content(right);
}

bool operator==(const Farm& left, const Farm& right) {
    return content(left) == content(right);
}

bool operator==(const Grower& left, const Grower& right) {
    return content(left) == content(right);
}

namespace {

std::unique_ptr<CommercialFertilizer> fromLibrary(CommercialFertilizerRec& product) {
    return std::make_unique<CommercialFertilizer>(
        CommercialFertilizer{product.recId(), product.productId(), product.productName(),
                             product.uomId(), product.uom()});
}

std::unique_ptr<CustomFertilizer> fromLibrary(CustomFertilizerRec& product) {
    return std::make_unique<CustomFertilizer>(CustomFertilizer{
        product.recId(),  product.productId(), product.productName(), product.uomId(),
        product.uom(),    product.sFertT_ID(), product.spGravity(),   product.pct_N(),
        product.pct_P(),  product.pct_K(),     product.pct_Ca(),      product.pct_Mg(),
        product.pct_S(),  product.pct_Fe(),    product.pct_Mn(),      product.pct_Zn(),
        product.pct_Cu(), product.pct_B(),     product.pct_Mo(),      product.pct_Cl()});
}

std::unique_ptr<Planting> fromLibrary(PlantingRec& product) {
    return std::make_unique<Planting>(
        Planting{product.recId(), product.cropId(), product.cropName(), product.companyId(),
                 product.companyName(), product.varietyId(), product.varietyName(), product.uomId(),
                 product.uom()});
}

void copyProduct(QenRecData* product, Rec& rec) {
    if (product == nullptr)
        return;
    if (product->recType() == RecTypeCommercialFertilizer)
        rec.commercialFertilizer = fromLibrary(static_cast<CommercialFertilizerRec&>(*product));
    else if (product->recType() == RecTypeCustomFertilizer)
        rec.customFertilizer = fromLibrary(static_cast<CustomFertilizerRec&>(*product));
    else if (product->recType() == RecTypePlanting)
        rec.planting = fromLibrary(static_cast<PlantingRec&>(*product));
    else
        throw std::runtime_error("product data of an unexpected kind");
}

Rec fromLibrary(QenRec& rec) {
    Rec result;
    result.fieldId = rec.fieldId();
    result.fieldGeometryId = rec.fieldGeometryId();
    result.name = rec.name();
    result.id = rec.id();
    result.geometry = rec.recGeometry();
    result.creationDate = rec.creationDate();
    result.editDate = rec.editDate();
    result.dbfCol = rec.recDbfCol();
    result.operationName = rec.operationName();
    result.operationId = rec.operationId();
    result.seasonName = rec.seasonName();
    result.seasonId = rec.seasonId();
    result.zoneId = rec.mgmtZoneId();
    copyProduct(rec.recData(), result);
    result.minimumRate = rec.minimumRate();
    result.maximumRate = rec.maximumRate();
    result.averageRate = rec.averageRate();
    result.rateUomId = rec.rateUomId();
    result.rateUom = rec.rateUom();
    result.total = rec.total();
    result.totalUomId = rec.totalUomId();
    result.totalUom = rec.totalUom();
    result.area = rec.area();
    result.areaUomId = rec.areaUomId();
    result.areaUom = rec.areaUom();
    result.isUsed = rec.isUsed();
    result.package = rec.xmlFileName();
    return result;
}

Field fromLibrary(QenField& field) {
    std::vector<QenFieldGeometry> geometries = field.geometries();
    if (geometries.size() != 1)
        throw std::runtime_error("a field without exactly one geometry");
    QenFieldGeometry& geometry = geometries.front();
    const LLA centroid = geometry.centroid();
    Field result{field.name(),
                 field.id(),
                 field.growerId(),
                 field.farmId(),
                 geometry.geometryId(),
                 geometry.geometryDate(),
                 geometry.geometry(),
                 centroid.latitude,
                 centroid.longitude,
                 centroid.altitude,
                 {}};
    for (QenRec& rec : field.recs())
        result.recs.push_back(fromLibrary(rec));
    return result;
}

} // namespace

std::vector<Grower> fromLibrary(std::vector<QenGrower> growers) {
    std::vector<Grower> result;
    for (QenGrower& grower : growers) {
        Grower& plainGrower = result.emplace_back(Grower{grower.name(), grower.id(), {}});
        for (QenFarm& farm : grower.farms()) {
            Farm& plainFarm =
                plainGrower.farms.emplace_back(Farm{farm.name(), farm.id(), farm.growerId(), {}});
            for (QenField& field : farm.fields())
                plainFarm.fields.push_back(fromLibrary(field));
        }
    }
    return result;
}

} // namespace bench::plain
