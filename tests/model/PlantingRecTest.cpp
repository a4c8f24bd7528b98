#include "model/PlantingRec.h"

#include <gtest/gtest.h>

#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;

static_assert(std::is_base_of_v<QenRecData, PlantingRec>);
static_assert(std::is_convertible_v<PlantingRec*, QenRecData*>, "the base is public");
static_assert(std::has_virtual_destructor_v<PlantingRec>);
static_assert(!std::is_default_constructible_v<PlantingRec>);
static_assert(
    std::is_constructible_v<PlantingRec, const uuid&, const int&, const string&, const int&,
                            const string&, const int&, const string&, const int&, const string&>);

} // namespace

TEST(PlantingRec, ReturnsEveryValueThatItWasBuiltWith) {
    PlantingRec data(test::uuid(1), 2, "crop", 3, "company", 4, "variety", 5, "unit");
    EXPECT_EQ(data.recId(), test::uuid(1));
    EXPECT_EQ(test::valueOf<int>(data, &PlantingRec::cropId), 2);
    EXPECT_EQ(test::valueOf<string>(data, &PlantingRec::cropName), "crop");
    EXPECT_EQ(test::valueOf<int>(data, &PlantingRec::companyId), 3);
    EXPECT_EQ(test::valueOf<string>(data, &PlantingRec::companyName), "company");
    EXPECT_EQ(test::valueOf<int>(data, &PlantingRec::varietyId), 4);
    EXPECT_EQ(test::valueOf<string>(data, &PlantingRec::varietyName), "variety");
    EXPECT_EQ(test::valueOf<int>(data, &PlantingRec::uomId), 5);
    EXPECT_EQ(test::valueOf<string>(data, &PlantingRec::uom), "unit");
}

TEST(PlantingRec, KeepsValuesThatLookWrong) {
    const string bytes("\xff\0 x ", 5);
    PlantingRec data(uuid{}, -2147483647 - 1, bytes, 2147483647, "", -1, " ", 0, "\n");
    EXPECT_EQ(data.recId(), uuid{});
    EXPECT_EQ(data.cropId(), -2147483647 - 1);
    EXPECT_EQ(data.cropName(), bytes);
    EXPECT_EQ(data.companyId(), 2147483647);
    EXPECT_EQ(data.companyName(), "");
    EXPECT_EQ(data.varietyId(), -1);
    EXPECT_EQ(data.varietyName(), " ");
    EXPECT_EQ(data.uomId(), 0);
    EXPECT_EQ(data.uom(), "\n");
}
