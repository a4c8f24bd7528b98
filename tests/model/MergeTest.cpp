/// @file
/// The rules of merging, on trees written out by hand. MergeModelTest.cpp has the random ones.

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"
#include "tests/support/WatchedMemory.h"

namespace {

using std::string;
using test::describe;

// Children are put into the lists directly, so that those with the same identifier all get in.

/// A rec whose name is found in its product data too.
QenRec rec(unsigned id, const string& name) {
    QenRec result;
    result.setId(test::uuid(id));
    result.setName(name);
    result.setEditDate("edited: " + name);
    result.setRecData(
        new PlantingRec(test::uuid(id + 1000), 1, name, 2, "company", 3, "variety", 4, "seeds"));
    return result;
}

QenFieldGeometry geometry(unsigned id, const string& date) {
    return QenFieldGeometry(test::uuid(id), date, test::uuid(id + 1000), LLA{id + 0.5, 2.5, 3.5});
}

/// @param parents what the identifiers of the grower and the farm are made of
QenField field(unsigned id, const string& name, unsigned parents,
               const std::vector<QenFieldGeometry>& geometries = {},
               const std::vector<QenRec>& recs = {}) {
    QenField result(name, test::uuid(id), test::uuid(parents + 1), test::uuid(parents + 2));
    for (const QenFieldGeometry& geometry : geometries)
        result.addFieldGeometry(geometry);
    result.recs() = recs;
    return result;
}

QenFarm farm(unsigned id, const string& name, unsigned growerId,
             const std::vector<QenField>& fields = {}) {
    QenFarm result(name, test::uuid(id), test::uuid(growerId));
    result.fields() = fields;
    return result;
}

QenGrower grower(unsigned id, const string& name, const std::vector<QenFarm>& farms = {}) {
    QenGrower result(name, test::uuid(id));
    result.farms() = farms;
    return result;
}

/// Gives every rec of a field product data of a kind that copies drop.
void makeKindsUnknown(QenField& field) {
    for (QenRec& rec : field.recs()) {
        delete rec.recData();
        rec.setRecData(new QenRecData(test::uuid(99), static_cast<RecType>(5)));
    }
}

/// The ids of the recs that have product data, in order.
std::vector<boost::uuids::uuid> recsWithData(QenField& field) {
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

/// Lets every allocation of a merge fail, one after the other. The record may be in these states,
/// each in its turn and the last of them with memory enough, and nothing may leak.
template <class Record>
void mergeShortOfMemory(const Record& here, const Record& there,
                        const std::vector<string>& states) {
    const string unchanged = describe(there);
    std::size_t state = 0;
    bool failed = true;
    for (std::size_t successes = 0; failed; ++successes) {
        SCOPED_TRACE(successes);
        const test::LivingMemory before = test::livingMemory();
        {
            Record record = here;
            failed = test::runsOutOfMemory(successes, [&] { record.merge(there); });
            while (state < states.size() && describe(record) != states[state])
                ++state;
            ASSERT_LT(state, states.size()) << describe(record);
        }
        EXPECT_EQ(test::livingMemory(), before);
    }
    EXPECT_EQ(state, states.size() - 1);
    EXPECT_EQ(describe(there), unchanged);
}

// Two versions of a field: geometry 31 and rec 41 are in both, with different content.

QenField fieldHere(unsigned id = 21) {
    return field(id, "field here", 500, {geometry(32, "here"), geometry(31, "here")},
                 {rec(42, "here"), rec(41, "here")});
}

QenField fieldThere(unsigned id = 21) {
    return field(id, "field there", 600,
                 {geometry(33, "there"), geometry(31, "there"), geometry(34, "there")},
                 {rec(43, "there"), rec(41, "there"), rec(44, "there")});
}

QenField fieldHereWithThere(unsigned id = 21) {
    return field(
        id, "field here", 500,
        {geometry(32, "here"), geometry(31, "here"), geometry(33, "there"), geometry(34, "there")},
        {rec(42, "here"), rec(41, "here"), rec(43, "there"), rec(44, "there")});
}

QenField fieldThereWithHere(unsigned id = 21) {
    return field(
        id, "field there", 600,
        {geometry(33, "there"), geometry(31, "there"), geometry(34, "there"), geometry(32, "here")},
        {rec(43, "there"), rec(41, "there"), rec(44, "there"), rec(42, "here")});
}

/// A grower with farms 10 and 11; the latter has the fields 22 and 21.
QenGrower growerHere() {
    return grower(1, "grower here",
                  {farm(10, "farm only here", 700, {field(20, "field only here", 500)}),
                   farm(11, "farm here", 700, {field(22, "also only here", 500), fieldHere()})});
}

/// Another version of it with farms 11 and 12; the former has the fields 21 and 23.
QenGrower growerThere() {
    return grower(1, "grower there",
                  {farm(11, "farm there", 800, {fieldThere(), field(23, "only there", 600)}),
                   farm(12, "farm only there", 800,
                        {field(24, "field only there", 600, {}, {rec(45, "there")})})});
}

} // namespace

TEST(MergeOfFields, KeepsEverythingAndAppendsWhatIsNew) {
    EXPECT_EQ(describe(merged(fieldHere(), fieldThere())), describe(fieldHereWithThere()));
}

TEST(MergeOfFields, KeepsTheNameAndAllIdentifiers) {
    const QenField result = merged(field(21, "here", 500), field(21, "there", 600));
    EXPECT_EQ(result.name(), "here");
    EXPECT_EQ(result.id(), test::uuid(21));
    EXPECT_EQ(result.growerId(), test::uuid(501));
    EXPECT_EQ(result.farmId(), test::uuid(502));
}

TEST(MergeOfFields, KeepsTheContentOfARecThatBothHold) {
    EXPECT_EQ(describe(merged(field(21, "f", 500, {}, {rec(41, "here")}),
                              field(21, "f", 500, {}, {rec(41, "there")}))),
              describe(field(21, "f", 500, {}, {rec(41, "here")})));
}

TEST(MergeOfFields, KeepsTheContentOfAGeometryThatBothHold) {
    EXPECT_EQ(describe(merged(field(21, "f", 500, {geometry(31, "here")}),
                              field(21, "f", 500, {geometry(31, "there")}))),
              describe(field(21, "f", 500, {geometry(31, "here")})));
}

TEST(MergeOfFields, OfDifferentIdsChangesNothing) {
    EXPECT_EQ(describe(merged(fieldHere(21), fieldThere(22))), describe(fieldHere(21)));
}

TEST(MergeOfFields, OfSeveralIncomingRecsWithOneIdAddsTheFirst) {
    EXPECT_EQ(describe(merged(
                  field(21, "f", 500, {}, {rec(41, "here")}),
                  field(21, "f", 500, {},
                        {rec(42, "first"), rec(42, "second"), rec(41, "x"), rec(42, "3rd")}))),
              describe(field(21, "f", 500, {}, {rec(41, "here"), rec(42, "first")})));
}

TEST(MergeOfFields, OfSeveralIncomingGeometriesWithOneIdAddsTheFirst) {
    EXPECT_EQ(
        describe(merged(field(21, "f", 500, {geometry(31, "here")}),
                        field(21, "f", 500, {geometry(32, "first"), geometry(32, "second")}))),
        describe(field(21, "f", 500, {geometry(31, "here"), geometry(32, "first")})));
}

TEST(MergeOfFields, KeepsTheGeometriesThatItHoldsTwice) {
    const QenField here =
        field(21, "f", 500, {geometry(31, "first"), geometry(32, "x"), geometry(31, "second")});
    const QenField there = field(21, "f", 500, {geometry(31, "there"), geometry(33, "there")});
    EXPECT_EQ(describe(merged(here, there)),
              describe(field(21, "f", 500,
                             {geometry(31, "first"), geometry(32, "x"), geometry(31, "second"),
                              geometry(33, "there")})));
}

TEST(MergeOfFields, KeepsTheRecsThatItHoldsTwice) {
    const QenField here = field(21, "f", 500, {}, {rec(41, "first"), rec(41, "second")});
    const QenField there = field(21, "f", 500, {}, {rec(41, "there"), rec(42, "there")});
    EXPECT_EQ(
        describe(merged(here, there)),
        describe(field(21, "f", 500, {}, {rec(41, "first"), rec(41, "second"), rec(42, "there")})));
}

TEST(MergeOfFields, GoesByTheRecsIdAndNotByThatOfItsProductData) {
    QenRec here = rec(41, "here");
    QenRec there = rec(42, "there");
    delete there.recData();
    there.setRecData(new PlantingRec(test::uuid(1041), 1, "there", 2, "c", 3, "v", 4, "seeds"));
    ASSERT_EQ(here.recData()->recId(), there.recData()->recId());
    EXPECT_EQ(describe(merged(field(21, "f", 500, {}, {here}), field(21, "f", 500, {}, {there}))),
              describe(field(21, "f", 500, {}, {here, there})));
}

TEST(MergeOfFields, GivesTheNewRecsProductDataOfTheirOwn) {
    QenField here = field(21, "f", 500);
    QenField there = fieldThere();
    here.merge(there);
    ASSERT_EQ(here.recs().size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NE(here.recs()[i].recData(), there.recs()[i].recData());
}

TEST(MergeOfFields, DropsProductDataOfAnUnknownKindFromIncomingRecsAlone) {
    QenField here = fieldHere();
    here.recs().reserve(10); // A list that grows may copy its elements.
    makeKindsUnknown(here);
    QenRecData* const data = here.recs()[0].recData();
    QenField there = fieldThere();
    makeKindsUnknown(there);
    here.merge(std::move(there));
    ASSERT_EQ(here.recs().size(), 4U);
    EXPECT_EQ(recsWithData(here), (std::vector{test::uuid(42), test::uuid(41)}));
    EXPECT_EQ(here.recs()[0].recData(), data);
}

TEST(MergeOfFields, WithItselfChangesNothing) {
    QenField here = fieldHere();
    here.merge(here);
    EXPECT_EQ(describe(here), describe(fieldHere()));
}

TEST(MergeOfFields, OfNilIdsIsAMergeAsAnyOther) {
    QenField result;
    result.merge(field(0, "there", 600, {geometry(31, "there")}, {rec(41, "there")}));
    QenField expected;
    expected.addFieldGeometry(geometry(31, "there"));
    expected.addRec(rec(41, "there"));
    EXPECT_EQ(describe(result), describe(expected));
}

TEST(MergeOfFarms, KeepsTheOrderAndTakesOverTheIncomingFieldsMergedWithItsOwn) {
    const QenFarm here = farm(11, "farm here", 700,
                              {field(22, "only here", 500), fieldHere(), field(25, "last", 500)});
    const QenFarm there =
        farm(11, "farm there", 800,
             {field(23, "first new", 600), fieldThere(), field(20, "second new", 600)});
    EXPECT_EQ(
        describe(merged(here, there)),
        describe(farm(11, "farm here", 700,
                      {field(22, "only here", 500), fieldThereWithHere(), field(25, "last", 500),
                       field(23, "first new", 600), field(20, "second new", 600)})));
}

TEST(MergeOfFarms, KeepsItsNameAndIdentifiers) {
    QenFarm result = merged(farm(11, "here", 700), farm(11, "there", 800));
    EXPECT_EQ(result.name(), "here");
    EXPECT_EQ(result.id(), test::uuid(11));
    EXPECT_EQ(result.growerId(), test::uuid(700));
}

TEST(MergeOfFarms, TakesTheIncomingContentOfARecThatBothHold) {
    const QenFarm here = farm(11, "farm", 700, {field(21, "f", 500, {}, {rec(41, "here")})});
    const QenFarm there = farm(11, "farm", 700, {field(21, "f", 500, {}, {rec(41, "there")})});
    EXPECT_EQ(describe(merged(here, there)), describe(there));
}

TEST(MergeOfFarms, TakesTheIncomingContentOfAGeometryThatBothHold) {
    const QenFarm here = farm(11, "farm", 700, {field(21, "f", 500, {geometry(31, "here")})});
    const QenFarm there = farm(11, "farm", 700, {field(21, "f", 500, {geometry(31, "there")})});
    EXPECT_EQ(describe(merged(here, there)), describe(there));
}

TEST(MergeOfFarms, OfDifferentIdsChangesNothing) {
    const QenFarm here = farm(11, "here", 700, {fieldHere()});
    EXPECT_EQ(describe(merged(here, farm(12, "there", 800, {fieldThere()}))), describe(here));
}

TEST(MergeOfFarms, OfDifferentGrowersIsAMergeAllTheSame) {
    EXPECT_EQ(describe(merged(farm(11, "here", 700), farm(11, "there", 800, {fieldThere()}))),
              describe(farm(11, "here", 700, {fieldThere()})));
}

TEST(MergeOfFarms, TheSecondOfTwoIncomingFieldsWithOneIdAbsorbsTheFirst) {
    EXPECT_EQ(describe(merged(farm(11, "here", 700),
                              farm(11, "there", 800, {fieldHere(), fieldThere()}))),
              describe(farm(11, "here", 700, {fieldThereWithHere()})));
}

TEST(MergeOfFarms, TwoIncomingFieldsWithAPresentIdAbsorbIt) {
    const QenFarm here = farm(11, "here", 700, {field(21, "here", 500, {}, {rec(41, "here")})});
    const QenFarm there = farm(11, "there", 800,
                               {field(21, "first", 600, {}, {rec(42, "first"), rec(41, "first")}),
                                field(21, "second", 650, {}, {rec(43, "second")})});
    EXPECT_EQ(describe(merged(here, there)),
              describe(farm(11, "here", 700,
                            {field(21, "second", 650, {},
                                   {rec(43, "second"), rec(42, "first"), rec(41, "first")})})));
}

TEST(MergeOfFarms, OfFieldsThatItHoldsTwiceOnlyTheFirstIsReplaced) {
    const QenField second = field(21, "second", 510, {}, {rec(49, "second")});
    const QenFarm here = farm(11, "here", 700, {fieldHere(), field(22, "x", 500), second});
    EXPECT_EQ(describe(merged(here, farm(11, "there", 800, {fieldThere()}))),
              describe(farm(11, "here", 700, {fieldThereWithHere(), field(22, "x", 500), second})));
}

TEST(MergeOfFarms, DropsProductDataOfAnUnknownKindFromEveryFieldThatIncomingOnesTouch) {
    QenFarm here = farm(11, "here", 700);
    for (const unsigned id : {20U, 21U}) {
        here.fields().push_back(fieldHere(id));
        makeKindsUnknown(here.fields().back());
    }
    QenRecData* const untouched = here.fields()[0].recs()[0].recData();
    QenFarm there = farm(11, "there", 800);
    for (const unsigned id : {21U, 22U}) {
        there.fields().push_back(fieldThere(id));
        makeKindsUnknown(there.fields().back());
    }
    here.merge(std::move(there));
    ASSERT_EQ(here.fields().size(), 3U);
    EXPECT_EQ(here.fields()[0].recs()[0].recData(), untouched);
    for (const std::size_t i : {1U, 2U}) {
        EXPECT_FALSE(here.fields()[i].recs().empty());
        EXPECT_EQ(recsWithData(here.fields()[i]), std::vector<boost::uuids::uuid>{});
    }
}

TEST(MergeOfFarms, WithItselfChangesNothing) {
    QenFarm here = farm(11, "here", 700, {field(22, "x", 500), fieldHere(), fieldThere(23)});
    const string before = describe(here);
    here.merge(here);
    EXPECT_EQ(describe(here), before);
}

TEST(MergeOfGrowers, GivesTheWholeTreeOfBothWithWinnersThatAlternate) {
    EXPECT_EQ(
        describe(merged(growerHere(), growerThere())),
        describe(grower(1, "grower here",
                        {farm(10, "farm only here", 700, {field(20, "field only here", 500)}),
                         farm(11, "farm there", 800,
                              {fieldHereWithThere(), field(23, "only there", 600),
                               field(22, "also only here", 500)}),
                         farm(12, "farm only there", 800,
                              {field(24, "field only there", 600, {}, {rec(45, "there")})})})));
}

TEST(MergeOfGrowers, OfDifferentIdsChangesNothingEvenIfFarmsOverlap) {
    QenGrower there = grower(2, "grower there");
    there.farms() = growerThere().farms();
    EXPECT_EQ(describe(merged(growerHere(), there)), describe(growerHere()));
}

TEST(MergeOfGrowers, WithACopyOfItselfChangesNothing) {
    EXPECT_EQ(describe(merged(growerHere(), growerHere())), describe(growerHere()));
    QenGrower here = growerHere();
    here.merge(here);
    EXPECT_EQ(describe(here), describe(growerHere()));
}

TEST(MergeOfGrowers, KeepsItsNameAndId) {
    const QenGrower result = merged(grower(1, "here"), grower(1, "there"));
    EXPECT_EQ(result.name(), "here");
    EXPECT_EQ(result.id(), test::uuid(1));
}

TEST(MergeOfGrowers, PutsFarmsInThePlaceOfItsOwnAndNewOnesAtTheEnd) {
    const QenGrower here = grower(1, "here", {farm(10, "A", 700), farm(11, "B", 700)});
    const QenGrower there = grower(1, "there", {farm(11, "B'", 800), farm(12, "C", 800)});
    EXPECT_EQ(
        describe(merged(here, there)),
        describe(grower(1, "here", {farm(10, "A", 700), farm(11, "B'", 800), farm(12, "C", 800)})));
}

TEST(MergeOfGrowers, PutsTheIncomingFarmsFieldsFirst) {
    const QenGrower here =
        grower(1, "here", {farm(11, "B", 700, {field(21, "f1", 500), field(22, "f2", 500)})});
    const QenGrower there =
        grower(1, "there", {farm(11, "B'", 800, {field(22, "f2'", 600), field(23, "f3", 600)})});
    EXPECT_EQ(describe(merged(here, there)),
              describe(grower(
                  1, "here",
                  {farm(11, "B'", 800,
                        {field(22, "f2", 500), field(23, "f3", 600), field(21, "f1", 500)})})));
}

TEST(MergeOfGrowers, KeepsTheContentOfARecThatBothHold) {
    const QenField here = field(21, "f", 500, {}, {rec(41, "here")});
    const QenField there = field(21, "f", 500, {}, {rec(41, "there")});
    EXPECT_EQ(describe(merged(grower(1, "g", {farm(11, "farm", 700, {here})}),
                              grower(1, "g", {farm(11, "farm", 700, {there})}))),
              describe(grower(1, "g", {farm(11, "farm", 700, {here})})));
}

TEST(MergeOfGrowers, KeepsTheContentOfAGeometryThatBothHold) {
    const QenField here = field(21, "f", 500, {geometry(31, "here")});
    const QenField there = field(21, "f", 500, {geometry(31, "there")});
    EXPECT_EQ(describe(merged(grower(1, "g", {farm(11, "farm", 700, {here})}),
                              grower(1, "g", {farm(11, "farm", 700, {there})}))),
              describe(grower(1, "g", {farm(11, "farm", 700, {here})})));
}

TEST(MergeOfGrowers, TheSecondOfTwoIncomingFarmsWithOneIdAbsorbsTheFirst) {
    const QenFarm first = farm(12, "first", 800, {field(22, "only in first", 600), fieldThere()});
    const QenFarm second = farm(12, "second", 900, {fieldHere()});
    const QenFarm absorbed =
        farm(12, "second", 900, {fieldThereWithHere(), field(22, "only in first", 600)});
    EXPECT_EQ(describe(merged(grower(1, "here", {farm(11, "own", 700)}),
                              grower(1, "there", {first, farm(13, "x", 800), second}))),
              describe(grower(1, "here", {farm(11, "own", 700), absorbed, farm(13, "x", 800)})));
}

TEST(MergeOfGrowers, TwoIncomingFarmsWithAPresentIdAbsorbIt) {
    const QenGrower here = grower(1, "here", {farm(11, "here", 700, {field(21, "f1", 500)})});
    const QenGrower there = grower(1, "there",
                                   {farm(11, "first", 800, {field(22, "f2", 600)}),
                                    farm(11, "second", 900, {field(23, "f3", 600)})});
    EXPECT_EQ(describe(merged(here, there)),
              describe(grower(
                  1, "here",
                  {farm(11, "second", 900,
                        {field(23, "f3", 600), field(22, "f2", 600), field(21, "f1", 500)})})));
}

TEST(MergeOfGrowers, OfFarmsThatItHoldsTwiceOnlyTheFirstIsReplaced) {
    const QenFarm second = farm(11, "second", 710, {field(29, "in second", 500)});
    const QenGrower here = grower(1, "here", {farm(11, "first", 700), second});
    EXPECT_EQ(describe(merged(here, grower(1, "there", {farm(11, "there", 800)}))),
              describe(grower(1, "here", {farm(11, "there", 800), second})));
}

TEST(MergeOfGrowers, KeepsGeometriesThatAFieldHoldsTwice) {
    const QenField twice = field(21, "f", 500, {geometry(31, "first"), geometry(31, "second")});
    const QenField once = field(21, "f'", 600, {geometry(31, "there"), geometry(32, "there")});
    const QenField both =
        field(21, "f", 500, {geometry(31, "first"), geometry(31, "second"), geometry(32, "there")});
    EXPECT_EQ(describe(merged(grower(1, "g", {farm(11, "farm", 700, {twice})}),
                              grower(1, "g", {farm(11, "farm", 700, {once})}))),
              describe(grower(1, "g", {farm(11, "farm", 700, {both})})));
}

TEST(MergeOfGrowers, DropsProductDataOfAnUnknownKindFromEveryFarmThatIncomingOnesTouch) {
    QenGrower here = growerHere();
    makeKindsUnknown(here.farms()[1].fields()[1]);
    QenGrower there = growerThere();
    makeKindsUnknown(there.farms()[0].fields()[0]);
    makeKindsUnknown(there.farms()[1].fields()[0]);
    here.merge(std::move(there));
    QenField& both = here.farms().at(1).fields().at(0);
    EXPECT_EQ(both.recs().size(), 4U);
    EXPECT_EQ(recsWithData(both), std::vector<boost::uuids::uuid>{});
    QenField& added = here.farms().at(2).fields().at(0);
    EXPECT_EQ(added.recs().size(), 1U);
    EXPECT_EQ(recsWithData(added), std::vector<boost::uuids::uuid>{});
}

TEST(MergeOfGrowers, LeavesTheOtherGrowerAlone) {
    QenGrower here = growerHere();
    QenGrower there = growerThere();
    here.merge(there);
    EXPECT_EQ(describe(there), describe(growerThere()));
    for (QenFarm& farm : here.farms()) {
        for (QenField& field : farm.fields()) {
            for (QenRec& rec : field.recs())
                rec.setName("changed");
        }
    }
    EXPECT_EQ(describe(there), describe(growerThere())) << "the trees share nothing";
}

TEST(Merge, ReleasesEverythingThatItReplaces) {
    const test::LivingMemory before = test::livingMemory();
    {
        QenGrower here = growerHere();
        here.merge(growerThere());
        here.merge(growerThere());
        here.merge(growerHere());
        here.farms()[0].merge(here.farms()[1]);
        here.farms()[1].fields()[0].merge(fieldThere());
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(MergeOfFields, WithoutMemoryKeepsWhatWasAddedSoFar) {
    const std::vector<QenFieldGeometry> newGeometries{geometry(33, "there"), geometry(34, "there")};
    const std::vector<QenRec> newRecs{rec(43, "there"), rec(44, "there")};
    std::vector<string> states;
    QenField state = fieldHere();
    states.push_back(describe(state));
    for (const QenRec& rec : newRecs) {
        state.addRec(rec);
        states.push_back(describe(state));
    }
    for (const QenFieldGeometry& geometry : newGeometries) {
        state.addFieldGeometry(geometry);
        states.push_back(describe(state));
    }
    mergeShortOfMemory(fieldHere(), fieldThere(), states);
}

TEST(MergeOfFarms, WithoutMemoryKeepsTheFieldsAddedSoFar) {
    const QenField own = field(22, "own", 500);
    const QenField added = field(23, "new", 600);
    mergeShortOfMemory(farm(11, "farm", 700, {own, fieldHere()}),
                       farm(11, "farm", 800, {added, fieldThere()}),
                       {describe(farm(11, "farm", 700, {own, fieldHere()})),
                        describe(farm(11, "farm", 700, {own, fieldHere(), added})),
                        describe(farm(11, "farm", 700, {own, fieldThereWithHere(), added}))});
}

TEST(MergeOfGrowers, WithoutMemoryKeepsTheFarmsAddedSoFar) {
    QenGrower firstFarm = growerThere();
    firstFarm.farms().pop_back();
    mergeShortOfMemory(growerHere(), growerThere(),
                       {describe(growerHere()), describe(merged(growerHere(), firstFarm)),
                        describe(merged(growerHere(), growerThere()))});
}
