#include "model/QenRec.h"

#include <algorithm>
#include <cstddef>
#include <utility>

QenRec::QenRec() = default;

QenRec::QenRec(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId, std::string name,
               boost::uuids::uuid id, boost::uuids::uuid recGeometry, std::string creationDate,
               std::string recDbfCol, std::string operationName, boost::uuids::uuid operationId,
               std::string seasonName, int seasonId, boost::uuids::uuid mgmtZoneId,
               QenRecData* recData, double minimumRate, double maximumRate, double averageRate,
               std::string rateUom, int rateUomId, double total, int totalUomId,
               std::string totalUom, double area, int areaUomId, std::string areaUom, bool isUsed,
               boost::uuids::uuid xmlFileName)
    : description_{fieldId,     fieldGeometryId,       std::move(name),
                   id,          recGeometry,           std::move(creationDate),
                   {},          std::move(recDbfCol),  std::move(operationName),
                   operationId, std::move(seasonName), seasonId,
                   mgmtZoneId},
      recData_(recData),
      statistics_{
          minimumRate, maximumRate,         averageRate, rateUomId, std::move(rateUom), total,
          totalUomId,  std::move(totalUom), area,        areaUomId, std::move(areaUom)},
      isUsed_(isUsed),
      xmlFileName_(xmlFileName) {}

QenRec::QenRec(const QenRec& other) = default;

QenRec& QenRec::operator=(const QenRec& other) { // NOLINT(*-use-equals-default): in another order
    description_ = other.description_;
    statistics_ = other.statistics_;
    isUsed_ = other.isUsed_;
    xmlFileName_ = other.xmlFileName_;
    // Last, so that the rec keeps the product data that it had when memory runs out.
    recData_ = other.recData_;
    return *this;
}

QenRec& QenRec::appendEmpty(std::vector<QenRec>& recs) {
    if (recs.size() == recs.capacity()) {
        std::vector<QenRec> larger;
        larger.reserve(std::max<std::size_t>(2 * recs.size(), 1));
        for (QenRec& rec : recs)
            larger.emplace_back().take(rec);
        recs.swap(larger);
    }
    return recs.emplace_back();
}

void QenRec::take(QenRec& other) noexcept {
    description_ = std::move(other.description_);
    recData_.take(other.recData_);
    statistics_ = std::move(other.statistics_);
    isUsed_ = other.isUsed_;
    xmlFileName_ = other.xmlFileName_;
}

QenRec::~QenRec() = default;

bool QenRec::operator==(const QenRec& other) const {
    return description_.id == other.description_.id;
}

boost::uuids::uuid QenRec::fieldId() {
    return description_.fieldId;
}

boost::uuids::uuid QenRec::fieldGeometryId() {
    return description_.fieldGeometryId;
}

std::string QenRec::name() {
    return description_.name;
}

boost::uuids::uuid QenRec::id() {
    return description_.id;
}

boost::uuids::uuid QenRec::recGeometry() {
    return description_.recGeometry;
}

std::string QenRec::creationDate() {
    return description_.creationDate;
}

std::string QenRec::editDate() {
    return description_.editDate;
}

std::string QenRec::recDbfCol() {
    return description_.recDbfCol;
}

std::string QenRec::operationName() {
    return description_.operationName;
}

boost::uuids::uuid QenRec::operationId() {
    return description_.operationId;
}

std::string QenRec::seasonName() {
    return description_.seasonName;
}

int QenRec::seasonId() {
    return description_.seasonId;
}

boost::uuids::uuid QenRec::mgmtZoneId() {
    return description_.mgmtZoneId;
}

QenRecData* QenRec::recData() {
    return recData_.get();
}

double QenRec::minimumRate() {
    return statistics_.minimumRate;
}

double QenRec::maximumRate() {
    return statistics_.maximumRate;
}

double QenRec::averageRate() {
    return statistics_.averageRate;
}

int QenRec::rateUomId() {
    return statistics_.rateUomId;
}

std::string QenRec::rateUom() {
    return statistics_.rateUom;
}

double QenRec::total() {
    return statistics_.total;
}

int QenRec::totalUomId() {
    return statistics_.totalUomId;
}

std::string QenRec::totalUom() {
    return statistics_.totalUom;
}

double QenRec::area() {
    return statistics_.area;
}

int QenRec::areaUomId() {
    return statistics_.areaUomId;
}

std::string QenRec::areaUom() {
    return statistics_.areaUom;
}

bool QenRec::isUsed() {
    return isUsed_;
}

boost::uuids::uuid QenRec::xmlFileName() {
    return xmlFileName_;
}

void QenRec::setFieldId(boost::uuids::uuid fieldId) {
    description_.fieldId = fieldId;
}

void QenRec::setFieldGeometryId(boost::uuids::uuid fieldGeometryId) {
    description_.fieldGeometryId = fieldGeometryId;
}

void QenRec::setName(std::string name) {
    description_.name = std::move(name);
}

void QenRec::setId(boost::uuids::uuid id) {
    description_.id = id;
}

void QenRec::setRecGeometry(boost::uuids::uuid recGeometry) {
    description_.recGeometry = recGeometry;
}

void QenRec::setCreationDate(std::string creationDate) {
    description_.creationDate = std::move(creationDate);
}

void QenRec::setEditDate(std::string editDate) {
    description_.editDate = std::move(editDate);
}

void QenRec::setRecDbfCol(std::string recDbfCol) {
    description_.recDbfCol = std::move(recDbfCol);
}

void QenRec::setOperationName(std::string operationName) {
    description_.operationName = std::move(operationName);
}

void QenRec::setOperationId(boost::uuids::uuid operationId) {
    description_.operationId = operationId;
}

void QenRec::setSeasonName(std::string seasonName) {
    description_.seasonName = std::move(seasonName);
}

void QenRec::setSeasonId(int seasonId) {
    description_.seasonId = seasonId;
}

void QenRec::setMgMtZoneId(boost::uuids::uuid mgmtZoneId) {
    description_.mgmtZoneId = mgmtZoneId;
}

void QenRec::setRecData(QenRecData* recData) {
    recData_.set(recData);
}

void QenRec::setMinimumRate(double minimumRate) {
    statistics_.minimumRate = minimumRate;
}

void QenRec::setMaximumRate(double maximumRate) {
    statistics_.maximumRate = maximumRate;
}

void QenRec::setAverageRate(double averageRate) {
    statistics_.averageRate = averageRate;
}

void QenRec::setRateUomId(int rateUomId) {
    statistics_.rateUomId = rateUomId;
}

void QenRec::setRateUom(std::string rateUom) {
    statistics_.rateUom = std::move(rateUom);
}

void QenRec::setTotal(double total) {
    statistics_.total = total;
}

void QenRec::setTotalUomId(int totalUomId) {
    statistics_.totalUomId = totalUomId;
}

void QenRec::setTotalUom(std::string totalUom) {
    statistics_.totalUom = std::move(totalUom);
}

void QenRec::setArea(double area) {
    statistics_.area = area;
}

void QenRec::setAreaUomId(int areaUomId) {
    statistics_.areaUomId = areaUomId;
}

void QenRec::setAreaUom(std::string areaUom) {
    statistics_.areaUom = std::move(areaUom);
}

void QenRec::setIsUsed(bool isUsed) {
    isUsed_ = isUsed;
}

void QenRec::setXmlFileName(boost::uuids::uuid xmlFileName) {
    xmlFileName_ = xmlFileName;
}
