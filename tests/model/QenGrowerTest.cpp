#include "model/QenGrower.h"

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

static_assert(!std::is_polymorphic_v<QenGrower>, "nothing virtual, the destructor included");
static_assert(std::is_default_constructible_v<QenGrower>);
static_assert(std::is_constructible_v<QenGrower, const string&, const uuid&>);
static_assert(std::is_copy_constructible_v<QenGrower> && std::is_copy_assignable_v<QenGrower>);
static_assert(hasType<test::ConstGetter<QenGrower, string>>(&QenGrower::name));
static_assert(hasType<test::Setter<QenGrower, string>>(&QenGrower::setName));
static_assert(hasType<test::ConstGetter<QenGrower, uuid>>(&QenGrower::id));
static_assert(hasType<test::Getter<QenGrower, std::vector<QenFarm>&>>(&QenGrower::farms));
static_assert(hasType<test::Comparison<QenGrower>>(&QenGrower::operator==));
static_assert(hasType<test::Comparison<QenGrower>>(&QenGrower::operator!=));
static_assert(hasType<test::Setter<QenGrower, QenFarm>>(&QenGrower::addFarm));
static_assert(hasType<test::Setter<QenGrower, QenGrower>>(&QenGrower::merge));

/// A farm with one field with one rec, all named alike.
QenFarm farm(unsigned id, const string& name) {
    QenFarm result(name, test::uuid(id), test::uuid(1));
    QenField field(name, test::uuid(81), test::uuid(82), test::uuid(83));
    QenRec& rec = field.recs().emplace_back();
    rec.setName(name);
    rec.setRecData(new PlantingRec(test::uuid(84), 1, name, 2, "c", 3, "v", 4, "seeds"));
    result.addField(field);
    return result;
}

std::vector<string> farmNames(QenGrower grower) {
    std::vector<string> result;
    for (const QenFarm& farm : grower.farms())
        result.push_back(farm.name());
    return result;
}

QenGrower threeFarms() {
    QenGrower grower("grower", test::uuid(1));
    grower.addFarm(farm(11, "first"));
    grower.addFarm(farm(12, "second"));
    grower.addFarm(farm(13, "third"));
    return grower;
}

using Texts = std::vector<string>;

} // namespace

TEST(QenGrower, IsEmptyByDefault) {
    QenGrower grower;
    EXPECT_EQ(grower.name(), "");
    EXPECT_EQ(grower.id(), uuid{});
    EXPECT_EQ(farmNames(grower), Texts{});
}

TEST(QenGrower, ReturnsEveryValueThatItWasBuiltWith) {
    const QenGrower grower("grower", test::uuid(1));
    EXPECT_EQ(grower.name(), "grower");
    EXPECT_EQ(grower.id(), test::uuid(1));
    EXPECT_EQ(farmNames(grower), Texts{});
}

TEST(QenGrower, SetNameReplacesTheNameAndNothingElse) {
    QenGrower grower = threeFarms();
    grower.setName("other");
    EXPECT_EQ(grower.name(), "other");
    EXPECT_EQ(grower.id(), test::uuid(1));
    EXPECT_EQ(farmNames(grower), (Texts{"first", "second", "third"}));
}

TEST(QenGrower, HandsOutItsListOfFarmsItself) {
    QenGrower grower = threeFarms();
    grower.farms()[0].setName("renamed");
    grower.farms().pop_back();
    EXPECT_EQ(farmNames(grower), (Texts{"renamed", "second"}));
}

TEST(QenGrower, EqualityComparesTheIdAlone) {
    const QenGrower grower = threeFarms();
    const QenGrower sameId("other", test::uuid(1));
    EXPECT_TRUE(grower == sameId);
    EXPECT_FALSE(grower != sameId);
    QenGrower otherId("grower", test::uuid(2));
    otherId.farms() = threeFarms().farms();
    EXPECT_FALSE(grower == otherId);
    EXPECT_TRUE(grower != otherId);
    EXPECT_TRUE(QenGrower() == QenGrower());
    EXPECT_FALSE(QenGrower() != QenGrower());
}

TEST(QenGrower, AddingAFarmWithANewIdAppendsIt) {
    QenGrower grower = threeFarms();
    grower.addFarm(farm(10, "fourth"));
    EXPECT_EQ(farmNames(grower), (Texts{"first", "second", "third", "fourth"}));
    EXPECT_EQ(describe(grower.farms()[3]), describe(farm(10, "fourth")));
}

TEST(QenGrower, AddingAFarmWithAPresentIdReplacesItInPlace) {
    QenGrower grower = threeFarms();
    const QenFarm other("other", test::uuid(12), test::uuid(91));
    grower.addFarm(other);
    EXPECT_EQ(farmNames(grower), (Texts{"first", "other", "third"}));
    EXPECT_EQ(describe(grower.farms()[1]), describe(other)) << "its fields are gone";
}

