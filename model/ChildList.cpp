#include "model/ChildList.h"

#include <cstddef>

#include "model/QenFarm.h"
#include "model/QenField.h"
#include "model/QenRec.h"
#include "model/QenRecData.h"

void qenxml::dropUnknownProductData(QenRec& rec) noexcept {
    QenRecData* const data = rec.recData();
    if (data == nullptr)
        return;
    const RecType kind = data->recType();
    if (kind >= RecTypeCommercialFertilizer && kind <= RecTypePesticide)
        return;
    rec.setRecData(nullptr);
    delete data;
}

void qenxml::dropUnknownProductData(QenField& field) noexcept {
    for (QenRec& rec : field.recs())
        dropUnknownProductData(rec);
}

void qenxml::dropUnknownProductData(QenFarm& farm) noexcept {
    for (QenField& field : farm.fields())
        dropUnknownProductData(field);
}

/// Appends an empty rec to @p recs, which grows by hand, because a list that grows by itself copies
/// every rec with its product data. When memory runs out, the list has not changed.
QenRec& qenxml::appendEmptyRec(std::vector<QenRec>& recs) {
    if (recs.size() == recs.capacity()) {
        std::vector<QenRec> larger;
        larger.reserve(std::max<std::size_t>(2 * recs.size(), 1));
        for (QenRec& rec : recs)
            larger.emplace_back().take(rec);
        recs.swap(larger);
    }
    return recs.emplace_back();
}
