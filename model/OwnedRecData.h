#ifndef QENXML_MODEL_OWNEDRECDATA_H
#define QENXML_MODEL_OWNEDRECDATA_H

#include "QenExport.h"
#include "QenRecData.h"

namespace qenxml { // not for hosts

/// The product data of a rec: a pointer that owns, or null.
///
/// Copying is deep, as the class that the kind names, and drops product data of an unknown kind.
/// The object that was held before an assignment, set() or take() is *not* deleted: it belongs to
/// whoever took the pointer beforehand.
class QENXML_LOCAL OwnedRecData {
public:
    OwnedRecData() = default;
    explicit OwnedRecData(QenRecData* data) : data_(data) {}
    OwnedRecData(const OwnedRecData& other);
    OwnedRecData& operator=(const OwnedRecData& other);
    ~OwnedRecData() { delete data_; }

    QenRecData* get() const { return data_; }

    void set(QenRecData* data) { data_ = data; }

    /// Takes over what a copy of @p other would have, where nobody will look at @p other again:
    /// product data of an unknown kind stays with @p other.
    void take(OwnedRecData& other) noexcept;

private:
    QenRecData* data_ = nullptr;
};

} // namespace qenxml

#endif
