/// @file
/// Farms and growers, which are alike: an identifier, a name and a list of children.

#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "model/QenGrower.h"
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

using Texts = std::vector<string>;

struct FarmWithFields {
    using Parent = QenFarm;
    using Child = QenField;
    static constexpr auto children = &QenFarm::fields;
    static constexpr auto add = &QenFarm::addField;

    static QenFarm parent(unsigned id, const string& name) {
        return {name, test::uuid(id), test::uuid(2)};
    }

    /// A field of another grower and farm.
    static QenField childless(unsigned id, const string& name) {
        return {name, test::uuid(id), test::uuid(91), test::uuid(92)};
    }

    /// Likewise, with one geometry and one rec, all named alike.
    static QenField child(unsigned id, const string& name) {
        LLA centroid{1.5, 2.5, 3.5};
        QenField result(name, test::uuid(id), test::uuid(81), test::uuid(82), name, test::uuid(83),
                        test::uuid(84), centroid);
        QenRec& rec = result.recs().emplace_back();
        rec.setName(name);
        rec.setRecData(new PlantingRec(test::uuid(85), 1, name, 2, "c", 3, "v", 4, "seeds"));
        return result;
    }

    static QenRec& firstRec(QenField& field) { return field.recs().at(0); }
};

struct GrowerWithFarms {
    using Parent = QenGrower;
    using Child = QenFarm;
    static constexpr auto children = &QenGrower::farms;
    static constexpr auto add = &QenGrower::addFarm;

    static QenGrower parent(unsigned id, const string& name) { return {name, test::uuid(id)}; }

    /// A farm of another grower.
    static QenFarm childless(unsigned id, const string& name) {
        return {name, test::uuid(id), test::uuid(91)};
    }

    /// Likewise, with one field, named as the farm is.
    static QenFarm child(unsigned id, const string& name) {
        QenFarm result(name, test::uuid(id), test::uuid(81));
        result.addField(FarmWithFields::child(86, name));
        return result;
    }

    static QenRec& firstRec(QenFarm& farm) { return FarmWithFields::firstRec(farm.fields().at(0)); }
};

/// Numbers the tests: clang complains of the framework's macro without a last argument, and ctest
/// takes no other names.
struct ParentNumber {
    template <class Parent>
    static string GetName(int number) {
        return std::to_string(number);
    }
};

} // namespace

template <class Kind>
class Parents : public testing::Test {
protected:
    using Parent = typename Kind::Parent;
    using Child = typename Kind::Child;

    static std::vector<Child>& children(Parent& parent) { return (parent.*Kind::children)(); }
    static void add(Parent& parent, const Child& child) { (parent.*Kind::add)(child); }

    static Texts names(Parent parent) {
        Texts result;
        for (const Child& child : children(parent))
            result.push_back(child.name());
        return result;
    }

    static Parent threeChildren() {
        Parent parent = Kind::parent(1, "parent");
        add(parent, Kind::child(11, "first"));
        add(parent, Kind::child(12, "second"));
        add(parent, Kind::child(13, "third"));
        return parent;
    }
};

using FarmAndGrower = testing::Types<FarmWithFields, GrowerWithFarms>;
TYPED_TEST_SUITE(Parents, FarmAndGrower, ParentNumber);

TYPED_TEST(Parents, AreEmptyByDefault) {
    typename TypeParam::Parent parent;
    EXPECT_EQ(parent.name(), "");
    EXPECT_EQ(parent.id(), uuid{});
    EXPECT_TRUE(this->children(parent).empty());
}

TYPED_TEST(Parents, ReturnEveryValueThatTheyWereBuiltWith) {
    auto parent = TypeParam::parent(1, "parent");
    EXPECT_EQ(parent.name(), "parent");
    EXPECT_EQ(parent.id(), test::uuid(1));
    EXPECT_TRUE(this->children(parent).empty());
}

TEST(QenFarm, NamesItsGrowerWhateverItsOwnName) {
    EXPECT_EQ(QenFarm().growerId(), uuid{});
    QenFarm farm("farm", test::uuid(1), test::uuid(2));
    EXPECT_EQ(farm.growerId(), test::uuid(2));
    farm.setName("other");
    EXPECT_EQ(farm.growerId(), test::uuid(2));
}

TYPED_TEST(Parents, SetNameReplacesTheNameAndNothingElse) {
    auto parent = this->threeChildren();
    auto expected = TypeParam::parent(1, "other");
    this->children(expected) = this->children(parent);
    parent.setName("other");
    EXPECT_EQ(parent.name(), "other");
    EXPECT_EQ(describe(parent), describe(expected));
}

TYPED_TEST(Parents, HandOutTheirListOfChildrenItself) {
    auto parent = this->threeChildren();
    this->children(parent)[0].setName("renamed");
    this->children(parent).pop_back();
    EXPECT_EQ(this->names(parent), (Texts{"renamed", "second"}));
}

TYPED_TEST(Parents, EqualityComparesTheIdAlone) {
    const typename TypeParam::Parent none;
    auto parent = this->threeChildren();
    const auto sameId = TypeParam::parent(1, "other");
    EXPECT_TRUE(parent == sameId);
    EXPECT_FALSE(parent != sameId);
    auto otherId = TypeParam::parent(4, "parent");
    this->children(otherId) = this->children(parent);
    EXPECT_FALSE(parent == otherId);
    EXPECT_TRUE(parent != otherId);
    EXPECT_TRUE(none == typename TypeParam::Parent());
    EXPECT_FALSE(none != typename TypeParam::Parent());
}

