#include "model/PestProduct.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"

namespace {

using std::string;

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

} // namespace

TEST(PestProduct, ReturnsEveryValueThatItWasBuiltWith) {
    PestProduct product(1, "product", 2, "code", Fungicide, 3.5);
    EXPECT_EQ(test::valueOf<int>(product, &PestProduct::productId), 1);
    EXPECT_EQ(test::valueOf<string>(product, &PestProduct::productName), "product");
    EXPECT_EQ(test::valueOf<int>(product, &PestProduct::regCodeId), 2);
    EXPECT_EQ(test::valueOf<string>(product, &PestProduct::regCode), "code");
    EXPECT_EQ(test::valueOf<PesticideType>(product, &PestProduct::pesticideType), Fungicide);
    EXPECT_EQ(test::valueOf<double>(product, &PestProduct::amount), 3.5);
}

TEST(PestProduct, KeepsEveryKindUnchanged) {
    for (const PesticideType type : {Herbicide, Insecticide, Fungicide, Additive, GrowthRegulator,
                                     Carrier, static_cast<PesticideType>(77)})
        EXPECT_EQ(PestProduct(1, "product", 2, "code", type, 3.5).pesticideType(), type);
}
