#include "tests/model/MergeTrees.h"

namespace {

using std::string;
using test::describe;
using namespace test::trees;

} // namespace

TEST(MergeOfFields, KeepsEverythingAndAppendsWhatIsNew) {
    expectMerged(fieldHere(), fieldThere(), fieldHereWithThere());
}

TEST(MergeOfFields, KeepsTheNameAndAllIdentifiers) {
    const QenField result = merged(field(21, "here", 500), field(21, "there", 600));
    EXPECT_EQ(result.name(), "here");
    EXPECT_EQ(result.id(), test::uuid(21));
    EXPECT_EQ(result.growerId(), test::uuid(501));
    EXPECT_EQ(result.farmId(), test::uuid(502));
}

TEST(MergeOfFields, KeepsTheContentOfARecThatBothHold) {
    expectMerged(field(21, "f", 500, {}, {rec(41, "here")}),
                 field(21, "f", 500, {}, {rec(41, "there")}),
                 field(21, "f", 500, {}, {rec(41, "here")}));
}

TEST(MergeOfFields, KeepsTheContentOfAGeometryThatBothHold) {
    expectMerged(field(21, "f", 500, {geometry(31, "here")}),
                 field(21, "f", 500, {geometry(31, "there")}),
                 field(21, "f", 500, {geometry(31, "here")}));
}

TEST(MergeOfFields, OfDifferentIdsChangesNothing) {
    expectMerged(fieldHere(21), fieldThere(22), fieldHere(21));
}

TEST(MergeOfFields, OfSeveralIncomingRecsWithOneIdAddsTheFirst) {
    expectMerged(field(21, "f", 500, {}, {rec(41, "here")}),
                 field(21, "f", 500, {},
                       {rec(42, "first"), rec(42, "second"), rec(41, "x"), rec(42, "3rd")}),
                 field(21, "f", 500, {}, {rec(41, "here"), rec(42, "first")}));
}

TEST(MergeOfFields, OfSeveralIncomingGeometriesWithOneIdAddsTheFirst) {
    expectMerged(field(21, "f", 500, {geometry(31, "here")}),
                 field(21, "f", 500, {geometry(32, "first"), geometry(32, "second")}),
                 field(21, "f", 500, {geometry(31, "here"), geometry(32, "first")}));
}

TEST(MergeOfFields, KeepsTheGeometriesThatItHoldsTwice) {
    const QenField here =
        field(21, "f", 500, {geometry(31, "first"), geometry(32, "x"), geometry(31, "second")});
    const QenField there = field(21, "f", 500, {geometry(31, "there"), geometry(33, "there")});
    expectMerged(here, there,
                 field(21, "f", 500,
                       {geometry(31, "first"), geometry(32, "x"), geometry(31, "second"),
                        geometry(33, "there")}));
}

TEST(MergeOfFields, KeepsTheRecsThatItHoldsTwice) {
    const QenField here = field(21, "f", 500, {}, {rec(41, "first"), rec(41, "second")});
    const QenField there = field(21, "f", 500, {}, {rec(41, "there"), rec(42, "there")});
    expectMerged(here, there,
                 field(21, "f", 500, {}, {rec(41, "first"), rec(41, "second"), rec(42, "there")}));
}

TEST(MergeOfFields, GoesByTheRecsIdAndNotByThatOfItsProductData) {
    QenRec here = rec(41, "here");
    QenRec there = rec(42, "there");
    delete there.recData();
    there.setRecData(new PlantingRec(test::uuid(1041), 1, "there", 2, "c", 3, "v", 4, "seeds"));
    ASSERT_EQ(here.recData()->recId(), there.recData()->recId());
    expectMerged(field(21, "f", 500, {}, {here}), field(21, "f", 500, {}, {there}),
                 field(21, "f", 500, {}, {here, there}));
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
