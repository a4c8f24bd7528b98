#include "model/PesticideByPercent.h"

PesticideByPercent::PesticideByPercent(const int& productId, const std::string& productName,
                                       const int& regCodeId, const std::string& regCode,
                                       const PesticideType& pesticideType, const double& amount)
    : PestProduct(productId, productName, regCodeId, regCode, pesticideType, amount) {}
