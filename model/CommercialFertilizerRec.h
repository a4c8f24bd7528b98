#ifndef QENXML_MODEL_COMMERCIALFERTILIZERREC_H
#define QENXML_MODEL_COMMERCIALFERTILIZERREC_H

#include <string>

#include "QenExport.h"
#include "QenRecData.h"

/// Product data of a fertilizer that is bought as it is.
///
/// Its kind is RecTypeCommercialFertilizer. It does not change once constructed; all getters return
/// copies. Its product identifier is a number, unlike that of a CustomFertilizerRec.
class QENXML_EXPORT CommercialFertilizerRec : public QenRecData {
public:
    /// Product data of the kind RecTypeCommercialFertilizer; there is no empty one.
    ///
    /// @param recId       identifier of the rec that the data belongs to
    /// @param productId   code of the product
    /// @param productName name of the product
    /// @param uomId       code of the unit of measure
    /// @param uom         text of the unit of measure
    CommercialFertilizerRec(const boost::uuids::uuid& recId, const int& productId,
                            const std::string& productName, const int& uomId,
                            const std::string& uom);

    int productId();           ///< Code of the product.
    std::string productName(); ///< Name of the product.
    int uomId();               ///< Code of the unit of measure.
    std::string uom();         ///< Text of the unit of measure.

private:
    int productId_;
    std::string productName_;
    int uomId_;
    std::string uom_;
};

#endif
