#include "tests/model/MergeTrees.h"

namespace {

using test::describe;
using namespace test::trees;

} // namespace

TEST(MergeOfGrowers, GivesTheWholeTreeOfBothWithWinnersThatAlternate) {
    expectMerged(growerHere(), growerThere(),
                 grower(1, "grower here",
                        {farm(10, "farm only here", 700, {field(20, "field only here", 500)}),
                         farm(11, "farm there", 800,
                              {fieldHereWithThere(), field(23, "only there", 600),
                               field(22, "also only here", 500)}),
                         farm(12, "farm only there", 800,
                              {field(24, "field only there", 600, {}, {rec(45, "there")})})}));
}

TEST(MergeOfGrowers, OfDifferentIdsChangesNothingEvenIfFarmsOverlap) {
    QenGrower there = grower(2, "grower there");
    there.farms() = growerThere().farms();
    expectMerged(growerHere(), there, growerHere());
}

TEST(MergeOfGrowers, WithACopyOfItselfChangesNothing) {
    expectMerged(growerHere(), growerHere(), growerHere());
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
    expectMerged(here, there,
                 grower(1, "here", {farm(10, "A", 700), farm(11, "B'", 800), farm(12, "C", 800)}));
}

TEST(MergeOfGrowers, PutsTheIncomingFarmsFieldsFirst) {
    const QenGrower here =
        grower(1, "here", {farm(11, "B", 700, {field(21, "f1", 500), field(22, "f2", 500)})});
    const QenGrower there =
        grower(1, "there", {farm(11, "B'", 800, {field(22, "f2'", 600), field(23, "f3", 600)})});
    expectMerged(
        here, there,
        grower(1, "here",
               {farm(11, "B'", 800,
                     {field(22, "f2", 500), field(23, "f3", 600), field(21, "f1", 500)})}));
}

TEST(MergeOfGrowers, KeepsTheContentOfARecThatBothHold) {
    const QenField here = field(21, "f", 500, {}, {rec(41, "here")});
    const QenField there = field(21, "f", 500, {}, {rec(41, "there")});
    expectMerged(grower(1, "g", {farm(11, "farm", 700, {here})}),
                 grower(1, "g", {farm(11, "farm", 700, {there})}),
                 grower(1, "g", {farm(11, "farm", 700, {here})}));
}

TEST(MergeOfGrowers, KeepsTheContentOfAGeometryThatBothHold) {
    const QenField here = field(21, "f", 500, {geometry(31, "here")});
    const QenField there = field(21, "f", 500, {geometry(31, "there")});
    expectMerged(grower(1, "g", {farm(11, "farm", 700, {here})}),
                 grower(1, "g", {farm(11, "farm", 700, {there})}),
                 grower(1, "g", {farm(11, "farm", 700, {here})}));
}

TEST(MergeOfGrowers, TheSecondOfTwoIncomingFarmsWithOneIdAbsorbsTheFirst) {
    const QenFarm first = farm(12, "first", 800, {field(22, "only in first", 600), fieldThere()});
    const QenFarm second = farm(12, "second", 900, {fieldHere()});
    const QenFarm absorbed =
        farm(12, "second", 900, {fieldThereWithHere(), field(22, "only in first", 600)});
    expectMerged(grower(1, "here", {farm(11, "own", 700)}),
                 grower(1, "there", {first, farm(13, "x", 800), second}),
                 grower(1, "here", {farm(11, "own", 700), absorbed, farm(13, "x", 800)}));
}

TEST(MergeOfGrowers, TwoIncomingFarmsWithAPresentIdAbsorbIt) {
    const QenGrower here = grower(1, "here", {farm(11, "here", 700, {field(21, "f1", 500)})});
    const QenGrower there = grower(1, "there",
                                   {farm(11, "first", 800, {field(22, "f2", 600)}),
                                    farm(11, "second", 900, {field(23, "f3", 600)})});
    expectMerged(
        here, there,
        grower(1, "here",
               {farm(11, "second", 900,
                     {field(23, "f3", 600), field(22, "f2", 600), field(21, "f1", 500)})}));
}

TEST(MergeOfGrowers, OfFarmsThatItHoldsTwiceOnlyTheFirstIsReplaced) {
    const QenFarm second = farm(11, "second", 710, {field(29, "in second", 500)});
    const QenGrower here = grower(1, "here", {farm(11, "first", 700), second});
    expectMerged(here, grower(1, "there", {farm(11, "there", 800)}),
                 grower(1, "here", {farm(11, "there", 800), second}));
}

TEST(MergeOfGrowers, KeepsGeometriesThatAFieldHoldsTwice) {
    const QenField twice = field(21, "f", 500, {geometry(31, "first"), geometry(31, "second")});
    const QenField once = field(21, "f'", 600, {geometry(31, "there"), geometry(32, "there")});
    const QenField both =
        field(21, "f", 500, {geometry(31, "first"), geometry(31, "second"), geometry(32, "there")});
    expectMerged(grower(1, "g", {farm(11, "farm", 700, {twice})}),
                 grower(1, "g", {farm(11, "farm", 700, {once})}),
                 grower(1, "g", {farm(11, "farm", 700, {both})}));
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

TEST(MergeOfGrowers, WithoutMemoryKeepsTheFarmsAddedSoFar) {
    QenGrower firstFarm = growerThere();
    firstFarm.farms().pop_back();
    mergeShortOfMemory(growerHere(), growerThere(),
                       {describe(growerHere()), describe(merged(growerHere(), firstFarm)),
                        describe(merged(growerHere(), growerThere()))});
}
