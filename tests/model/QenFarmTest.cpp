#include "model/QenFarm.h"

#include <utility>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"
#include "tests/support/WatchedMemory.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::describe;
using test::hasType;

static_assert(!std::is_polymorphic_v<QenFarm>, "nothing virtual, the destructor included");
static_assert(std::is_default_constructible_v<QenFarm>);
static_assert(std::is_constructible_v<QenFarm, const string&, const uuid&, const uuid&>);
static_assert(std::is_copy_constructible_v<QenFarm> && std::is_copy_assignable_v<QenFarm>);
static_assert(hasType<test::ConstGetter<QenFarm, string>>(&QenFarm::name));
static_assert(hasType<test::Setter<QenFarm, string>>(&QenFarm::setName));
static_assert(hasType<test::Getter<QenFarm, uuid>>(&QenFarm::id), "not const, unlike a grower's");
static_assert(hasType<test::ConstGetter<QenFarm, uuid>>(&QenFarm::growerId));
static_assert(hasType<test::Getter<QenFarm, std::vector<QenField>&>>(&QenFarm::fields));
static_assert(hasType<test::Comparison<QenFarm>>(&QenFarm::operator==));
static_assert(hasType<test::Comparison<QenFarm>>(&QenFarm::operator!=));
static_assert(hasType<test::Setter<QenFarm, QenField>>(&QenFarm::addField));
static_assert(hasType<test::Setter<QenFarm, QenFarm>>(&QenFarm::merge));

/// A field with one geometry and one rec, all named alike.
QenField field(unsigned id, const string& name) {
    LLA centroid{1.5, 2.5, 3.5};
    QenField result(name, test::uuid(id), test::uuid(81), test::uuid(82), name, test::uuid(83),
                    test::uuid(84), centroid);
    QenRec& rec = result.recs().emplace_back();
    rec.setName(name);
    rec.setRecData(new PlantingRec(test::uuid(85), 1, name, 2, "c", 3, "v", 4, "seeds"));
    return result;
}

std::vector<string> fieldNames(QenFarm farm) {
    std::vector<string> result;
    for (const QenField& field : farm.fields())
        result.push_back(field.name());
    return result;
}

QenFarm threeFields() {
    QenFarm farm("farm", test::uuid(1), test::uuid(2));
    farm.addField(field(11, "first"));
    farm.addField(field(12, "second"));
    farm.addField(field(13, "third"));
    return farm;
}

using Texts = std::vector<string>;

} // namespace

TEST(QenFarm, IsEmptyByDefault) {
    QenFarm farm;
    EXPECT_EQ(farm.name(), "");
    EXPECT_EQ(farm.id(), uuid{});
    EXPECT_EQ(farm.growerId(), uuid{});
    EXPECT_EQ(fieldNames(farm), Texts{});
}

TEST(QenFarm, ReturnsEveryValueThatItWasBuiltWith) {
    QenFarm farm("farm", test::uuid(1), test::uuid(2));
    EXPECT_EQ(farm.name(), "farm");
    EXPECT_EQ(farm.id(), test::uuid(1));
    EXPECT_EQ(farm.growerId(), test::uuid(2));
    EXPECT_EQ(fieldNames(farm), Texts{});
}

TEST(QenFarm, SetNameReplacesTheNameAndNothingElse) {
    QenFarm farm = threeFields();
    farm.setName("other");
    EXPECT_EQ(farm.name(), "other");
    EXPECT_EQ(farm.id(), test::uuid(1));
    EXPECT_EQ(farm.growerId(), test::uuid(2));
    EXPECT_EQ(fieldNames(farm), (Texts{"first", "second", "third"}));
}

TEST(QenFarm, HandsOutItsListOfFieldsItself) {
    QenFarm farm = threeFields();
    farm.fields()[0].setName("renamed");
    farm.fields().pop_back();
    EXPECT_EQ(fieldNames(farm), (Texts{"renamed", "second"}));
}

TEST(QenFarm, EqualityComparesTheIdAlone) {
    const QenFarm farm = threeFields();
    const QenFarm sameId("other", test::uuid(1), test::uuid(3));
    EXPECT_TRUE(farm == sameId);
    EXPECT_FALSE(farm != sameId);
    QenFarm otherId("farm", test::uuid(4), test::uuid(2));
    otherId.fields() = threeFields().fields();
    EXPECT_FALSE(farm == otherId);
    EXPECT_TRUE(farm != otherId);
    EXPECT_TRUE(QenFarm() == QenFarm());
    EXPECT_FALSE(QenFarm() != QenFarm());
}

TEST(QenFarm, AddingAFieldWithANewIdAppendsIt) {
    QenFarm farm = threeFields();
    farm.addField(field(10, "fourth"));
    EXPECT_EQ(fieldNames(farm), (Texts{"first", "second", "third", "fourth"}));
    EXPECT_EQ(describe(farm.fields()[3]), describe(field(10, "fourth")));
}

