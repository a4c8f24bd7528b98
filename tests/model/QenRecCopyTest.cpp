// Copies of recs: by construction, by assignment, with their product data, without memory.

#include <memory>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "tests/model/WholeRec.h"
#include "tests/support/Describe.h"
#include "tests/support/WatchedMemory.h"

namespace {

using std::string;
using test::CountingRecData;
using test::describe;
using test::planting;
using test::properties;
using test::recOfKind;
using test::wholeRec;
using Property = test::Property<QenRec>;

/// A rec with this product data is copied with a copy of it, of its class and kind and with all
/// that it holds.
template <class Data>
void expectCopied(Data* data) {
    const QenRec rec = wholeRec(data);
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_NE(copy.recData(), data);
    EXPECT_EQ(copy.recData()->recType(), data->recType());
    EXPECT_NE(dynamic_cast<Data*>(copy.recData()), nullptr);
    EXPECT_EQ(describe(copy.recData()), describe(data));
}

void expectCopiedWithoutProductData(const QenRec& rec) {
    EXPECT_EQ(QenRec(rec).recData(), nullptr);
    QenRec assigned;
    assigned = rec;
    EXPECT_EQ(assigned.recData(), nullptr);
}

} // namespace

TEST(QenRec, ACopyHasEveryValue) {
    QenRec rec = wholeRec();
    for (const Property& property : properties())
        property.set(rec);
    QenRec copy(rec);
    EXPECT_EQ(values(properties(), copy), values(properties(), rec));
    EXPECT_EQ(copy.editDate(), "edited");
    EXPECT_TRUE(copy.isUsed());
    EXPECT_EQ(copy.xmlFileName(), test::uuid(116));
}

TEST(QenRec, AssignmentCarriesEveryValue) {
    QenRec rec = wholeRec();
    for (const Property& property : properties())
        property.set(rec);
    QenRec target = wholeRec();
    QenRec& result = target = rec;
    EXPECT_EQ(&result, &target);
    EXPECT_EQ(values(properties(), target), values(properties(), rec));
}

TEST(QenRec, AssignmentCarriesTheUsedMarkAndTheFileName) {
    QenRec used = wholeRec(nullptr, true);
    QenRec notUsed = wholeRec(nullptr, false);
    notUsed.setXmlFileName(test::uuid(17));

    QenRec target = notUsed;
    target = used;
    EXPECT_TRUE(target.isUsed());
    EXPECT_EQ(target.xmlFileName(), test::uuid(16));

    target = notUsed;
    EXPECT_FALSE(target.isUsed());
    EXPECT_EQ(target.xmlFileName(), test::uuid(17));
}

TEST(QenRec, ACopyOfARecWithoutProductDataHasNone) {
    const QenRec rec = wholeRec();
    expectCopiedWithoutProductData(rec);
}

