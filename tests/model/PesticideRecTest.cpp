#include "model/PesticideRec.h"

#include <gtest/gtest.h>

#include "tests/support/Describe.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::describe;
using test::hasType;
using Percents = std::vector<PesticideByPercent>;
using Amounts = std::vector<PesticideByAmount>;

static_assert(std::is_base_of_v<QenRecData, PesticideRec>);
static_assert(std::is_convertible_v<PesticideRec*, QenRecData*>, "the base is public");
static_assert(std::has_virtual_destructor_v<PesticideRec>);
static_assert(std::is_default_constructible_v<PesticideRec>);
static_assert(std::is_constructible_v<PesticideRec, const uuid&, Percents, Amounts, const string&,
                                      const int&, const string&>);
static_assert(hasType<test::Getter<PesticideRec, Percents>>(&PesticideRec::pesticidesByPercent));
static_assert(hasType<test::Getter<PesticideRec, Amounts>>(&PesticideRec::pesticidesByAmount));
static_assert(hasType<test::Getter<PesticideRec, string>>(&PesticideRec::pesticideMixName));
static_assert(hasType<test::Getter<PesticideRec, int>>(&PesticideRec::uomId));
static_assert(hasType<test::Getter<PesticideRec, string>>(&PesticideRec::uom));
static_assert(
    hasType<test::Setter<PesticideRec, const string&>>(&PesticideRec::setPesticideMixName));
static_assert(hasType<test::Setter<PesticideRec, const int&>>(&PesticideRec::setUomId));
static_assert(hasType<test::Setter<PesticideRec, const string&>>(&PesticideRec::setUom),
              "a text, unlike that of CustomFertilizerRec");
static_assert(hasType<test::Setter<PesticideRec, const PesticideByPercent&>>(
    &PesticideRec::addPesticideByPercent));
static_assert(hasType<test::Setter<PesticideRec, const PesticideByAmount&>>(
    &PesticideRec::addPesticideByAmount));

PesticideByPercent percent(int productId) {
    return PesticideByPercent(productId, "by percent", productId + 1, "code p", Herbicide, 12.5);
}

PesticideByAmount amount(int productId) {
    return PesticideByAmount(productId, "by amount", productId + 1, "code a", Carrier, 3.5, 9, "l");
}

PesticideRec mix() {
    return PesticideRec(test::uuid(1), {percent(10), percent(20)}, {amount(30)}, "mix", 2, "unit");
}

/// The product identifiers of the lines, in order.
template <class Lines>
std::vector<int> products(Lines lines) {
    std::vector<int> result;
    for (PestProduct& line : lines)
        result.push_back(line.productId());
    return result;
}

} // namespace

TEST(PesticideRec, IsEmptyAndOfNoKindByDefault) {
    PesticideRec data;
    EXPECT_EQ(data.recType(), RecTypeNone);
    EXPECT_EQ(data.recId(), uuid{});
    EXPECT_EQ(products(data.pesticidesByPercent()), std::vector<int>{});
    EXPECT_EQ(products(data.pesticidesByAmount()), std::vector<int>{});
    EXPECT_EQ(data.pesticideMixName(), "");
    EXPECT_EQ(data.uomId(), -1);
    EXPECT_EQ(data.uom(), "");
}

TEST(PesticideRec, ReturnsEveryValueThatItWasBuiltWith) {
    PesticideRec data = mix();
    EXPECT_EQ(data.recId(), test::uuid(1));
    EXPECT_EQ(products(data.pesticidesByPercent()), (std::vector<int>{10, 20}));
    EXPECT_EQ(products(data.pesticidesByAmount()), std::vector<int>{30});
    EXPECT_EQ(data.pesticideMixName(), "mix");
    EXPECT_EQ(data.uomId(), 2);
    EXPECT_EQ(data.uom(), "unit");
}

