#ifndef QENXML_MODEL_PESTICIDEBYAMOUNT_H
#define QENXML_MODEL_PESTICIDEBYAMOUNT_H

#include <string>

#include "PestProduct.h"
#include "QenExport.h"

/// A product line of a pesticide mix whose amount() is in a unit of its own.
class QENXML_EXPORT PesticideByAmount : public PestProduct {
public:
    /// A product line with these values; there is no empty one.
    ///
    /// @param productId     code of the product
    /// @param productName   name of the product
    /// @param regCodeId     code of the registration
    /// @param regCode       text of the registration
    /// @param pesticideType kind of the product
    /// @param amount        how much of it, in the unit of @p uom
    /// @param uomId         code of the unit of measure
    /// @param uom           text of the unit of measure
    PesticideByAmount(const int& productId, const std::string& productName, const int& regCodeId,
                      const std::string& regCode, const PesticideType& pesticideType,
                      const double& amount, const int& uomId, const std::string& uom);

    int uomId();       ///< Code of the unit of the amount.
    std::string uom(); ///< Text of the unit of the amount.

private:
    int uomId_;
    std::string uom_;
};

#endif
