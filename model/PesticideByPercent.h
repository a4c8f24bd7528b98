#ifndef QENXML_MODEL_PESTICIDEBYPERCENT_H
#define QENXML_MODEL_PESTICIDEBYPERCENT_H

#include <string>

#include "PestProduct.h"
#include "QenExport.h"

/// A product line of a pesticide mix whose amount() is its percentage of the mix, kept as given.
class QENXML_EXPORT PesticideByPercent : public PestProduct {
public:
    /// A product line with these values; there is no empty one.
    ///
    /// @param productId     code of the product
    /// @param productName   name of the product
    /// @param regCodeId     code of the registration
    /// @param regCode       text of the registration
    /// @param pesticideType kind of the product
    /// @param amount        percentage of the mix
    PesticideByPercent(const int& productId, const std::string& productName, const int& regCodeId,
                       const std::string& regCode, const PesticideType& pesticideType,
                       const double& amount);
};

#endif
