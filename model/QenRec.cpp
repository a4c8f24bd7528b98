#include "model/QenRec.h"

#include <memory>
#include <utility>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenRecData.h"

namespace {

std::unique_ptr<QenRecData> copyOf(CommercialFertilizerRec& data) {
    return std::make_unique<CommercialFertilizerRec>(data.recId(), data.productId(),
                                                     data.productName(), data.uomId(), data.uom());
}

std::unique_ptr<QenRecData> copyOf(CustomFertilizerRec& data) {
    return std::make_unique<CustomFertilizerRec>(
        data.recId(), data.productId(), data.productName(), data.uomId(), data.uom(),
        data.sFertT_ID(), data.spGravity(), data.pct_N(), data.pct_P(), data.pct_K(), data.pct_Ca(),
        data.pct_Mg(), data.pct_S(), data.pct_Fe(), data.pct_Mn(), data.pct_Zn(), data.pct_Cu(),
        data.pct_B(), data.pct_Mo(), data.pct_Cl());
}

std::unique_ptr<QenRecData> copyOf(PlantingRec& data) {
    return std::make_unique<PlantingRec>(data.recId(), data.cropId(), data.cropName(),
                                         data.companyId(), data.companyName(), data.varietyId(),
                                         data.varietyName(), data.uomId(), data.uom());
}

std::unique_ptr<QenRecData> copyOf(PesticideRec& data) {
    return std::make_unique<PesticideRec>(data.recId(), data.pesticidesByPercent(),
                                          data.pesticidesByAmount(), data.pesticideMixName(),
                                          data.uomId(), data.uom());
}

/// A copy of product data, rebuilt as the variant that its kind names; null for any other kind.
std::unique_ptr<QenRecData> copyOf(QenRecData* data) {
    if (data == nullptr)
        return nullptr;
    switch (data->recType()) {
    case RecTypeCommercialFertilizer:
        return copyOf(static_cast<CommercialFertilizerRec&>(*data));
    case RecTypeCustomFertilizer:
        return copyOf(static_cast<CustomFertilizerRec&>(*data));
    case RecTypePlanting:
        return copyOf(static_cast<PlantingRec&>(*data));
    case RecTypePesticide:
        return copyOf(static_cast<PesticideRec&>(*data));
    case RecTypeNone:
        break;
    }
    return nullptr;
}

} // namespace

QenRec::QenRec() = default;

QenRec::QenRec(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId, std::string name,
               boost::uuids::uuid id, boost::uuids::uuid recGeometry, std::string creationDate,
               std::string recDbfCol, std::string operationName, boost::uuids::uuid operationId,
               std::string seasonName, int seasonId, boost::uuids::uuid mgmtZoneId,
               QenRecData* recData, double minimumRate, double maximumRate, double averageRate,
               std::string rateUom, int rateUomId, double total, int totalUomId,
               std::string totalUom, double area, int areaUomId, std::string areaUom, bool isUsed,
               boost::uuids::uuid xmlFileName)
    : fieldId_(fieldId),
      fieldGeometryId_(fieldGeometryId),
      name_(std::move(name)),
      id_(id),
      recGeometry_(recGeometry),
      creationDate_(std::move(creationDate)),
      recDbfCol_(std::move(recDbfCol)),
      operationName_(std::move(operationName)),
      operationId_(operationId),
      seasonName_(std::move(seasonName)),
      seasonId_(seasonId),
      mgmtZoneId_(mgmtZoneId),
      recData_(recData),
      minimumRate_(minimumRate),
      maximumRate_(maximumRate),
      averageRate_(averageRate),
      rateUomId_(rateUomId),
      rateUom_(std::move(rateUom)),
      total_(total),
      totalUomId_(totalUomId),
      totalUom_(std::move(totalUom)),
      area_(area),
      areaUomId_(areaUomId),
      areaUom_(std::move(areaUom)),
      isUsed_(isUsed),
      xmlFileName_(xmlFileName) {}

QenRec::QenRec(const QenRec& other) {
    *this = other;
}

QenRec& QenRec::operator=(const QenRec& other) {
    if (this == &other)
        return *this;
    fieldId_ = other.fieldId_;
    fieldGeometryId_ = other.fieldGeometryId_;
    name_ = other.name_;
    id_ = other.id_;
    recGeometry_ = other.recGeometry_;
    creationDate_ = other.creationDate_;
    editDate_ = other.editDate_;
    recDbfCol_ = other.recDbfCol_;
    operationName_ = other.operationName_;
    operationId_ = other.operationId_;
    seasonName_ = other.seasonName_;
    seasonId_ = other.seasonId_;
    mgmtZoneId_ = other.mgmtZoneId_;
    minimumRate_ = other.minimumRate_;
    maximumRate_ = other.maximumRate_;
    averageRate_ = other.averageRate_;
    rateUomId_ = other.rateUomId_;
    rateUom_ = other.rateUom_;
    total_ = other.total_;
    totalUomId_ = other.totalUomId_;
    totalUom_ = other.totalUom_;
    area_ = other.area_;
    areaUomId_ = other.areaUomId_;
    areaUom_ = other.areaUom_;
    isUsed_ = other.isUsed_;
    xmlFileName_ = other.xmlFileName_;
    // The earlier product data is the caller's from here on; the copy constructor has none yet.
    recData_ = copyOf(other.recData_).release();
    return *this;
}

