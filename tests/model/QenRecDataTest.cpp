#include "model/QenRecData.h"

#include <memory>

#include <gtest/gtest.h>

#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using test::hasType;

static_assert(std::is_same_v<std::underlying_type_t<RecType>, std::int32_t>);
static_assert(std::is_convertible_v<RecType, int>, "the enumeration is unscoped");
static_assert(RecTypeNone == 0);
static_assert(RecTypeCommercialFertilizer == 1);
static_assert(RecTypeCustomFertilizer == 2);
static_assert(RecTypePlanting == 3);
static_assert(RecTypePesticide == 4);

static_assert(std::has_virtual_destructor_v<QenRecData>);
static_assert(std::is_default_constructible_v<QenRecData>);
static_assert(std::is_constructible_v<QenRecData, uuid, RecType>);
static_assert(hasType<test::Getter<QenRecData, uuid>>(&QenRecData::recId));
static_assert(hasType<test::Getter<QenRecData, RecType>>(&QenRecData::recType));
static_assert(hasType<test::Comparison<QenRecData>>(&QenRecData::operator==));
static_assert(!test::hasNotEqual<QenRecData>);

/// Tells by a counter that it was destroyed.
class CountingRecData : public QenRecData {
public:
    explicit CountingRecData(int& destroyed) : destroyed_(destroyed) {}
    CountingRecData(const CountingRecData&) = delete;
    CountingRecData& operator=(const CountingRecData&) = delete;
    ~CountingRecData() override { ++destroyed_; }

private:
    int& destroyed_;
};

/// Shows that derived classes see both values.
class OpenRecData : public QenRecData {
public:
    void set(uuid recId, RecType recType) {
        recId_ = recId;
        recType_ = recType;
    }
};

} // namespace

TEST(QenRecData, IsOfNoRecAndNoKindByDefault) {
    QenRecData data;
    EXPECT_EQ(data.recId(), uuid{});
    EXPECT_EQ(data.recType(), RecTypeNone);
}

TEST(QenRecData, KeepsTheGivenRecIdAndKind) {
    QenRecData data(test::uuid(7), RecTypePlanting);
    EXPECT_EQ(data.recId(), test::uuid(7));
    EXPECT_EQ(data.recType(), RecTypePlanting);
}

TEST(QenRecData, KeepsKindsThatAreNoEnumerators) {
    EXPECT_EQ(QenRecData(test::uuid(7), static_cast<RecType>(5)).recType(), 5);
    EXPECT_EQ(QenRecData(test::uuid(7), static_cast<RecType>(-1)).recType(), -1);
}

TEST(QenRecData, DerivedClassesSeeItsValues) {
    OpenRecData data;
    data.set(test::uuid(8), RecTypePesticide);
    EXPECT_EQ(data.recId(), test::uuid(8));
    EXPECT_EQ(data.recType(), RecTypePesticide);
}

TEST(QenRecData, TwoDefaultConstructedOnesAreEqual) {
    const QenRecData one;
    const QenRecData other;
    EXPECT_TRUE(one == other);
}

TEST(QenRecData, DifferentRecIdsAreUnequalInEveryByte) {
    const QenRecData one(uuid{}, RecTypeNone);
    for (std::size_t i = 0; i < uuid::static_size(); ++i) {
        uuid id{};
        id.begin()[i] = 1;
        EXPECT_FALSE(one == QenRecData(id, RecTypeNone)) << "byte " << i;
    }
}

TEST(QenRecData, KindsAreNotCompared) {
    EXPECT_TRUE(QenRecData(test::uuid(1), RecTypePlanting) ==
                QenRecData(test::uuid(1), RecTypePesticide));
}

TEST(QenRecData, DifferentVariantsOfOneRecAreEqual) {
    const PlantingRec planting(test::uuid(1), 1, "corn", 2, "company", 3, "variety", 4, "seeds");
    const PesticideRec mix(test::uuid(1), {}, {}, "mix", 5, "l");
    const PesticideRec otherMix(test::uuid(2), {}, {}, "mix", 5, "l");
    EXPECT_TRUE(static_cast<const QenRecData&>(planting) == mix);
    EXPECT_FALSE(static_cast<const QenRecData&>(planting) == otherMix);
}

TEST(QenRecData, DeletingThroughTheBaseDestroysTheVariant) {
    int destroyed = 0;
    std::unique_ptr<QenRecData> data = std::make_unique<CountingRecData>(destroyed);
    data.reset();
    EXPECT_EQ(destroyed, 1);
}
