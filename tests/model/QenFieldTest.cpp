#include "model/QenField.h"

#include <algorithm>
#include <iterator>

#include <gtest/gtest.h>

#include "tests/model/Fields.h"
#include "tests/support/Describe.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"
#include "tests/support/WatchedMemory.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::describe;
using test::hasType;
using test::makeRec;
using test::recNames;
using test::Texts;

template <class Value>
using ConstGetter = test::ConstGetter<QenField, Value>;

template <class Value>
using LookUp = Value (QenField::*)(const uuid&) const;

static_assert(!std::is_polymorphic_v<QenField>, "nothing virtual, the destructor included");
static_assert(std::is_default_constructible_v<QenField>);
static_assert(
    std::is_constructible_v<QenField, const string&, const uuid&, const uuid&, const uuid&>);
static_assert(std::is_constructible_v<QenField, const string&, const uuid&, const uuid&,
                                      const uuid&, const string&, const uuid&, const uuid&, LLA&>);
static_assert(
    !std::is_constructible_v<QenField, const string&, const uuid&, const uuid&, const uuid&,
                             const string&, const uuid&, const uuid&, const LLA&>,
    "the centroid is taken by non-const reference");
static_assert(std::is_copy_constructible_v<QenField> && std::is_copy_assignable_v<QenField>);
static_assert(hasType<ConstGetter<string>>(&QenField::name));
static_assert(hasType<test::Setter<QenField, string>>(&QenField::setName));
static_assert(hasType<ConstGetter<uuid>>(&QenField::id));
static_assert(hasType<ConstGetter<uuid>>(&QenField::growerId));
static_assert(hasType<ConstGetter<uuid>>(&QenField::farmId));
static_assert(hasType<LookUp<string>>(&QenField::geometryDate));
static_assert(hasType<LookUp<string>>(&QenField::geometryFileName));
static_assert(hasType<LookUp<uuid>>(&QenField::geometryFileId));
static_assert(hasType<LookUp<LLA>>(&QenField::centroid));
static_assert(hasType<ConstGetter<std::vector<QenFieldGeometry>>>(&QenField::geometries),
              "a copy, unlike recs()");
static_assert(hasType<test::Getter<QenField, std::vector<QenRec>&>>(&QenField::recs));
static_assert(hasType<QenRec (QenField::*)(uuid) const>(&QenField::rec));
static_assert(hasType<test::Comparison<QenField>>(&QenField::operator==));
static_assert(hasType<test::Comparison<QenField>>(&QenField::operator!=));
static_assert(
    hasType<test::Setter<QenField, const QenFieldGeometry&>>(&QenField::addFieldGeometry));
static_assert(hasType<test::Setter<QenField, QenRec>>(&QenField::addRec));
static_assert(hasType<test::Setter<QenField, QenField>>(&QenField::merge));

QenField fieldWithGeometry() {
    LLA centroid{1.5, 2.5, 3.5};
    return QenField("field", test::uuid(1), test::uuid(2), test::uuid(3), "date", test::uuid(4),
                    test::uuid("00112233-4455-6677-8899-aabbccddeeff"), centroid);
}

QenFieldGeometry geometry(unsigned id, const string& date, unsigned file = 90) {
    return QenFieldGeometry(test::uuid(id), date, test::uuid(file), LLA{file + 0.5, 2.0, 3.0});
}

Texts dates(const QenField& field) {
    Texts result;
    for (QenFieldGeometry& geometry : field.geometries())
        result.push_back(geometry.geometryDate());
    return result;
}

} // namespace

TEST(QenField, IsEmptyByDefault) {
    QenField field;
    EXPECT_EQ(field.name(), "");
    EXPECT_EQ(field.id(), uuid{});
    EXPECT_EQ(field.growerId(), uuid{});
    EXPECT_EQ(field.farmId(), uuid{});
    EXPECT_EQ(dates(field), Texts{});
    EXPECT_EQ(recNames(field), Texts{});
}

