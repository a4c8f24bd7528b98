#include "model/internal/ChildList.h"

#include "model/QenFarm.h"
#include "model/QenField.h"
#include "model/QenRec.h"
#include "model/internal/RecDataVisit.h"

void qenxml::dropUnknownProductData(QenField& field) noexcept {
    for (QenRec& rec : field.recs()) {
        QenRecData* const data = rec.recData();
        if (data == nullptr || isOfKnownKind(*data))
            continue;
        rec.setRecData(nullptr);
        delete data;
    }
}

void qenxml::dropUnknownProductData(QenFarm& farm) noexcept {
    for (QenField& field : farm.fields())
        dropUnknownProductData(field);
}
