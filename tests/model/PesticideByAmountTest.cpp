#include "model/PesticideByAmount.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"

namespace {

using std::string;

static_assert(std::is_base_of_v<PestProduct, PesticideByAmount>);
static_assert(std::is_convertible_v<PesticideByAmount*, PestProduct*>, "the base is public");
static_assert(!std::is_polymorphic_v<PesticideByAmount>);
static_assert(!std::is_default_constructible_v<PesticideByAmount>);
static_assert(
    std::is_constructible_v<PesticideByAmount, const int&, const string&, const int&, const string&,
                            const PesticideType&, const double&, const int&, const string&>);
static_assert(!std::is_constructible_v<PesticideByAmount, const int&, const string&, const int&,
                                       const string&, const PesticideType&, const double&>,
              "the unit is not optional");

} // namespace

TEST(PesticideByAmount, ReturnsEveryValueThatItWasBuiltWith) {
    PesticideByAmount product(1, "product", 2, "code", Carrier, 3.5, 4, "unit");
    EXPECT_EQ(product.productId(), 1);
    EXPECT_EQ(product.productName(), "product");
    EXPECT_EQ(product.regCodeId(), 2);
    EXPECT_EQ(product.regCode(), "code");
    EXPECT_EQ(product.pesticideType(), Carrier);
    EXPECT_EQ(product.amount(), 3.5);
    EXPECT_EQ(test::valueOf<int>(product, &PesticideByAmount::uomId), 4);
    EXPECT_EQ(test::valueOf<string>(product, &PesticideByAmount::uom), "unit");
}