TEST(QenField, ReturnsTheNameAndIdentifiersThatItWasBuiltWith) {
    const QenField field("field", test::uuid(1), test::uuid(2), test::uuid(3));
    EXPECT_EQ(field.name(), "field");
    EXPECT_EQ(field.id(), test::uuid(1));
    EXPECT_EQ(field.growerId(), test::uuid(2));
    EXPECT_EQ(field.farmId(), test::uuid(3));
    EXPECT_EQ(dates(field), Texts{});
    EXPECT_EQ(recNames(field), Texts{});
}

TEST(QenField, BuiltWithAGeometryHasExactlyThatOneAndNoRecs) {
    QenField field = fieldWithGeometry();
    EXPECT_EQ(field.name(), "field");
    EXPECT_EQ(field.id(), test::uuid(1));
    EXPECT_EQ(field.growerId(), test::uuid(2));
    EXPECT_EQ(field.farmId(), test::uuid(3));
    ASSERT_EQ(field.geometries().size(), 1U);
    QenFieldGeometry only = field.geometries()[0];
    EXPECT_EQ(only.geometryId(), test::uuid(4));
    EXPECT_EQ(only.geometryDate(), "date");
    EXPECT_EQ(only.geometry(), test::uuid("00112233-4455-6677-8899-aabbccddeeff"));
    EXPECT_EQ(only.centroid().latitude, 1.5);
    EXPECT_EQ(only.centroid().longitude, 2.5);
    EXPECT_EQ(only.centroid().altitude, 3.5);
    EXPECT_EQ(recNames(field), Texts{});
}

TEST(QenField, OnlyReadsTheCentroidThatItIsBuiltWith) {
    LLA centroid{1.5, 2.5, 3.5};
    const QenField field("field", test::uuid(1), test::uuid(2), test::uuid(3), "date",
                         test::uuid(4), test::uuid(5), centroid);
    EXPECT_EQ(centroid.latitude, 1.5);
    EXPECT_EQ(centroid.longitude, 2.5);
    EXPECT_EQ(centroid.altitude, 3.5);
    centroid.latitude = 9.5;
    EXPECT_EQ(field.centroid(test::uuid(4)).latitude, 1.5);
}

TEST(QenField, SetNameReplacesTheNameAndNothingElse) {
    QenField field = fieldWithGeometry();
    field.addRec(makeRec(1, "rec", 2));
    QenField expected("other", test::uuid(1), test::uuid(2), test::uuid(3));
    expected.addFieldGeometry(field.geometries()[0]);
    expected.addRec(makeRec(1, "rec", 2));
    field.setName("other");
    EXPECT_EQ(field.name(), "other");
    EXPECT_EQ(describe(field), describe(expected));
}

TEST(QenField, EqualityComparesTheIdAlone) {
    const QenField field = fieldWithGeometry();
    const QenField sameId("other", test::uuid(1), test::uuid(12), test::uuid(13));
    EXPECT_TRUE(field == sameId);
    EXPECT_FALSE(field != sameId);
    QenField otherId("field", test::uuid(11), test::uuid(2), test::uuid(3));
    otherId.addFieldGeometry(field.geometries()[0]);
    EXPECT_FALSE(field == otherId);
    EXPECT_TRUE(field != otherId);
    EXPECT_TRUE(QenField() == QenField());
}

TEST(QenField, LooksUpWhatItsGeometryWasBuiltWith) {
    const QenField field = fieldWithGeometry();
    EXPECT_EQ(field.geometryDate(test::uuid(4)), "date");
    EXPECT_EQ(field.geometryFileId(test::uuid(4)),
              test::uuid("00112233-4455-6677-8899-aabbccddeeff"));
    EXPECT_EQ(field.geometryFileName(test::uuid(4)), "00112233-4455-6677-8899-aabbccddeeff");
    EXPECT_EQ(field.centroid(test::uuid(4)).latitude, 1.5);
    EXPECT_EQ(field.centroid(test::uuid(4)).longitude, 2.5);
    EXPECT_EQ(field.centroid(test::uuid(4)).altitude, 3.5);
}

