#include "model/PlantingRec.h"

PlantingRec::PlantingRec(const boost::uuids::uuid& recId, const int& cropId,
                         const std::string& cropName, const int& companyId,
                         const std::string& companyName, const int& varietyId,
                         const std::string& varietyName, const int& uomId, const std::string& uom)
    : QenRecData(recId, RecTypePlanting),
      cropId_(cropId),
      cropName_(cropName),
      companyId_(companyId),
      companyName_(companyName),
      varietyId_(varietyId),
      varietyName_(varietyName),
      uomId_(uomId),
      uom_(uom) {}

int PlantingRec::cropId() {
    return cropId_;
}

std::string PlantingRec::cropName() {
    return cropName_;
}

int PlantingRec::companyId() {
    return companyId_;
}

std::string PlantingRec::companyName() {
    return companyName_;
}

int PlantingRec::varietyId() {
    return varietyId_;
}

std::string PlantingRec::varietyName() {
    return varietyName_;
}

int PlantingRec::uomId() {
    return uomId_;
}

std::string PlantingRec::uom() {
    return uom_;
}
