#include "parser/internal/TagConstants.h"

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

TEST(TagNames, AreThoseOfThePackageFormatInTheirOrder) {
    // "PestcideByPercent" and "PestcideByAmount" are spelt so, and "ProductID" and "ProductName"
    // stand twice.
    std::istringstream names(
        "RecPackage Grower GrowerName GrowerID Farm FarmName FarmID Field FieldName "
        "FieldID FieldGeometryID FieldGeometryDate FieldGeometry FieldCentroid "
        "Latitude Longitude Recommendations Rec RecName RecID MgmtZoneID RecGeometry "
        "CreationDate EditDate RecDBFCol Operation OpID OpName Season SeasonID "
        "SeasonName RecData ProductID ProductName UOMID UOM Percent Amount "
        "CommercialFertilizer CustomFertilizer SFertT_ID SpGravity Pct_N Pct_P Pct_K "
        "Pct_Ca Pct_Mg Pct_S Pct_Fe Pct_Mn Pct_Zn Pct_Cu Pct_B Pct_Mo Pct_Cl "
        "Planting CropID CropName CompanyID CompanyName VarietyID VarietyName "
        "ProductID ProductName RegCodeID RegCode Pesticide PestcideByPercent "
        "PestcideByAmount PesticideMixName Herbicide Insecticide Fungicide Additive "
        "GrowthRegulator Carrier RecStats MinimumRate MaximumRate AverageRate "
        "RateUOMID RateUOM Total TotalUOMID TotalUOM Area AreaUOMID AreaUOM");
    const std::vector<std::string> expected(std::istream_iterator<std::string>(names), {});
    ASSERT_EQ(88U, expected.size());
    EXPECT_EQ(expected, std::vector<std::string>(qenxml::tag::all.begin(), qenxml::tag::all.end()));
    // LayoutTest compares the table that a parser holds with this list.
}
