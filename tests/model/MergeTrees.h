/// @file
/// Trees written out by hand, on which the rules of merging are tested. MergeModelTest.cpp has the
/// random ones.

#ifndef QENXML_TESTS_MODEL_MERGETREES_H
#define QENXML_TESTS_MODEL_MERGETREES_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"
#include "tests/support/WatchedMemory.h"

namespace test::trees {

// Children are put into the lists directly, so that those with the same identifier all get in.

/// A rec whose name is found in its product data too.
inline QenRec rec(unsigned id, const std::string& name) {
    QenRec result;
    result.setId(uuid(id));
    result.setName(name);
    result.setEditDate("edited: " + name);
    result.setRecData(
        new PlantingRec(uuid(id + 1000), 1, name, 2, "company", 3, "variety", 4, "seeds"));
    return result;
}

inline QenFieldGeometry geometry(unsigned id, const std::string& date) {
    return QenFieldGeometry(uuid(id), date, uuid(id + 1000), LLA{id + 0.5, 2.5, 3.5});
}

/// @param parents what the identifiers of the grower and the farm are made of
inline QenField field(unsigned id, const std::string& name, unsigned parents,
                      const std::vector<QenFieldGeometry>& geometries = {},
                      const std::vector<QenRec>& recs = {}) {
    QenField result(name, uuid(id), uuid(parents + 1), uuid(parents + 2));
    for (const QenFieldGeometry& geometry : geometries)
        result.addFieldGeometry(geometry);
    result.recs() = recs;
    return result;
}

inline QenFarm farm(unsigned id, const std::string& name, unsigned growerId,
                    const std::vector<QenField>& fields = {}) {
    QenFarm result(name, uuid(id), uuid(growerId));
    result.fields() = fields;
    return result;
}

inline QenGrower grower(unsigned id, const std::string& name,
                        const std::vector<QenFarm>& farms = {}) {
    QenGrower result(name, uuid(id));
    result.farms() = farms;
    return result;
}

/// Gives every rec of a field product data of a kind that copies drop.
inline void makeKindsUnknown(QenField& field) {
    for (QenRec& rec : field.recs()) {
        delete rec.recData();
        rec.setRecData(new QenRecData(uuid(99), static_cast<RecType>(99)));
    }
}

/// The ids of the recs that have product data, in order.
inline std::vector<boost::uuids::uuid> recsWithData(QenField& field) {
    std::vector<boost::uuids::uuid> result;
    for (QenRec& rec : field.recs()) {
        if (rec.recData() != nullptr)
            result.push_back(rec.id());
    }
    return result;
}

template <class Record>
Record merged(Record record, const Record& other) {
    record.merge(other);
    return record;
}

template <class Record>
void expectMerged(const Record& record, const Record& other, const Record& expected) {
    EXPECT_EQ(describe(merged(record, other)), describe(expected));
}

/// Lets every allocation of a merge fail, one after the other. The record may be in these states,
/// each in its turn and the last of them with memory enough, and nothing may leak.
template <class Record>
void mergeShortOfMemory(const Record& here, const Record& there,
                        const std::vector<std::string>& states) {
    const std::string unchanged = describe(there);
    std::size_t state = 0;
    bool failed = true;
    for (std::size_t successes = 0; failed; ++successes) {
        SCOPED_TRACE(successes);
        const LivingMemory before = livingMemory();
        {
            Record record = here;
            failed = runsOutOfMemory(successes, [&] { record.merge(there); });
            while (state < states.size() && describe(record) != states[state])
                ++state;
            ASSERT_LT(state, states.size()) << describe(record);
        }
        EXPECT_EQ(livingMemory(), before);
    }
    EXPECT_EQ(state, states.size() - 1);
    EXPECT_EQ(describe(there), unchanged);
}

// Two versions of a field: geometry 31 and rec 41 are in both, with different content.

inline QenField fieldHere(unsigned id = 21) {
    return field(id, "field here", 500, {geometry(32, "here"), geometry(31, "here")},
                 {rec(42, "here"), rec(41, "here")});
}

inline QenField fieldThere(unsigned id = 21) {
    return field(id, "field there", 600,
                 {geometry(33, "there"), geometry(31, "there"), geometry(34, "there")},
                 {rec(43, "there"), rec(41, "there"), rec(44, "there")});
}

inline QenField fieldHereWithThere(unsigned id = 21) {
    return field(
        id, "field here", 500,
        {geometry(32, "here"), geometry(31, "here"), geometry(33, "there"), geometry(34, "there")},
        {rec(42, "here"), rec(41, "here"), rec(43, "there"), rec(44, "there")});
}

inline QenField fieldThereWithHere(unsigned id = 21) {
    return field(
        id, "field there", 600,
        {geometry(33, "there"), geometry(31, "there"), geometry(34, "there"), geometry(32, "here")},
        {rec(43, "there"), rec(41, "there"), rec(44, "there"), rec(42, "here")});
}

/// A grower with farms 10 and 11; the latter has the fields 22 and 21.
inline QenGrower growerHere() {
    return grower(1, "grower here",
                  {farm(10, "farm only here", 700, {field(20, "field only here", 500)}),
                   farm(11, "farm here", 700, {field(22, "also only here", 500), fieldHere()})});
}

/// Another version of it with farms 11 and 12; the former has the fields 21 and 23.
inline QenGrower growerThere() {
    return grower(1, "grower there",
                  {farm(11, "farm there", 800, {fieldThere(), field(23, "only there", 600)}),
                   farm(12, "farm only there", 800,
                        {field(24, "field only there", 600, {}, {rec(45, "there")})})});
}

} // namespace test::trees

#endif
