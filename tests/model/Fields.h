/// @file
/// Fields and recs for the tests of fields.

#ifndef QENXML_TESTS_MODEL_FIELDS_H
#define QENXML_TESTS_MODEL_FIELDS_H

#include <string>
#include <vector>

#include "model/PlantingRec.h"
#include "model/QenField.h"
#include "tests/support/Uuids.h"

namespace test {

using Texts = std::vector<std::string>;

/// A rec with an id and a name, and with product data of the given recId unless it is 0.
inline QenRec makeRec(unsigned id, const std::string& name, unsigned recId = 0) {
    QenRec rec;
    rec.setId(uuid(id));
    rec.setName(name);
    if (recId != 0)
        rec.setRecData(
            new PlantingRec(uuid(recId), 1, name, 2, "company", 3, "variety", 4, "seeds"));
    return rec;
}

/// A rec whose product data is of a kind that copies drop.
inline QenRec recOfUnknownKind(unsigned id, int kind = 99) {
    return QenRec({}, {}, "unknown", uuid(id), {}, "", "", "", {}, "", 0, {},
                  new QenRecData(uuid(99), static_cast<RecType>(kind)), 0.0, 0.0, 0.0, "", 0, 0.0,
                  0, "", 0.0, 0, "", false, {});
}

inline Texts recNames(QenField field) {
    Texts result;
    for (QenRec& rec : field.recs())
        result.push_back(rec.name());
    return result;
}

} // namespace test

#endif