TEST(QenRec, AssigningARecWithoutProductDataTakesTheTargetsAway) {
    int destroyed = 0;
    {
        QenRec target = wholeRec(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(target.recData());
        target = wholeRec();
        EXPECT_EQ(target.recData(), nullptr);
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, AssignmentDoesNotDeleteTheEarlierProductData) {
    int destroyed = 0;
    {
        const QenRec source = wholeRec(planting());
        QenRec target = wholeRec(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(target.recData());
        target = source;
        EXPECT_EQ(destroyed, 0);
        EXPECT_NE(target.recData(), earlier.get());
    }
    EXPECT_EQ(destroyed, 1) << "only the test deletes it";
}

TEST(QenRec, SelfAssignmentChangesNothing) {
    QenRec rec = wholeRec(planting());
    rec.setEditDate("edited");
    QenRecData* const data = rec.recData();
    const string before = describe(rec);
    const QenRec& itself = rec;
    rec = itself;
    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, SelfAssignmentKeepsProductDataOfAKindThatCopiesDrop) {
    QenRec rec = recOfKind(RecTypeNone);
    QenRecData* const data = rec.recData();
    const QenRec& itself = rec;
    rec = itself;
    EXPECT_EQ(rec.recData(), data);
}

TEST(QenRec, MovingIsCopying) {
    QenRec rec = wholeRec(planting());
    const string before = describe(rec);
    QenRecData* const data = rec.recData();

    QenRec constructed(std::move(rec));
    EXPECT_EQ(describe(constructed), before);
    EXPECT_NE(constructed.recData(), data);

    QenRec assigned;
    assigned = std::move(rec); // NOLINT(bugprone-use-after-move): that it may be used is the point
    EXPECT_EQ(describe(assigned), before);
    EXPECT_NE(assigned.recData(), data);

    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, CopiesAPlanting) {
    expectCopied(
        new PlantingRec(test::uuid(21), 22, "crop", 23, "company", 24, "variety", 25, "seeds"));
}

TEST(QenRec, CopiesACommercialFertilizer) {
    expectCopied(new CommercialFertilizerRec(test::uuid(21), 22, "product", 23, "kg"));
}

TEST(QenRec, CopiesACustomFertilizer) {
    expectCopied(new CustomFertilizerRec(test::uuid(21), test::uuid(22), "blend", 23, "l", 24, 25.5,
                                         26.5, 27.5, 28.5, 29.5, 30.5, 31.5, 32.5, 33.5, 34.5, 35.5,
                                         36.5, 37.5, 38.5));
}

TEST(QenRec, CopiesAPesticideMixWithItsLines) {
    QenRec rec = wholeRec(new PesticideRec(
        test::uuid(21),
        {PesticideByPercent(1, "first", 2, "code 1", Herbicide, 12.5),
         PesticideByPercent(3, "second", 4, "code 2", Additive, 87.5)},
        {PesticideByAmount(5, "third", 6, "code 3", Carrier, 3.5, 7, "gal")}, "mix", 22, "l"));
    const string before = describe(rec.recData());
    expectCopied(new PesticideRec(static_cast<PesticideRec&>(*rec.recData())));

    QenRec copy(rec);
    auto* data = dynamic_cast<PesticideRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    data->setPesticideMixName("other mix");
    data->setUom("other unit");
    data->addPesticideByPercent(PesticideByPercent(8, "fourth", 9, "code 4", Fungicide, 1.0));
    data->addPesticideByAmount(PesticideByAmount(8, "fifth", 9, "code 5", Carrier, 1.0, 1, "l"));
    EXPECT_EQ(describe(rec.recData()), before);
}

TEST(QenRec, ChangingTheProductDataOfACopyLeavesTheSourceAlone) {
    QenRec rec = wholeRec(new CustomFertilizerRec(test::uuid(21), test::uuid(22), "blend", 23, "l",
                                                  24, 25.5, 26.5, 27.5, 28.5, 29.5, 30.5, 31.5,
                                                  32.5, 33.5, 34.5, 35.5, 36.5, 37.5, 38.5));
    const string before = describe(rec);
    QenRec copy(rec);
    auto* data = dynamic_cast<CustomFertilizerRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    data->setProductName("other blend");
    data->setRecId(test::uuid(31));
    data->setPct_N(99.0);
    copy.setName("other name");
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, ProductDataKeepsItsOwnRecIdInACopy) {
    QenRec rec = wholeRec(planting());
    ASSERT_NE(rec.id(), rec.recData()->recId());
    EXPECT_EQ(QenRec(rec).recData()->recId(), rec.recData()->recId());
}

TEST(QenRec, CopiesDropProductDataOfAnUnknownKind) {
    for (const int kind : {0, -1, 99, 2147483647}) {
        SCOPED_TRACE(kind);
        QenRec rec = recOfKind(static_cast<RecType>(kind));
        expectCopiedWithoutProductData(rec);
        EXPECT_NE(rec.recData(), nullptr) << "the source keeps it";
    }
}

TEST(QenRec, CopiesDropADefaultConstructedCustomFertilizer) {
    auto* data = new CustomFertilizerRec();
    data->setRecId(test::uuid(1));
    data->setProductName("blend");
    const QenRec rec = wholeRec(data);
    expectCopiedWithoutProductData(rec);
}

TEST(QenRec, CopiesDropADefaultConstructedPesticideMix) {
    auto* data = new PesticideRec();
    data->setPesticideMixName("mix");
    const QenRec rec = wholeRec(data);
    expectCopiedWithoutProductData(rec);
}

TEST(QenRec, DroppedProductDataIsNotDeletedFromTheSource) {
    int destroyed = 0;
    {
        const QenRec rec = wholeRec(new CountingRecData(destroyed, static_cast<RecType>(99)));
        { const QenRec copy(rec); }
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, TheCopysKindDecidesAndNotItsClass) {
    // A class of the caller's own, derived from a variant, is copied as that variant.
    class OwnPlanting : public PlantingRec {
    public:
        OwnPlanting() : PlantingRec(test::uuid(1), 2, "crop", 3, "c", 4, "v", 5, "seeds") {}
    };
    QenRec rec = wholeRec(new OwnPlanting());
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_EQ(dynamic_cast<OwnPlanting*>(copy.recData()), nullptr);
    EXPECT_EQ(describe(copy.recData()), describe(rec.recData()));
}

TEST(QenRec, CopiesLeaveNothingBehind) {
    const test::LivingMemory before = test::livingMemory();
    {
        const QenRec rec = wholeRec(planting());
        const QenRec copy(rec);
        const QenRec copyOfCopy(copy);
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenRec, WithoutMemoryForProductDataTheTargetKeepsItsOwnAndHasTheSourcesOtherValues) {
    // The texts are so short that they need no memory of their own: only the product data does.
    QenRec source;
    for (const Property& property : properties())
        property.set(source);
    source.setRecData(planting());
    QenRec expected = source;
    QenRec target;
    QenRecData* const data = planting(5);
    target.setRecData(data);

    ASSERT_TRUE(test::runsOutOfMemory(0, [&] { target = source; }));
    EXPECT_EQ(target.recData(), data);
    EXPECT_EQ(values(properties(), target), values(properties(), expected));
}

TEST(QenRec, RunningOutOfMemoryAnywhereLeavesTheTargetItsProductDataAndLeaksNothing) {
    const string longText(100, 'x');
    QenRec source = wholeRec(
        new PlantingRec(test::uuid(1), 2, longText, 3, longText, 4, longText, 5, longText));
    source.setName(longText);
    source.setAreaUom(longText);
    std::size_t successes = 0;
    for (;; ++successes) {
        SCOPED_TRACE(successes);
        const test::LivingMemory before = test::livingMemory();
        {
            QenRec target = wholeRec(planting(5));
            const std::unique_ptr<QenRecData> earlier(target.recData());
            const bool failed = test::runsOutOfMemory(successes, [&] { target = source; });
            if (!failed)
                break;
            EXPECT_EQ(target.recData(), earlier.get());
            target.setRecData(nullptr); // The test deletes it.
        }
        EXPECT_EQ(test::livingMemory(), before);
    }
    EXPECT_GE(successes, 5U) << "the object, its texts and those of the rec";
}

TEST(QenRec, RunningOutOfMemoryWhileCopyingLeaksNothing) {
    const string longText(100, 'x');
    const QenRec source = wholeRec(new PesticideRec(
        test::uuid(21), {PesticideByPercent(1, longText, 2, longText, Herbicide, 12.5)},
        {PesticideByAmount(5, longText, 6, longText, Carrier, 3.5, 7, longText)}, longText, 22,
        longText));
    std::size_t successes = 0;
    for (;; ++successes) {
        SCOPED_TRACE(successes);
        const test::LivingMemory before = test::livingMemory();
        const bool failed = test::runsOutOfMemory(successes, [&] { const QenRec copy(source); });
        EXPECT_EQ(test::livingMemory(), before);
        if (!failed)
            break;
    }
    EXPECT_GE(successes, 5U);
}
