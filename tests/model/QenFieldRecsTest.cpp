// The recs of a field: its list, adding to it and looking up.

#include <memory>

#include <gtest/gtest.h>

#include "tests/model/Fields.h"
#include "tests/support/Describe.h"

namespace {

using boost::uuids::uuid;
using test::describe;
using test::makeRec;
using test::recNames;
using test::recOfUnknownKind;
using test::Texts;

} // namespace

TEST(QenField, HandsOutItsListOfRecsItself) {
    QenField field;
    field.recs().push_back(makeRec(1, "first"));
    field.recs().push_back(makeRec(1, "same id"));
    EXPECT_EQ(recNames(field), (Texts{"first", "same id"}));
    field.recs()[0].setName("renamed");
    EXPECT_EQ(recNames(field), (Texts{"renamed", "same id"}));
    field.recs().clear();
    EXPECT_EQ(recNames(field), Texts{});
}

TEST(QenField, AddingARecWithANewIdAppendsIt) {
    QenField field;
    field.addRec(makeRec(2, "first"));
    field.addRec(makeRec(1, "second"));
    field.addRec(makeRec(3, "third"));
    EXPECT_EQ(recNames(field), (Texts{"first", "second", "third"}));
}

TEST(QenField, AddingARecWithAPresentIdReplacesItInPlace) {
    QenField field;
    field.addRec(makeRec(1, "first", 11));
    field.addRec(makeRec(2, "second", 12));
    field.addRec(makeRec(3, "third", 13));
    const std::unique_ptr<QenRecData> earlier(field.recs()[1].recData());

    field.addRec(makeRec(2, "new second", 22));
    EXPECT_EQ(recNames(field), (Texts{"first", "new second", "third"}));
    QenRec expected = makeRec(2, "new second", 22);
    EXPECT_EQ(describe(field.recs()[1]), describe(expected));
    EXPECT_EQ(field.rec(test::uuid(12)).name(), "");
}

TEST(QenField, AddingARecLeavesTheEarlierProductDataToTheCaller) {
    QenField field;
    field.addRec(makeRec(1, "rec", 11));
    std::unique_ptr<QenRecData> earlier(field.recs()[0].recData());
    field.addRec(makeRec(1, "rec", 12));
    EXPECT_NE(field.recs()[0].recData(), earlier.get());
    EXPECT_EQ(earlier->recId(), test::uuid(11)) << "it is still there";
}

TEST(QenField, AddingARecReplacesOnlyTheFirstOfSeveralWithItsId) {
    QenField field;
    field.recs().push_back(makeRec(1, "first"));
    field.recs().push_back(makeRec(1, "second"));
    field.addRec(makeRec(1, "new"));
    EXPECT_EQ(recNames(field), (Texts{"new", "second"}));
}

TEST(QenField, AddedRecsHaveProductDataOfTheirOwn) {
    QenRec rec = makeRec(1, "rec", 11);
    QenField field;
    field.addRec(rec);
    EXPECT_NE(field.recs()[0].recData(), rec.recData());
    EXPECT_EQ(describe(field.recs()[0]), describe(rec));
    rec.setName("changed");
    EXPECT_EQ(recNames(field), Texts{"rec"});
}

TEST(QenField, AddedRecsLoseProductDataOfAnUnknownKind) {
    ASSERT_NE(recOfUnknownKind(1).recData(), nullptr);
    QenField field;
    field.addRec(recOfUnknownKind(1));
    EXPECT_EQ(recNames(field), Texts{"unknown"});
    EXPECT_EQ(field.recs()[0].recData(), nullptr) << "a new rec";
    field.addRec(recOfUnknownKind(1));
    EXPECT_EQ(recNames(field), Texts{"unknown"});
    EXPECT_EQ(field.recs()[0].recData(), nullptr) << "a rec replaced";
}

TEST(QenField, AddedRecsLoseProductDataOfUnknownKinds) {
    for (const int kind : {-1, 0, 99}) {
        SCOPED_TRACE(kind);
        QenField field;
        field.addRec(recOfUnknownKind(1, kind));
        EXPECT_EQ(field.recs()[0].recData(), nullptr);
    }
}

TEST(QenField, FindsARecByTheRecIdOfItsProductData) {
    QenField field;
    field.addRec(makeRec(1, "first", 11));
    field.addRec(makeRec(2, "second", 12));
    QenRec expected = makeRec(2, "second", 12);
    EXPECT_EQ(describe(field.rec(test::uuid(12))), describe(expected));
}

TEST(QenField, DoesNotFindARecByItsOwnId) {
    QenField field;
    field.addRec(makeRec(1, "rec", 11));
    QenRec none = field.rec(test::uuid(1));
    EXPECT_EQ(describe(none), describe(QenRec()));
    EXPECT_EQ(none.recData(), nullptr);
}

TEST(QenField, OfRecsWhoseProductDataHasOneRecIdTheFirstIsFound) {
    QenField field;
    field.addRec(makeRec(1, "first", 11));
    field.addRec(makeRec(2, "second", 11));
    EXPECT_EQ(field.rec(test::uuid(11)).name(), "first");
}

TEST(QenField, SkipsRecsWithoutProductDataWhenItLooksForARec) {
    QenField field;
    field.addRec(makeRec(1, "without"));
    field.addRec(makeRec(2, "with", 11));
    EXPECT_EQ(field.rec(test::uuid(11)).name(), "with");
    EXPECT_EQ(field.rec(uuid{}).name(), "") << "having none is not having one with a nil recId";
}

TEST(QenField, FindsARecWhoseProductDataHasANilRecId) {
    QenField field;
    QenRec& rec = field.recs().emplace_back();
    rec.setName("rec");
    rec.setRecData(new PlantingRec(uuid{}, 1, "crop", 2, "c", 3, "v", 4, "seeds"));
    EXPECT_EQ(field.rec(uuid{}).name(), "rec");
}

TEST(QenField, TheRecFoundIsACopyWithProductDataOfItsOwn) {
    QenField field;
    field.addRec(makeRec(1, "rec", 11));
    QenRec found = field.rec(test::uuid(11));
    ASSERT_NE(found.recData(), nullptr);
    EXPECT_NE(found.recData(), field.recs()[0].recData());
    found.setName("changed");
    EXPECT_EQ(recNames(field), Texts{"rec"});
}

TEST(QenField, TheRecFoundLosesProductDataOfAnUnknownKind) {
    // A copy, as any other.
    QenField field;
    field.recs().emplace_back().setRecData(new QenRecData(test::uuid(11), RecTypeNone));
    field.recs()[0].setName("rec");
    QenRec found = field.rec(test::uuid(11));
    EXPECT_EQ(found.name(), "rec");
    EXPECT_EQ(found.recData(), nullptr);
}
