#include "model/QenRec.h"

#include <memory>
#include <utility>

#include "model/ChildList.h"
#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenRecData.h"

namespace {

/// A copy of product data as the variant that its kind names; null for any other kind.
std::unique_ptr<QenRecData> copyOf(QenRecData* data) {
    if (data == nullptr)
        return nullptr;
    switch (data->recType()) {
    case RecTypeCommercialFertilizer:
        return std::make_unique<CommercialFertilizerRec>(
            static_cast<const CommercialFertilizerRec&>(*data));
    case RecTypeCustomFertilizer:
        return std::make_unique<CustomFertilizerRec>(
            static_cast<const CustomFertilizerRec&>(*data));
    case RecTypePlanting:
        return std::make_unique<PlantingRec>(static_cast<const PlantingRec&>(*data));
    case RecTypePesticide:
        return std::make_unique<PesticideRec>(static_cast<const PesticideRec&>(*data));
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
    : values_{fieldId,
              fieldGeometryId,
              std::move(name),
              id,
              recGeometry,
              std::move(creationDate),
              {},
              std::move(recDbfCol),
              std::move(operationName),
              operationId,
              std::move(seasonName),
              seasonId,
              mgmtZoneId,
              minimumRate,
              maximumRate,
              averageRate,
              rateUomId,
              std::move(rateUom),
              total,
              totalUomId,
              std::move(totalUom),
              area,
              areaUomId,
              std::move(areaUom),
              isUsed,
              xmlFileName},
      recData_(recData) {}

QenRec::QenRec(const QenRec& other)
    : values_(other.values_), recData_(copyOf(other.recData_).release()) {}

QenRec& QenRec::operator=(const QenRec& other) {
    if (this == &other)
        return *this;
    values_ = other.values_;
    // The earlier product data is the caller's from here on.
    recData_ = copyOf(other.recData_).release();
    return *this;
}

void QenRec::take(QenRec& other) noexcept {
    values_ = std::move(other.values_);
    qenxml::dropUnknownProductData(other);
    recData_ = std::exchange(other.recData_, nullptr);
}

QenRec::~QenRec() {
    delete recData_;
}

bool QenRec::operator==(const QenRec& other) const {
    return values_.id == other.values_.id;
}

boost::uuids::uuid QenRec::fieldId() {
    return values_.fieldId;
}

boost::uuids::uuid QenRec::fieldGeometryId() {
    return values_.fieldGeometryId;
}

std::string QenRec::name() {
    return values_.name;
}

boost::uuids::uuid QenRec::id() {
    return values_.id;
}

boost::uuids::uuid QenRec::recGeometry() {
    return values_.recGeometry;
}

std::string QenRec::creationDate() {
    return values_.creationDate;
}

std::string QenRec::editDate() {
    return values_.editDate;
}

std::string QenRec::recDbfCol() {
    return values_.recDbfCol;
}

std::string QenRec::operationName() {
    return values_.operationName;
}

boost::uuids::uuid QenRec::operationId() {
    return values_.operationId;
}

std::string QenRec::seasonName() {
    return values_.seasonName;
}

int QenRec::seasonId() {
    return values_.seasonId;
}

boost::uuids::uuid QenRec::mgmtZoneId() {
    return values_.mgmtZoneId;
}

QenRecData* QenRec::recData() {
    return recData_;
}

double QenRec::minimumRate() {
    return values_.minimumRate;
}

double QenRec::maximumRate() {
    return values_.maximumRate;
}

double QenRec::averageRate() {
    return values_.averageRate;
}

int QenRec::rateUomId() {
    return values_.rateUomId;
}

std::string QenRec::rateUom() {
    return values_.rateUom;
}

double QenRec::total() {
    return values_.total;
}

int QenRec::totalUomId() {
    return values_.totalUomId;
}

std::string QenRec::totalUom() {
    return values_.totalUom;
}

double QenRec::area() {
    return values_.area;
}

int QenRec::areaUomId() {
    return values_.areaUomId;
}

std::string QenRec::areaUom() {
    return values_.areaUom;
}

bool QenRec::isUsed() {
    return values_.isUsed;
}

boost::uuids::uuid QenRec::xmlFileName() {
    return values_.xmlFileName;
}

void QenRec::setFieldId(boost::uuids::uuid fieldId) {
    values_.fieldId = fieldId;
}

void QenRec::setFieldGeometryId(boost::uuids::uuid fieldGeometryId) {
    values_.fieldGeometryId = fieldGeometryId;
}

void QenRec::setName(std::string name) {
    values_.name = std::move(name);
}

void QenRec::setId(boost::uuids::uuid id) {
    values_.id = id;
}

void QenRec::setRecGeometry(boost::uuids::uuid recGeometry) {
    values_.recGeometry = recGeometry;
}

void QenRec::setCreationDate(std::string creationDate) {
    values_.creationDate = std::move(creationDate);
}

void QenRec::setEditDate(std::string editDate) {
    values_.editDate = std::move(editDate);
}

void QenRec::setRecDbfCol(std::string recDbfCol) {
    values_.recDbfCol = std::move(recDbfCol);
}

void QenRec::setOperationName(std::string operationName) {
    values_.operationName = std::move(operationName);
}

void QenRec::setOperationId(boost::uuids::uuid operationId) {
    values_.operationId = operationId;
}

void QenRec::setSeasonName(std::string seasonName) {
    values_.seasonName = std::move(seasonName);
}

void QenRec::setSeasonId(int seasonId) {
    values_.seasonId = seasonId;
}

void QenRec::setMgMtZoneId(boost::uuids::uuid mgmtZoneId) {
    values_.mgmtZoneId = mgmtZoneId;
}

void QenRec::setRecData(QenRecData* recData) {
    recData_ = recData;
}

void QenRec::setMinimumRate(double minimumRate) {
    values_.minimumRate = minimumRate;
}

void QenRec::setMaximumRate(double maximumRate) {
    values_.maximumRate = maximumRate;
}

void QenRec::setAverageRate(double averageRate) {
    values_.averageRate = averageRate;
}

void QenRec::setRateUomId(int rateUomId) {
    values_.rateUomId = rateUomId;
}

void QenRec::setRateUom(std::string rateUom) {
    values_.rateUom = std::move(rateUom);
}

void QenRec::setTotal(double total) {
    values_.total = total;
}

void QenRec::setTotalUomId(int totalUomId) {
    values_.totalUomId = totalUomId;
}

void QenRec::setTotalUom(std::string totalUom) {
    values_.totalUom = std::move(totalUom);
}

void QenRec::setArea(double area) {
    values_.area = area;
}

void QenRec::setAreaUomId(int areaUomId) {
    values_.areaUomId = areaUomId;
}

void QenRec::setAreaUom(std::string areaUom) {
    values_.areaUom = std::move(areaUom);
}

void QenRec::setIsUsed(bool isUsed) {
    values_.isUsed = isUsed;
}

void QenRec::setXmlFileName(boost::uuids::uuid xmlFileName) {
    values_.xmlFileName = xmlFileName;
}
