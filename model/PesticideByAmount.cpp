#include "model/PesticideByAmount.h"

PesticideByAmount::PesticideByAmount(const int& productId, const std::string& productName,
                                     const int& regCodeId, const std::string& regCode,
                                     const PesticideType& pesticideType, const double& amount,
                                     const int& uomId, const std::string& uom)
    : PestProduct(productId, productName, regCodeId, regCode, pesticideType, amount),
      uomId_(uomId),
      uom_(uom) {}

int PesticideByAmount::uomId() {
    return uomId_;
}

std::string PesticideByAmount::uom() {
    return uom_;
}