TEST(QenField, FileNamesAreTheBytesInOrderInLowerCaseWithHyphens) {
    const unsigned char bytes[] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77,
                                   0x88, 0x99, 0xaa, 0xbb, 0xcc, 0xdd, 0xee, 0xff};
    uuid file{};
    std::copy(std::begin(bytes), std::end(bytes), file.begin());
    QenField field;
    field.addFieldGeometry(QenFieldGeometry(test::uuid(1), "", file, LLA{}));
    EXPECT_EQ(field.geometryFileName(test::uuid(1)), "00112233-4455-6677-8899-aabbccddeeff");
}

TEST(QenField, FileNamesKeepLeadingZerosAndTheHighDigitFirst) {
    QenField field;
    field.addFieldGeometry(QenFieldGeometry(
        test::uuid(1), "", test::uuid("0a0b0c0d-0e0f-1020-3040-5060708090a0"), LLA{}));
    EXPECT_EQ(field.geometryFileName(test::uuid(1)), "0a0b0c0d-0e0f-1020-3040-5060708090a0");
}

TEST(QenField, TheFileNameOfANilFileIsItsText) {
    QenField field;
    field.addFieldGeometry(QenFieldGeometry(test::uuid(1), "", uuid{}, LLA{}));
    EXPECT_EQ(field.geometryFileName(test::uuid(1)), "00000000-0000-0000-0000-000000000000");
    EXPECT_EQ(field.geometryFileId(test::uuid(1)), uuid{});
}

TEST(QenField, LookUpsOfAnUnknownGeometryReturnTheEmptyValues) {
    const QenField field = fieldWithGeometry();
    EXPECT_EQ(field.geometryDate(test::uuid(5)), "");
    EXPECT_EQ(field.geometryFileName(test::uuid(5)), "");
    EXPECT_EQ(field.geometryFileId(test::uuid(5)), uuid{});
    EXPECT_EQ(field.centroid(test::uuid(5)).latitude, 0.0);
    EXPECT_EQ(field.centroid(test::uuid(5)).longitude, 0.0);
    EXPECT_EQ(field.centroid(test::uuid(5)).altitude, 0.0);
}

TEST(QenField, LookUpsDoNotTakeTheFileForTheGeometry) {
    const QenField field = fieldWithGeometry();
    EXPECT_EQ(field.geometryDate(test::uuid("00112233-4455-6677-8899-aabbccddeeff")), "");
}

TEST(QenField, LookUpsOfTheNilIdFindAGeometryWithIt) {
    QenField field;
    field.addFieldGeometry(QenFieldGeometry(uuid{}, "date", test::uuid(1), LLA{}));
    EXPECT_EQ(field.geometryDate(uuid{}), "date");
    EXPECT_EQ(QenField().geometryDate(uuid{}), "");
}

TEST(QenField, OfGeometriesWithOneIdTheLastAnswersEveryLookUp) {
    QenField field;
    field.addFieldGeometry(geometry(1, "first", 11));
    field.addFieldGeometry(geometry(1, "last", 12));
    field.addFieldGeometry(geometry(2, "other", 13));
    EXPECT_EQ(field.geometryDate(test::uuid(1)), "last");
    EXPECT_EQ(field.geometryFileId(test::uuid(1)), test::uuid(12));
    EXPECT_EQ(field.geometryFileName(test::uuid(1)), "00000000-0000-0000-0000-00000000000c");
    EXPECT_EQ(field.centroid(test::uuid(1)).latitude, 12.5);
    EXPECT_EQ(field.geometryDate(test::uuid(2)), "other");
}

TEST(QenField, LookUpsLeaveTheFieldUnchanged) {
    QenField field = fieldWithGeometry();
    field.addFieldGeometry(geometry(4, "again"));
    field.addRec(makeRec(1, "rec", 2));
    const string before = describe(field);
    field.geometryDate(test::uuid(4));
    field.geometryFileName(test::uuid(4));
    field.geometryFileId(test::uuid(4));
    field.centroid(test::uuid(4));
    field.rec(test::uuid(2));
    EXPECT_EQ(describe(field), before);
}

