#include "model/CommercialFertilizerRec.h"

CommercialFertilizerRec::CommercialFertilizerRec(const boost::uuids::uuid& recId,
                                                 const int& productId,
                                                 const std::string& productName, const int& uomId,
                                                 const std::string& uom)
    : QenRecData(recId, RecTypeCommercialFertilizer),
      productId_(productId),
      productName_(productName),
      uomId_(uomId),
      uom_(uom) {}

int CommercialFertilizerRec::productId() {
    return productId_;
}

std::string CommercialFertilizerRec::productName() {
    return productName_;
}

int CommercialFertilizerRec::uomId() {
    return uomId_;
}

std::string CommercialFertilizerRec::uom() {
    return uom_;
}
