/// @file
/// The kinds of product data that there are, and the class of each: the only home of that.

#ifndef QENXML_MODEL_INTERNAL_RECDATAVISIT_H
#define QENXML_MODEL_INTERNAL_RECDATAVISIT_H

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenRecData.h"

namespace qenxml {

/// Calls @p visitor with product data as the class that its kind names, and returns what it
/// returns. The kind is trusted. Product data of an unknown kind is not visited: then @p otherwise
/// is returned.
template <class Result, class Visitor>
Result visitRecData(QenRecData& data, Visitor&& visitor, Result otherwise) {
    switch (data.recType()) {
    case RecTypeCommercialFertilizer:
        return visitor(static_cast<CommercialFertilizerRec&>(data));
    case RecTypeCustomFertilizer:
        return visitor(static_cast<CustomFertilizerRec&>(data));
    case RecTypePlanting:
        return visitor(static_cast<PlantingRec&>(data));
    case RecTypePesticide:
        return visitor(static_cast<PesticideRec&>(data));
    case RecTypeNone:
        break;
    }
    return otherwise;
}

/// Whether product data is of a known kind: all other is dropped wherever a rec is copied or put
/// into a list.
inline bool isOfKnownKind(QenRecData& data) {
    return visitRecData(
        data, [](auto& /*variant*/) { return true; }, false);
}

} // namespace qenxml

#endif
