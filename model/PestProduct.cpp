#include "model/PestProduct.h"

PestProduct::PestProduct(const int& productId, const std::string& productName, const int& regCodeId,
                         const std::string& regCode, const PesticideType& pesticideType,
                         const double& amount)
    : productId_(productId),
      productName_(productName),
      regCodeId_(regCodeId),
      regCode_(regCode),
      pesticideType_(pesticideType),
      amount_(amount) {}

int PestProduct::productId() {
    return productId_;
}

std::string PestProduct::productName() {
    return productName_;
}

int PestProduct::regCodeId() {
    return regCodeId_;
}

std::string PestProduct::regCode() {
    return regCode_;
}

PesticideType PestProduct::pesticideType() {
    return pesticideType_;
}

double PestProduct::amount() {
    return amount_;
}
