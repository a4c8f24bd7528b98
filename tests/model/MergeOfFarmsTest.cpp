#include "tests/model/MergeTrees.h"

namespace {

using std::string;
using test::describe;
using namespace test::trees;

} // namespace

TEST(MergeOfFarms, KeepsTheOrderAndTakesOverTheIncomingFieldsMergedWithItsOwn) {
    const QenFarm here = farm(11, "farm here", 700,
                              {field(22, "only here", 500), fieldHere(), field(25, "last", 500)});
    const QenFarm there =
        farm(11, "farm there", 800,
             {field(23, "first new", 600), fieldThere(), field(20, "second new", 600)});
    expectMerged(here, there,
                 farm(11, "farm here", 700,
                      {field(22, "only here", 500), fieldThereWithHere(), field(25, "last", 500),
                       field(23, "first new", 600), field(20, "second new", 600)}));
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
    expectMerged(here, there, there);
}

TEST(MergeOfFarms, TakesTheIncomingContentOfAGeometryThatBothHold) {
    const QenFarm here = farm(11, "farm", 700, {field(21, "f", 500, {geometry(31, "here")})});
    const QenFarm there = farm(11, "farm", 700, {field(21, "f", 500, {geometry(31, "there")})});
    expectMerged(here, there, there);
}

TEST(MergeOfFarms, OfDifferentIdsChangesNothing) {
    const QenFarm here = farm(11, "here", 700, {fieldHere()});
    expectMerged(here, farm(12, "there", 800, {fieldThere()}), here);
}

TEST(MergeOfFarms, OfDifferentGrowersIsAMergeAllTheSame) {
    expectMerged(farm(11, "here", 700), farm(11, "there", 800, {fieldThere()}),
                 farm(11, "here", 700, {fieldThere()}));
}

TEST(MergeOfFarms, TheSecondOfTwoIncomingFieldsWithOneIdAbsorbsTheFirst) {
    expectMerged(farm(11, "here", 700), farm(11, "there", 800, {fieldHere(), fieldThere()}),
                 farm(11, "here", 700, {fieldThereWithHere()}));
}

TEST(MergeOfFarms, TwoIncomingFieldsWithAPresentIdAbsorbIt) {
    const QenFarm here = farm(11, "here", 700, {field(21, "here", 500, {}, {rec(41, "here")})});
    const QenFarm there = farm(11, "there", 800,
                               {field(21, "first", 600, {}, {rec(42, "first"), rec(41, "first")}),
                                field(21, "second", 650, {}, {rec(43, "second")})});
    expectMerged(here, there,
                 farm(11, "here", 700,
                      {field(21, "second", 650, {},
                             {rec(43, "second"), rec(42, "first"), rec(41, "first")})}));
}

TEST(MergeOfFarms, OfFieldsThatItHoldsTwiceOnlyTheFirstIsReplaced) {
    const QenField second = field(21, "second", 510, {}, {rec(49, "second")});
    const QenFarm here = farm(11, "here", 700, {fieldHere(), field(22, "x", 500), second});
    expectMerged(here, farm(11, "there", 800, {fieldThere()}),
                 farm(11, "here", 700, {fieldThereWithHere(), field(22, "x", 500), second}));
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

TEST(MergeOfFarms, WithoutMemoryKeepsTheFieldsAddedSoFar) {
    const QenField own = field(22, "own", 500);
    const QenField added = field(23, "new", 600);
    mergeShortOfMemory(farm(11, "farm", 700, {own, fieldHere()}),
                       farm(11, "farm", 800, {added, fieldThere()}),
                       {describe(farm(11, "farm", 700, {own, fieldHere()})),
                        describe(farm(11, "farm", 700, {own, fieldHere(), added})),
                        describe(farm(11, "farm", 700, {own, fieldThereWithHere(), added}))});
}
