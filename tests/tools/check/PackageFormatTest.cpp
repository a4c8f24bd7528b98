#include "tools/check/PackageFormat.h"

#include <string>

#include <gtest/gtest.h>

#include "parser/internal/TagConstants.h"

namespace tag = qenxml::tag;

namespace {

bool belongsToPesticides(const char* name) {
    // From the second "ProductID" on; "Percent" and "Amount" stand elsewhere in the list.
    bool inRange = false;
    for (const char* other : tag::all) {
        inRange = (inRange || other == tag::PesticideProductID) && other != tag::RecStats;
        if (inRange && name == other)
            return true;
    }
    return name == tag::Percent || name == tag::Amount;
}

TEST(PackageFormat, HasAPlaceForEveryNameThatIsRead) {
    for (const char* name : tag::all) {
        if (name == tag::RecPackage || belongsToPesticides(name))
            continue;
        EXPECT_NE(locationsOf(name), "") << name;
    }
}

TEST(PackageFormat, SaysWhereANameIsRead) {
    EXPECT_EQ(locationsOf("RecID"), "as an attribute of Rec");
    EXPECT_EQ(locationsOf("Latitude"), "in FieldCentroid");
    EXPECT_EQ(locationsOf("Rec"), "in Recommendations");
    EXPECT_EQ(locationsOf("ProductID"), "in CommercialFertilizer or in CustomFertilizer");
    // In the order of the table; further kinds of products would follow.
    const std::string known = "in CommercialFertilizer or in CustomFertilizer or in Planting";
    EXPECT_EQ(locationsOf("UOMID").substr(0, known.size()), known);
    EXPECT_EQ(locationsOf("recid"), "");
    EXPECT_EQ(locationsOf("RegCode"), ""); // of a pesticide, which is not read
}

} // namespace
