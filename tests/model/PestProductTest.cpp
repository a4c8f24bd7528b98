#include "model/PestProduct.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"

namespace {

using std::string;
using test::hasType;

static_assert(std::is_same_v<std::underlying_type_t<PesticideType>, std::int32_t>);
static_assert(std::is_convertible_v<PesticideType, int>, "the enumeration is unscoped");
static_assert(Herbicide == 0);
static_assert(Insecticide == 1);
static_assert(Fungicide == 2);
static_assert(Additive == 3);
static_assert(GrowthRegulator == 4);
static_assert(Carrier == 5);

static_assert(!std::is_polymorphic_v<PestProduct>, "nothing virtual, the destructor included");
static_assert(!std::is_default_constructible_v<PestProduct>);
static_assert(std::is_constructible_v<PestProduct, const int&, const string&, const int&,
                                      const string&, const PesticideType&, const double&>);
static_assert(hasType<test::Getter<PestProduct, int>>(&PestProduct::productId));
static_assert(hasType<test::Getter<PestProduct, string>>(&PestProduct::productName));
static_assert(hasType<test::Getter<PestProduct, int>>(&PestProduct::regCodeId));
static_assert(hasType<test::Getter<PestProduct, string>>(&PestProduct::regCode));
static_assert(hasType<test::Getter<PestProduct, PesticideType>>(&PestProduct::pesticideType));
static_assert(hasType<test::Getter<PestProduct, double>>(&PestProduct::amount));

} // namespace

TEST(PestProduct, ReturnsEveryValueThatItWasBuiltWith) {
    PestProduct product(1, "product", 2, "code", Fungicide, 3.5);
    EXPECT_EQ(product.productId(), 1);
    EXPECT_EQ(product.productName(), "product");
    EXPECT_EQ(product.regCodeId(), 2);
    EXPECT_EQ(product.regCode(), "code");
    EXPECT_EQ(product.pesticideType(), Fungicide);
    EXPECT_EQ(product.amount(), 3.5);
}

TEST(PestProduct, KeepsEveryKindUnchanged) {
    for (const PesticideType type : {Herbicide, Insecticide, Fungicide, Additive, GrowthRegulator,
                                     Carrier, static_cast<PesticideType>(77)})
        EXPECT_EQ(PestProduct(1, "product", 2, "code", type, 3.5).pesticideType(), type);
}
