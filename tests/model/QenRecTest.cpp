#include "model/QenRec.h"

#include <memory>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/model/WholeRec.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::CountingRecData;
using test::hasType;
using test::planting;
using test::properties;
using test::wholeRec;
using Property = test::Property<QenRec>;

template <class Value>
using Getter = test::Getter<QenRec, Value>;

template <class Value>
using Setter = test::Setter<QenRec, Value>;

static_assert(!std::is_polymorphic_v<QenRec>, "nothing virtual, the destructor included");
static_assert(std::is_default_constructible_v<QenRec>);
static_assert(
    std::is_constructible_v<QenRec, uuid, uuid, string, uuid, uuid, string, string, string, uuid,
                            string, int, uuid, QenRecData*, double, double, double, string, int,
                            double, int, string, double, int, string, bool, uuid>);
static_assert(std::is_copy_constructible_v<QenRec>);
static_assert(std::is_move_constructible_v<QenRec> && !std::is_nothrow_move_constructible_v<QenRec>,
              "a moved rec is a copied rec");
static_assert(std::is_move_assignable_v<QenRec> && !std::is_nothrow_move_assignable_v<QenRec>);
static_assert(hasType<QenRec& (QenRec::*)(const QenRec&)>(&QenRec::operator=));
static_assert(hasType<test::Comparison<QenRec>>(&QenRec::operator==));
static_assert(!test::hasNotEqual<QenRec>);

static_assert(hasType<Getter<QenRecData*>>(&QenRec::recData));
static_assert(hasType<Setter<QenRecData*>>(&QenRec::setRecData));

} // namespace

TEST(QenRec, IsEmptyByDefault) {
    QenRec rec;
    EXPECT_EQ(values(properties(), rec), values(properties(), &Property::initialValue));
    EXPECT_EQ(rec.recData(), nullptr);
}

TEST(QenRec, ReturnsEveryValueThatItWasBuiltWith) {
    PlantingRec* data = planting();
    QenRec rec = wholeRec(data, true);
    EXPECT_EQ(values(properties(), rec), values(properties(), &Property::builtValue));
    EXPECT_EQ(rec.recData(), data);
}

TEST(QenRec, HasNoEditDateWhenBuiltWhole) {
    EXPECT_EQ(wholeRec().editDate(), "");
}

TEST(QenRec, IsNotUsedWhenBuiltSo) {
    EXPECT_FALSE(wholeRec(nullptr, false).isUsed());
}

TEST(QenRec, EachSetterReplacesItsOwnValueAndNoOther) {
    for (const Property& property : properties()) {
        SCOPED_TRACE(property.name);
        QenRec original = wholeRec();
        QenRec rec = wholeRec(planting());
        QenRecData* const data = rec.recData();
        property.set(rec);
        EXPECT_EQ(values(properties(), rec), valuesWith(property, properties(), original));
        EXPECT_EQ(rec.recData(), data);
    }
}

TEST(QenRec, SetRecDataStoresThePointerAndChangesNothingElse) {
    QenRec original = wholeRec();
    QenRec rec = wholeRec();
    PlantingRec* const data = planting();
    rec.setRecData(data);
    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(values(properties(), rec), values(properties(), original));
}

TEST(QenRec, SetRecDataDoesNotDeleteTheEarlierProductData) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(rec.recData());
        rec.setRecData(planting());
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1) << "only the test deletes it";
}

TEST(QenRec, SetRecDataOfNullLeavesTheRecWithoutProductData) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(rec.recData());
        rec.setRecData(nullptr);
        EXPECT_EQ(rec.recData(), nullptr);
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, DeletesItsProductDataWhenDestroyed) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
    }
    EXPECT_EQ(destroyed, 1);
    { const QenRec rec = wholeRec(new CountingRecData(destroyed)); }
    EXPECT_EQ(destroyed, 2);
}

TEST(QenRec, EqualityComparesTheIdAlone) {
    QenRec rec = wholeRec(planting());
    for (const Property& property : properties()) {
        SCOPED_TRACE(property.name);
        QenRec other = rec;
        property.set(other);
        EXPECT_EQ(rec == other, property.name != "id");
    }
}

TEST(QenRec, RecsOfOneIdAndDifferentProductDataAreEqual) {
    const QenRec one = wholeRec(planting());
    const QenRec other =
        wholeRec(new CommercialFertilizerRec(test::uuid(99), 1, "product", 2, "kg"));
    EXPECT_TRUE(one == other);
    EXPECT_TRUE(one == wholeRec());
}

TEST(QenRec, DefaultConstructedRecsAreEqual) {
    EXPECT_TRUE(QenRec() == QenRec());
}
