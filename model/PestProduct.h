/// @file
/// PestProduct, one line of a pesticide mix, and its kinds.

#ifndef QENXML_MODEL_PESTPRODUCT_H
#define QENXML_MODEL_PESTPRODUCT_H

#include <cstdint>
#include <string>

#include "QenExport.h"

/// The kind of one product of a pesticide mix. The library keeps it and never acts on it.
enum PesticideType : std::int32_t {
    Herbicide = 0,       ///< against weeds
    Insecticide = 1,     ///< against insects
    Fungicide = 2,       ///< against fungi
    Additive = 3,        ///< helps the others to work
    GrowthRegulator = 4, ///< steers the growth of the crop
    Carrier = 5          ///< carries the others, for example water
};

/// One product line of a pesticide mix: what PesticideByPercent and PesticideByAmount share.
///
/// A plain value that does not change once constructed; all getters return copies. There is no
/// virtual destructor: a line is held by value, never deleted through this class.
class QENXML_EXPORT PestProduct {
public:
    /// A product line with these values; there is no empty one.
    ///
    /// @param productId     code of the product
    /// @param productName   name of the product
    /// @param regCodeId     code of the registration
    /// @param regCode       text of the registration
    /// @param pesticideType kind of the product
    /// @param amount        how much of it; its meaning is given by the derived class
    PestProduct(const int& productId, const std::string& productName, const int& regCodeId,
                const std::string& regCode, const PesticideType& pesticideType,
                const double& amount);

    int productId();               ///< Code of the product.
    std::string productName();     ///< Name of the product.
    int regCodeId();               ///< Code of the registration.
    std::string regCode();         ///< Text of the registration.
    PesticideType pesticideType(); ///< Kind of the product.
    double amount();               ///< How much of the product; the derived class says in what.

private:
    int productId_;
    std::string productName_;
    int regCodeId_;
    std::string regCode_;
    PesticideType pesticideType_;
    double amount_;
};

#endif
