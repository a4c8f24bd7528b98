/// @file
/// The way through the records of packages.

#ifndef QENXML_TOOLS_RECORDS_RECORDWALK_H
#define QENXML_TOOLS_RECORDS_RECORDWALK_H

#include <cstddef>
#include <vector>

#include "model/QenGrower.h"
#include "tools/records/MissingNumbers.h"

/// A field with the records around it.
struct FieldContext {
    QenGrower& grower;
    QenFarm& farm;
    QenField& field;
    const GrowerGaps& gaps; ///< Of the grower.

    const MissingNumbers& missingFrom(QenFieldGeometry& geometry) const {
        return gaps.ofGeometry(field, geometry.geometryId());
    }
    const MissingNumbers& missingFrom(QenRec& rec) const { return gaps.ofRec(field, rec.id()); }
};

/// Calls @p visit with each grower and its gaps.
///
/// @param gaps those of the growers, in their order; nothing is missing from a grower without
template <class Visit>
void forEachGrower(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
                   Visit&& visit) {
    static const GrowerGaps none;
    for (std::size_t i = 0; i < growers.size(); ++i)
        visit(growers[i], i < gaps.size() ? gaps[i] : none);
}

/// Calls @p visit with the context of each field, by growers and farms.
template <class Visit>
void forEachField(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
                  Visit&& visit) {
    forEachGrower(growers, gaps, [&](QenGrower& grower, const GrowerGaps& gapsOfGrower) {
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                visit(FieldContext{grower, farm, field, gapsOfGrower});
    });
}

/// Calls @p visit with the context of the field of each rec, and the rec.
template <class Visit>
void forEachRec(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
                Visit&& visit) {
    forEachField(growers, gaps, [&](const FieldContext& context) {
        for (QenRec& rec : context.field.recs())
            visit(context, rec);
    });
}

#endif