TEST(QenFarm, AddingAFieldWithAPresentIdReplacesItInPlace) {
    QenFarm farm = threeFields();
    const QenField other("other", test::uuid(12), test::uuid(91), test::uuid(92));
    farm.addField(other);
    EXPECT_EQ(fieldNames(farm), (Texts{"first", "other", "third"}));
    EXPECT_EQ(describe(farm.fields()[1]), describe(other)) << "geometries and recs are gone";
}

TEST(QenFarm, AddingAFieldReplacesOnlyTheFirstOfSeveralWithItsId) {
    QenFarm farm = threeFields();
    farm.fields().push_back(field(11, "duplicate"));
    farm.addField(field(11, "new"));
    EXPECT_EQ(fieldNames(farm), (Texts{"new", "second", "third", "duplicate"}));
}

TEST(QenFarm, FieldsWithTheNilIdReplaceEachOther) {
    QenFarm farm;
    farm.addField(field(0, "first"));
    farm.addField(field(0, "second"));
    EXPECT_EQ(fieldNames(farm), Texts{"second"});
}

TEST(QenFarm, DoesNotLookAtTheFarmThatAnAddedFieldNames) {
    QenFarm farm("farm", test::uuid(1), test::uuid(2));
    farm.addField(QenField("field", test::uuid(3), test::uuid(91), test::uuid(92)));
    ASSERT_EQ(fieldNames(farm), Texts{"field"});
    EXPECT_EQ(farm.fields()[0].growerId(), test::uuid(91));
    EXPECT_EQ(farm.fields()[0].farmId(), test::uuid(92));
}

TEST(QenFarm, AddsAFieldOfItsOwnList) {
    QenFarm farm = threeFields();
    const string before = describe(farm);
    farm.addField(farm.fields()[1]);
    EXPECT_EQ(describe(farm), before);
}

TEST(QenFarm, AddingAFieldLeavesTheGivenOneAlone) {
    QenFarm farm = threeFields();
    for (const unsigned id : {12U, 14U}) {
        QenField given = field(id, "given");
        farm.addField(given);
        EXPECT_EQ(describe(given), describe(field(id, "given")));
        EXPECT_NE(given.recs()[0].recData(), farm.fields()[1].recs()[0].recData());
    }
}

TEST(QenFarm, AddedFieldsLoseProductDataOfAnUnknownKind) {
    // As they do in any copy, although a field that is moved in need not be copied.
    QenFarm farm = threeFields();
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        QenField given("given", test::uuid(id), test::uuid(1), test::uuid(2));
        given.recs().emplace_back().setRecData(new QenRecData(test::uuid(99), RecTypeNone));
        farm.addField(std::move(given));
        QenField& added = id == 12U ? farm.fields().at(1) : farm.fields().at(3);
        ASSERT_EQ(added.name(), "given");
        EXPECT_EQ(added.recs().at(0).recData(), nullptr);
    }
}

TEST(QenFarm, ReplacingAFieldReleasesTheEarlierOne) {
    QenFarm farm = threeFields();
    const QenField replacement = field(12, "second");
    farm.addField(replacement);
    const test::LivingMemory before = test::livingMemory();
    farm.addField(replacement);
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenFarm, AssignmentReplacesEverythingAndReleasesTheEarlierFields) {
    const test::LivingMemory before = test::livingMemory();
    {
        QenFarm source("source", test::uuid(21), test::uuid(22));
        source.addField(field(23, "field"));
        QenFarm target = threeFields();
        target = source;
        EXPECT_EQ(describe(target), describe(source));
    }
    {
        const QenFarm source = threeFields();
        QenFarm target = threeFields();
        target = source; // element by element
        target.fields() = QenFarm(source).fields();
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenFarm, ACopyIsIndependent) {
    QenFarm farm = threeFields();
    const string before = describe(farm);
    QenFarm copy(farm);
    EXPECT_EQ(describe(copy), before);
    copy.addField(field(14, "new"));
    copy.fields()[0].recs()[0].setName("changed");
    copy.setName("changed");
    EXPECT_EQ(describe(farm), before);
    EXPECT_NE(copy.fields()[0].recs()[0].recData(), farm.fields()[0].recs()[0].recData());
}

TEST(QenFarm, WithoutMemoryForAFieldItsListDoesNotChange) {
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        const QenField added = field(id, string(100, 'x'));
        QenFarm farm = threeFields();
        const string unchanged = describe(farm);
        const test::LivingMemory before = test::livingMemory();
        std::size_t successes = 0;
        while (test::runsOutOfMemory(successes, [&] { farm.addField(added); })) {
            EXPECT_EQ(test::livingMemory(), before);
            EXPECT_EQ(describe(farm), unchanged);
            ++successes;
        }
        EXPECT_GE(successes, 5U);
    }
}
