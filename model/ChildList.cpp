#include "model/ChildList.h"

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