TEST(QenGrower, AddingAFarmReplacesOnlyTheFirstOfSeveralWithItsId) {
    QenGrower grower = threeFarms();
    grower.farms().push_back(farm(11, "duplicate"));
    grower.addFarm(farm(11, "new"));
    EXPECT_EQ(farmNames(grower), (Texts{"new", "second", "third", "duplicate"}));
}

TEST(QenGrower, FarmsWithTheNilIdReplaceEachOther) {
    QenGrower grower;
    grower.addFarm(QenFarm("first", uuid{}, test::uuid(1)));
    grower.addFarm(QenFarm("second", uuid{}, test::uuid(2)));
    EXPECT_EQ(farmNames(grower), Texts{"second"});
    EXPECT_EQ(grower.farms()[0].growerId(), test::uuid(2));
}

TEST(QenGrower, DoesNotLookAtTheGrowerThatAnAddedFarmNames) {
    QenGrower grower("grower", test::uuid(1));
    grower.addFarm(QenFarm("farm", test::uuid(2), test::uuid(91)));
    ASSERT_EQ(farmNames(grower), Texts{"farm"});
    EXPECT_EQ(grower.farms()[0].growerId(), test::uuid(91));
}

TEST(QenGrower, AddsAFarmOfItsOwnList) {
    QenGrower grower = threeFarms();
    const string before = describe(grower);
    grower.addFarm(grower.farms()[1]);
    EXPECT_EQ(describe(grower), before);
}

TEST(QenGrower, AddingAFarmLeavesTheGivenOneAlone) {
    QenGrower grower = threeFarms();
    for (const unsigned id : {12U, 14U}) {
        const QenFarm given = farm(id, "given");
        grower.addFarm(given);
        EXPECT_EQ(describe(given), describe(farm(id, "given")));
    }
}

TEST(QenGrower, AddedFarmsLoseProductDataOfAnUnknownKind) {
    // As they do in any copy, although a farm that is moved in need not be copied.
    QenGrower grower = threeFarms();
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        QenFarm given("given", test::uuid(id), test::uuid(1));
        given.fields().emplace_back().recs().emplace_back().setRecData(
            new QenRecData(test::uuid(99), RecTypeNone));
        grower.addFarm(std::move(given));
        QenFarm& added = id == 12U ? grower.farms().at(1) : grower.farms().at(3);
        ASSERT_EQ(added.name(), "given");
        EXPECT_EQ(added.fields().at(0).recs().at(0).recData(), nullptr);
    }
}

TEST(QenGrower, ReplacingAFarmReleasesTheEarlierOne) {
    QenGrower grower = threeFarms();
    const QenFarm replacement = farm(12, "second");
    grower.addFarm(replacement);
    const test::LivingMemory before = test::livingMemory();
    grower.addFarm(replacement);
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenGrower, AssignmentReplacesEverythingAndReleasesTheEarlierFarms) {
    const test::LivingMemory before = test::livingMemory();
    {
        QenGrower source("source", test::uuid(21));
        source.addFarm(farm(22, "farm"));
        QenGrower target = threeFarms();
        target = source;
        EXPECT_EQ(describe(target), describe(source));
    }
    {
        const QenGrower source = threeFarms();
        QenGrower target = threeFarms();
        target = source; // element by element
        std::vector<QenGrower> growers{threeFarms(), threeFarms()};
        growers = {source, source};
        growers.erase(growers.begin());
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenGrower, ACopyIsIndependent) {
    QenGrower grower = threeFarms();
    const string before = describe(grower);
    QenGrower copy(grower);
    EXPECT_EQ(describe(copy), before);
    copy.addFarm(farm(14, "new"));
    copy.farms()[0].fields()[0].recs()[0].setName("changed");
    copy.setName("changed");
    EXPECT_EQ(describe(grower), before);
    EXPECT_NE(copy.farms()[0].fields()[0].recs()[0].recData(),
              grower.farms()[0].fields()[0].recs()[0].recData());
}

TEST(QenGrower, WithoutMemoryForAFarmItsListDoesNotChange) {
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        const QenFarm added = farm(id, string(100, 'x'));
        QenGrower grower = threeFarms();
        const string unchanged = describe(grower);
        const test::LivingMemory before = test::livingMemory();
        std::size_t successes = 0;
        while (test::runsOutOfMemory(successes, [&] { grower.addFarm(added); })) {
            EXPECT_EQ(test::livingMemory(), before);
            EXPECT_EQ(describe(grower), unchanged);
            ++successes;
        }
        EXPECT_GE(successes, 5U);
    }
}
