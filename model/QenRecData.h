/// @file
/// QenRecData, the base of the product data, and its kinds.

#ifndef QENXML_MODEL_QENRECDATA_H
#define QENXML_MODEL_QENRECDATA_H

#include <cstdint>

#include <boost/uuid/uuid.hpp>

#include "QenExport.h"

/// The kind of a rec's product data. The number is part of the interface.
enum RecType : std::int32_t {
    RecTypeNone = 0,                 ///< no variant; copying a rec drops product data of this kind
    RecTypeCommercialFertilizer = 1, ///< a CommercialFertilizerRec
    RecTypeCustomFertilizer = 2,     ///< a CustomFertilizerRec
    RecTypePlanting = 3,             ///< a PlantingRec
    RecTypePesticide = 4             ///< a PesticideRec
};

/// Base of the product data that a rec prescribes.
///
/// recType() says which variant an object is; a caller tests it and then casts to that variant:
/// CommercialFertilizerRec, CustomFertilizerRec, PlantingRec or PesticideRec. The kind is trusted,
/// by callers and by the copying of a QenRec alike, so an object must be of the variant that its
/// kind names.
///
/// An object is owned by exactly one QenRec, which deletes it through the virtual destructor.
/// There is no cloning operation: a QenRec that is copied copies it as the variant of its kind.
///
/// Every value is kept as given: nothing is validated, converted or scaled. A unit of measure is a
/// code and a text, neither of which means anything to the library. No operation throws anything
/// but std::bad_alloc, from copies of texts and lists.
///
/// The getters of this class and of its variants are non-const members and return copies.
///
/// Threads: the getters change nothing; an object that no thread changes may be read by several.
class QENXML_EXPORT QenRecData {
public:
    /// Product data of no rec (nil recId) and no kind (RecTypeNone).
    QenRecData();

    /// Product data of the rec with the identifier @p recId, of the kind @p recType.
    QenRecData(boost::uuids::uuid recId, RecType recType);

    /// A copy of the two values of this class only: what a variant adds is not copied by way of the
    /// base.
    QenRecData(const QenRecData&) = default;

    /// Takes over the two values of this class only, the kind included. So it must not be used on
    /// a variant by way of the base.
    QenRecData& operator=(const QenRecData&) = default;

    /// Virtual, so that a variant may be deleted through a pointer to this class.
    virtual ~QenRecData();

    /// True when both belong to the rec of the same identifier. Kind and content are not compared,
    /// so two different variants of one rec are equal. There is no `operator!=`.
    bool operator==(const QenRecData& other) const;

    /// The identifier of the rec that the data belongs to; nil when none was given.
    boost::uuids::uuid recId();

    /// Which variant this is.
    RecType recType();

protected:
    boost::uuids::uuid recId_; ///< CustomFertilizerRec::setRecId() writes it.
    RecType recType_;          ///< Nothing changes it but assignment.
};

#endif
