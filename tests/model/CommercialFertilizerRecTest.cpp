#include "model/CommercialFertilizerRec.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using Rec = CommercialFertilizerRec;

static_assert(std::is_base_of_v<QenRecData, Rec>);
static_assert(std::is_convertible_v<Rec*, QenRecData*>, "the base is public");
static_assert(std::has_virtual_destructor_v<Rec>);
static_assert(!std::is_default_constructible_v<Rec>);
static_assert(std::is_constructible_v<Rec, const uuid&, const int&, const string&, const int&,
                                      const string&>);
static_assert(!std::is_constructible_v<Rec, const uuid&, const uuid&, const string&, const int&,
                                       const string&>,
              "the product identifier is a number");

} // namespace

TEST(CommercialFertilizerRec, ReturnsEveryValueThatItWasBuiltWith) {
    CommercialFertilizerRec data(test::uuid(1), 2, "product", 3, "unit");
    EXPECT_EQ(data.recId(), test::uuid(1));
    EXPECT_EQ(test::valueOf<int>(data, &CommercialFertilizerRec::productId), 2);
    EXPECT_EQ(test::valueOf<string>(data, &CommercialFertilizerRec::productName), "product");
    EXPECT_EQ(test::valueOf<int>(data, &CommercialFertilizerRec::uomId), 3);
    EXPECT_EQ(test::valueOf<string>(data, &CommercialFertilizerRec::uom), "unit");
}
