#ifndef QENXML_MODEL_PLANTINGREC_H
#define QENXML_MODEL_PLANTINGREC_H

#include <string>

#include "QenExport.h"
#include "QenRecData.h"

/// Product data of a planting: the variety of a crop that is to be planted.
///
/// Its kind is RecTypePlanting. It does not change once constructed; all getters return copies.
class QENXML_EXPORT PlantingRec : public QenRecData {
public:
    /// Product data of the kind RecTypePlanting; there is no empty one.
    ///
    /// @param recId       identifier of the rec that the data belongs to
    /// @param cropId      code of the crop
    /// @param cropName    name of the crop
    /// @param companyId   code of the seed company
    /// @param companyName name of the seed company
    /// @param varietyId   code of the variety
    /// @param varietyName name of the variety
    /// @param uomId       code of the unit of measure
    /// @param uom         text of the unit of measure
    PlantingRec(const boost::uuids::uuid& recId, const int& cropId, const std::string& cropName,
                const int& companyId, const std::string& companyName, const int& varietyId,
                const std::string& varietyName, const int& uomId, const std::string& uom);

    int cropId();              ///< Code of the crop.
    std::string cropName();    ///< Name of the crop.
    int companyId();           ///< Code of the seed company.
    std::string companyName(); ///< Name of the seed company.
    int varietyId();           ///< Code of the variety.
    std::string varietyName(); ///< Name of the variety.
    int uomId();               ///< Code of the unit of measure.
    std::string uom();         ///< Text of the unit of measure.

private:
    int cropId_;
    std::string cropName_;
    int companyId_;
    std::string companyName_;
    int varietyId_;
    std::string varietyName_;
    int uomId_;
    std::string uom_;
};

#endif
