#include "model/PesticideByPercent.h"

#include <gtest/gtest.h>

namespace {

using std::string;

static_assert(std::is_base_of_v<PestProduct, PesticideByPercent>);
static_assert(std::is_convertible_v<PesticideByPercent*, PestProduct*>, "the base is public");
static_assert(!std::is_polymorphic_v<PesticideByPercent>);
static_assert(!std::is_default_constructible_v<PesticideByPercent>);
static_assert(std::is_constructible_v<PesticideByPercent, const int&, const string&, const int&,
                                      const string&, const PesticideType&, const double&>);

} // namespace

TEST(PesticideByPercent, ReturnsEveryValueThatItWasBuiltWith) {
    PesticideByPercent product(1, "product", 2, "code", Additive, 12.5);
    EXPECT_EQ(product.productId(), 1);
    EXPECT_EQ(product.productName(), "product");
    EXPECT_EQ(product.regCodeId(), 2);
    EXPECT_EQ(product.regCode(), "code");
    EXPECT_EQ(product.pesticideType(), Additive);
    EXPECT_EQ(product.amount(), 12.5);
}

TEST(PesticideByPercent, KeepsAnAmountThatIsNoPercentage) {
    EXPECT_EQ(PesticideByPercent(1, "product", 2, "code", Additive, -250.0).amount(), -250.0);
}