TYPED_TEST(Parents, AddingAChildWithANewIdAppendsIt) {
    auto parent = this->threeChildren();
    this->add(parent, TypeParam::child(10, "fourth"));
    EXPECT_EQ(this->names(parent), (Texts{"first", "second", "third", "fourth"}));
    EXPECT_EQ(describe(this->children(parent)[3]), describe(TypeParam::child(10, "fourth")));
}

TYPED_TEST(Parents, AddingAChildWithAPresentIdReplacesItInPlace) {
    auto parent = this->threeChildren();
    const auto other = TypeParam::childless(12, "other");
    this->add(parent, other);
    EXPECT_EQ(this->names(parent), (Texts{"first", "other", "third"}));
    EXPECT_EQ(describe(this->children(parent)[1]), describe(other)) << "what it had is gone";
}

TYPED_TEST(Parents, AddingAChildReplacesOnlyTheFirstOfSeveralWithItsId) {
    auto parent = this->threeChildren();
    this->children(parent).push_back(TypeParam::child(11, "duplicate"));
    this->add(parent, TypeParam::child(11, "new"));
    EXPECT_EQ(this->names(parent), (Texts{"new", "second", "third", "duplicate"}));
}

TYPED_TEST(Parents, ChildrenWithTheNilIdReplaceEachOther) {
    auto parent = TypeParam::parent(1, "parent");
    this->add(parent, TypeParam::child(0, "first"));
    this->add(parent, TypeParam::childless(0, "second"));
    EXPECT_EQ(this->names(parent), Texts{"second"});
    EXPECT_EQ(this->children(parent)[0].growerId(), test::uuid(91));
}

TYPED_TEST(Parents, DoNotLookAtTheParentThatAnAddedChildNames) {
    auto parent = TypeParam::parent(1, "parent");
    const auto child = TypeParam::childless(3, "child");
    this->add(parent, child);
    ASSERT_EQ(this->names(parent), Texts{"child"});
    EXPECT_EQ(this->children(parent)[0].growerId(), test::uuid(91));
    EXPECT_EQ(describe(this->children(parent)[0]), describe(child));
}

TYPED_TEST(Parents, AddAChildOfTheirOwnList) {
    auto parent = this->threeChildren();
    const string before = describe(parent);
    this->add(parent, this->children(parent)[1]);
    EXPECT_EQ(describe(parent), before);
}

TYPED_TEST(Parents, AddingAChildLeavesTheGivenOneAlone) {
    auto parent = this->threeChildren();
    for (const unsigned id : {12U, 14U}) {
        auto given = TypeParam::child(id, "given");
        this->add(parent, given);
        EXPECT_EQ(describe(given), describe(TypeParam::child(id, "given")));
        EXPECT_NE(TypeParam::firstRec(given).recData(),
                  TypeParam::firstRec(this->children(parent)[id - 11]).recData());
    }
}

TYPED_TEST(Parents, LoseProductDataOfAnUnknownKindInAddedChildren) {
    // As they do in any copy, although a child that is moved in need not be copied.
    auto parent = this->threeChildren();
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        auto given = TypeParam::child(id, "given");
        delete TypeParam::firstRec(given).recData();
        TypeParam::firstRec(given).setRecData(new QenRecData(test::uuid(99), RecTypeNone));
        (parent.*TypeParam::add)(std::move(given));
        auto& added = this->children(parent).at(id - 11);
        ASSERT_EQ(added.name(), "given");
        EXPECT_EQ(TypeParam::firstRec(added).recData(), nullptr);
    }
}

TYPED_TEST(Parents, ReplacingAChildReleasesTheEarlierOne) {
    auto parent = this->threeChildren();
    const auto replacement = TypeParam::child(12, "second");
    this->add(parent, replacement);
    const test::LivingMemory before = test::livingMemory();
    this->add(parent, replacement);
    EXPECT_EQ(test::livingMemory(), before);
}

TYPED_TEST(Parents, AssignmentReplacesEverythingAndReleasesTheEarlierChildren) {
    const test::LivingMemory before = test::livingMemory();
    {
        auto source = TypeParam::parent(21, "source");
        this->add(source, TypeParam::child(23, "child"));
        auto target = this->threeChildren();
        target = source;
        EXPECT_EQ(describe(target), describe(source));
    }
    {
        const auto source = this->threeChildren();
        auto target = this->threeChildren();
        target = source; // element by element
        auto copy = source;
        this->children(target) = this->children(copy);
        std::vector<typename TypeParam::Parent> parents{source, target};
        parents = {source, source};
        parents.erase(parents.begin());
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TYPED_TEST(Parents, AreIndependentOfTheirCopies) {
    auto parent = this->threeChildren();
    const string before = describe(parent);
    auto copy(parent);
    EXPECT_EQ(describe(copy), before);
    this->add(copy, TypeParam::child(14, "new"));
    TypeParam::firstRec(this->children(copy)[0]).setName("changed");
    copy.setName("changed");
    EXPECT_EQ(describe(parent), before);
    EXPECT_NE(TypeParam::firstRec(this->children(copy)[0]).recData(),
              TypeParam::firstRec(this->children(parent)[0]).recData());
}

TYPED_TEST(Parents, WithoutMemoryForAChildKeepTheirListAsItIs) {
    for (const unsigned id : {12U, 14U}) {
        SCOPED_TRACE(id);
        const auto added = TypeParam::child(id, string(100, 'x'));
        auto parent = this->threeChildren();
        const string unchanged = describe(parent);
        const test::LivingMemory before = test::livingMemory();
        std::size_t successes = 0;
        while (test::runsOutOfMemory(successes, [&] { this->add(parent, added); })) {
            EXPECT_EQ(test::livingMemory(), before);
            EXPECT_EQ(describe(parent), unchanged);
            ++successes;
        }
        EXPECT_GE(successes, 5U);
    }
}