QenRec::~QenRec() {
    delete recData_;
}

bool QenRec::operator==(const QenRec& other) const {
    return id_ == other.id_;
}

boost::uuids::uuid QenRec::fieldId() {
    return fieldId_;
}

boost::uuids::uuid QenRec::fieldGeometryId() {
    return fieldGeometryId_;
}

std::string QenRec::name() {
    return name_;
}

boost::uuids::uuid QenRec::id() {
    return id_;
}

boost::uuids::uuid QenRec::recGeometry() {
    return recGeometry_;
}

std::string QenRec::creationDate() {
    return creationDate_;
}

std::string QenRec::editDate() {
    return editDate_;
}

std::string QenRec::recDbfCol() {
    return recDbfCol_;
}

std::string QenRec::operationName() {
    return operationName_;
}

boost::uuids::uuid QenRec::operationId() {
    return operationId_;
}

std::string QenRec::seasonName() {
    return seasonName_;
}

int QenRec::seasonId() {
    return seasonId_;
}

boost::uuids::uuid QenRec::mgmtZoneId() {
    return mgmtZoneId_;
}

QenRecData* QenRec::recData() {
    return recData_;
}

double QenRec::minimumRate() {
    return minimumRate_;
}

double QenRec::maximumRate() {
    return maximumRate_;
}

double QenRec::averageRate() {
    return averageRate_;
}

int QenRec::rateUomId() {
    return rateUomId_;
}

std::string QenRec::rateUom() {
    return rateUom_;
}

double QenRec::total() {
    return total_;
}

int QenRec::totalUomId() {
    return totalUomId_;
}

std::string QenRec::totalUom() {
    return totalUom_;
}

double QenRec::area() {
    return area_;
}

int QenRec::areaUomId() {
    return areaUomId_;
}

std::string QenRec::areaUom() {
    return areaUom_;
}

bool QenRec::isUsed() {
    return isUsed_;
}

boost::uuids::uuid QenRec::xmlFileName() {
    return xmlFileName_;
}

void QenRec::setFieldId(boost::uuids::uuid fieldId) {
    fieldId_ = fieldId;
}

void QenRec::setFieldGeometryId(boost::uuids::uuid fieldGeometryId) {
    fieldGeometryId_ = fieldGeometryId;
}

void QenRec::setName(std::string name) {
    name_ = std::move(name);
}

void QenRec::setId(boost::uuids::uuid id) {
    id_ = id;
}

void QenRec::setRecGeometry(boost::uuids::uuid recGeometry) {
    recGeometry_ = recGeometry;
}

void QenRec::setCreationDate(std::string creationDate) {
    creationDate_ = std::move(creationDate);
}

void QenRec::setEditDate(std::string editDate) {
    editDate_ = std::move(editDate);
}

void QenRec::setRecDbfCol(std::string recDbfCol) {
    recDbfCol_ = std::move(recDbfCol);
}

void QenRec::setOperationName(std::string operationName) {
    operationName_ = std::move(operationName);
}

void QenRec::setOperationId(boost::uuids::uuid operationId) {
    operationId_ = operationId;
}

void QenRec::setSeasonName(std::string seasonName) {
    seasonName_ = std::move(seasonName);
}

void QenRec::setSeasonId(int seasonId) {
    seasonId_ = seasonId;
}

void QenRec::setMgMtZoneId(boost::uuids::uuid mgmtZoneId) {
    mgmtZoneId_ = mgmtZoneId;
}

void QenRec::setRecData(QenRecData* recData) {
    recData_ = recData;
}

void QenRec::setMinimumRate(double minimumRate) {
    minimumRate_ = minimumRate;
}

void QenRec::setMaximumRate(double maximumRate) {
    maximumRate_ = maximumRate;
}

void QenRec::setAverageRate(double averageRate) {
    averageRate_ = averageRate;
}

void QenRec::setRateUomId(int rateUomId) {
    rateUomId_ = rateUomId;
}

void QenRec::setRateUom(std::string rateUom) {
    rateUom_ = std::move(rateUom);
}

void QenRec::setTotal(double total) {
    total_ = total;
}

void QenRec::setTotalUomId(int totalUomId) {
    totalUomId_ = totalUomId;
}

void QenRec::setTotalUom(std::string totalUom) {
    totalUom_ = std::move(totalUom);
}

void QenRec::setArea(double area) {
    area_ = area;
}

void QenRec::setAreaUomId(int areaUomId) {
    areaUomId_ = areaUomId;
}

void QenRec::setAreaUom(std::string areaUom) {
    areaUom_ = std::move(areaUom);
}

void QenRec::setIsUsed(bool isUsed) {
    isUsed_ = isUsed;
}

void QenRec::setXmlFileName(boost::uuids::uuid xmlFileName) {
    xmlFileName_ = xmlFileName;
}