TEST(PesticideRec, KeepsWholeLines) {
    PesticideRec data = mix();
    PesticideByPercent first = data.pesticidesByPercent().at(0);
    EXPECT_EQ(first.productId(), 10);
    EXPECT_EQ(first.productName(), "by percent");
    EXPECT_EQ(first.regCodeId(), 11);
    EXPECT_EQ(first.regCode(), "code p");
    EXPECT_EQ(first.pesticideType(), Herbicide);
    EXPECT_EQ(first.amount(), 12.5);
    PesticideByAmount second = data.pesticidesByAmount().at(0);
    EXPECT_EQ(second.productId(), 30);
    EXPECT_EQ(second.productName(), "by amount");
    EXPECT_EQ(second.regCodeId(), 31);
    EXPECT_EQ(second.regCode(), "code a");
    EXPECT_EQ(second.pesticideType(), Carrier);
    EXPECT_EQ(second.amount(), 3.5);
    EXPECT_EQ(second.uomId(), 9);
    EXPECT_EQ(second.uom(), "l");
}

TEST(PesticideRec, LeavesTheListsOfItsMakerAlone) {
    Percents percents{percent(10)};
    Amounts amounts{amount(30)};
    const PesticideRec data(test::uuid(1), percents, amounts, "mix", 2, "unit");
    EXPECT_EQ(products(percents), std::vector<int>{10});
    EXPECT_EQ(products(amounts), std::vector<int>{30});
}

TEST(PesticideRec, AddsLinesByPercentAtTheEnd) {
    PesticideRec data;
    data.addPesticideByPercent(percent(20));
    data.addPesticideByPercent(percent(10));
    EXPECT_EQ(products(data.pesticidesByPercent()), (std::vector<int>{20, 10}));
    EXPECT_EQ(products(data.pesticidesByAmount()), std::vector<int>{});
}

TEST(PesticideRec, AddsLinesByAmountAtTheEnd) {
    PesticideRec data;
    data.addPesticideByAmount(amount(20));
    data.addPesticideByAmount(amount(10));
    EXPECT_EQ(products(data.pesticidesByAmount()), (std::vector<int>{20, 10}));
    EXPECT_EQ(products(data.pesticidesByPercent()), std::vector<int>{});
}

TEST(PesticideRec, AddsAnEqualLineAgain) {
    PesticideRec data = mix();
    data.addPesticideByPercent(percent(10));
    data.addPesticideByAmount(amount(30));
    EXPECT_EQ(products(data.pesticidesByPercent()), (std::vector<int>{10, 20, 10}));
    EXPECT_EQ(products(data.pesticidesByAmount()), (std::vector<int>{30, 30}));
}

TEST(PesticideRec, HandsOutCopiesOfItsLists) {
    PesticideRec data;
    data.addPesticideByPercent(percent(1));
    data.addPesticideByPercent(percent(2));
    data.addPesticideByAmount(amount(3));
    Percents percents = data.pesticidesByPercent();
    Amounts amounts = data.pesticidesByAmount();
    percents.clear();
    amounts.clear();
    EXPECT_EQ(products(data.pesticidesByPercent()), (std::vector<int>{1, 2}));
    EXPECT_EQ(products(data.pesticidesByAmount()), std::vector<int>{3});
}

TEST(PesticideRec, EachSetterReplacesItsOwnValueAndNoOther) {
    PesticideRec data = mix();
    data.setPesticideMixName("other mix");
    PesticideRec renamed(test::uuid(1), {percent(10), percent(20)}, {amount(30)}, "other mix", 2,
                         "unit");
    EXPECT_EQ(describe(&data), describe(&renamed));

    data.setUomId(7);
    PesticideRec recoded(test::uuid(1), {percent(10), percent(20)}, {amount(30)}, "other mix", 7,
                         "unit");
    EXPECT_EQ(describe(&data), describe(&recoded));

    data.setUom("other unit");
    PesticideRec measured(test::uuid(1), {percent(10), percent(20)}, {amount(30)}, "other mix", 7,
                          "other unit");
    EXPECT_EQ(describe(&data), describe(&measured));
}

TEST(PesticideRec, SettersDoNotChangeTheKind) {
    PesticideRec empty;
    PesticideRec whole = mix();
    for (PesticideRec* data : {&empty, &whole}) {
        data->setPesticideMixName("other mix");
        data->setUomId(7);
        data->setUom("other unit");
        data->addPesticideByPercent(percent(1));
        data->addPesticideByAmount(amount(2));
    }
    EXPECT_EQ(empty.recType(), RecTypeNone);
    EXPECT_EQ(whole.recType(), RecTypePesticide);
}