TEST(QenField, AddsAGeometryThatEqualsAPresentOneOnceMore) {
    QenField field;
    field.addFieldGeometry(geometry(1, "first"));
    field.addFieldGeometry(geometry(2, "second"));
    field.addFieldGeometry(geometry(1, "third"));
    EXPECT_EQ(dates(field), (Texts{"first", "second", "third"}));
}

TEST(QenField, AddsOneOfItsOwnGeometriesOnceMore) {
    QenField field = fieldWithGeometry();
    field.addFieldGeometry(field.geometries().front());
    EXPECT_EQ(dates(field), (Texts{"date", "date"}));
}

TEST(QenField, HandsOutACopyOfItsGeometries) {
    QenField field = fieldWithGeometry();
    std::vector<QenFieldGeometry> geometries = field.geometries();
    geometries.clear();
    EXPECT_EQ(dates(field), Texts{"date"});
    field.geometries().push_back(geometry(9, "lost"));
    EXPECT_EQ(dates(field), Texts{"date"});
}

TEST(QenField, ACopyIsIndependent) {
    QenField field = fieldWithGeometry();
    field.addRec(makeRec(1, "rec", 11));
    const string before = describe(field);
    QenField copy(field);
    EXPECT_EQ(describe(copy), before);
    EXPECT_NE(copy.recs()[0].recData(), field.recs()[0].recData());
    copy.setName("other");
    copy.recs()[0].setName("other");
    copy.addRec(makeRec(2, "new"));
    copy.addFieldGeometry(geometry(9, "new"));
    EXPECT_EQ(describe(field), before);
}

TEST(QenField, AssignmentReplacesEverything) {
    QenField source = fieldWithGeometry();
    source.addRec(makeRec(1, "rec", 11));
    QenField target("other", test::uuid(21), test::uuid(22), test::uuid(23));
    target.addFieldGeometry(geometry(24, "other"));
    target.addRec(makeRec(25, "first", 26));
    target.addRec(makeRec(27, "second", 28));
    QenField& result = target = source;
    EXPECT_EQ(&result, &target);
    EXPECT_EQ(describe(target), describe(source));
    EXPECT_NE(target.recs()[0].recData(), source.recs()[0].recData());
}

TEST(QenField, SelfAssignmentChangesNothing) {
    QenField field = fieldWithGeometry();
    field.addRec(makeRec(1, "rec", 11));
    QenRecData* const data = field.recs()[0].recData();
    const string before = describe(field);
    const QenField& itself = field;
    field = itself;
    EXPECT_EQ(describe(field), before);
    EXPECT_EQ(field.recs()[0].recData(), data);
}

TEST(QenField, AssignmentReleasesTheRecsHeldBefore) {
    const test::LivingMemory before = test::livingMemory();
    {
        QenField source;
        source.addRec(makeRec(1, "rec", 11));
        QenField target;
        for (unsigned id = 1; id < 5; ++id)
            target.addRec(makeRec(id, "earlier", id));
        target = source;
        target = QenField(source);
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenField, WithoutMemoryForAnAssignmentNothingChanges) {
    QenField source = fieldWithGeometry();
    source.addRec(makeRec(1, string(100, 'x'), 11));
    QenField target;
    target.addRec(makeRec(2, "earlier", 12));
    const string unchanged = describe(target);
    const test::LivingMemory before = test::livingMemory();
    std::size_t successes = 0;
    while (test::runsOutOfMemory(successes, [&] { target = source; })) {
        EXPECT_EQ(test::livingMemory(), before);
        EXPECT_EQ(describe(target), unchanged);
        ++successes;
    }
    EXPECT_EQ(describe(target), describe(source));
    EXPECT_GE(successes, 3U);
}
