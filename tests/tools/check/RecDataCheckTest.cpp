#include "tools/check/RecDataCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/tools/check/Findings.h"

namespace {

const std::string inRecData =
    "/RecPackage/Grower[1]/Farm[1]/Field[1]/Recommendations/Rec[1]/RecData";

std::string packageWithRecData(const std::string& content) {
    return test::packageWithRec(test::element("RecData", content));
}

TEST(RecDataCheck, NumbersProductsOfOneName) {
    const Finding second =
        test::findingOf(packageWithRecData("<Planting/><Planting/>"), FindingCode::SecondProduct);
    EXPECT_EQ(second.path, inRecData + "/Planting[2]");
    EXPECT_EQ(second.found, "Planting follows Planting; a rec has one product");
    EXPECT_EQ(test::toText(second.consequence), "dropped Planting");
    EXPECT_EQ(test::findingOf(packageWithRecData("<Planting/><CustomFertilizer/>"),
                              FindingCode::SecondProduct)
                  .path,
              inRecData + "/CustomFertilizer");
}

TEST(RecDataCheck, SaysWhichProductASecondOneFollowsThatATextComesBefore) {
    const Finding second = test::findingOf(packageWithRecData("text<Planting/><Pesticide/>"),
                                           FindingCode::SecondProduct);
    EXPECT_EQ(second.found, "Pesticide follows Planting; a rec has one product");
}

TEST(RecDataCheck, FindsProductsThatHaveNoName) {
    const auto found = [](const std::string& product) {
        std::string all;
        for (const Finding& finding :
             test::findingsOf(packageWithRecData(product), FindingCode::ProductWithoutName))
            all += finding.found + "\n";
        return all;
    };
    const auto fertilizer = [](const std::string& name) {
        return test::element("CommercialFertilizer",
                             "<ProductID>1</ProductID><UOMID>1</UOMID><UOM>kg</UOM>" + name);
    };
    EXPECT_EQ(found(fertilizer("<ProductName/>")),
              "ProductName of CommercialFertilizer is blank\n");
    EXPECT_EQ(found(fertilizer("<ProductName>&#160;</ProductName>")),
              "ProductName of CommercialFertilizer is blank\n");
    EXPECT_EQ(found(fertilizer("<ProductName>KAN</ProductName>")), "");
    EXPECT_EQ(found(fertilizer("")), ""); // incomplete, which is worse
    const auto planting = [](const std::string& crop, const std::string& variety) {
        return test::element("Planting", "<CropID>1</CropID>" + test::element("CropName", crop) +
                                             "<CompanyID>1</CompanyID><CompanyName>a</CompanyName>"
                                             "<VarietyID>1</VarietyID>" +
                                             test::element("VarietyName", variety) +
                                             "<UOMID>1</UOMID><UOM>kg</UOM>");
    };
    EXPECT_EQ(found(planting("", "")), "CropName and VarietyName of Planting are blank\n");
    EXPECT_EQ(found(planting("Maize", "")), "");
    EXPECT_EQ(found(planting("", "P9911")), "");
}

TEST(RecDataCheck, QuotesATextOfWhiteSpaceOnly) {
    const Finding text =
        test::findingOf(packageWithRecData("&#32;<Planting/>"), FindingCode::TextBeforeProduct);
    EXPECT_EQ(text.found, "the text \" \" stands where the product has to be");
    EXPECT_EQ(text.path, inRecData + "/text()");
    EXPECT_EQ(
        test::findingOf(packageWithRecData("\n see <Planting/>"), FindingCode::TextBeforeProduct)
            .found,
        "the text \"see\" stands where the product has to be");
}

TEST(RecDataCheck, FindsEveryTextAfterAProduct) {
    EXPECT_EQ(test::findingOf(packageWithRecData("<Pesticide/>late"), FindingCode::StrayText).found,
              "the text \"late\" stands in RecData, which holds elements only");
    EXPECT_TRUE(
        test::findingsOf(packageWithRecData("<Pesticide/>"), FindingCode::StrayText).empty());
}

TEST(RecDataCheck, SaysThatNumbersOfAnIncompleteProductMatterOnceItIsComplete) {
    const std::string all = "<CropID>x</CropID><CropName/><CompanyID>1</CompanyID><CompanyName/>"
                            "<VarietyID>1</VarietyID><VarietyName/><UOMID>1</UOMID>";
    const auto consequence = [&](const std::string& product) {
        return test::consequenceOf(packageWithRecData(test::element("Planting", product)),
                                   FindingCode::NotANumber);
    };
    EXPECT_EQ(consequence(all), "read as 0 once complete");
    EXPECT_EQ(consequence(all + "<UOM/>"), "read as 0");
    // It is said of no number behind the product.
    EXPECT_EQ(test::consequenceOf(test::packageWithRec("<RecData><Planting/></RecData>"
                                                       "<RecStats><Area>x</Area></RecStats>"),
                                  FindingCode::NotANumber),
              "read as 0");
}

TEST(RecDataCheck, NamesAllThatAProductLacks) {
    const auto lack = [](const std::string& content) {
        return test::findingOf(packageWithRecData("<CommercialFertilizer>" + content +
                                                  "</CommercialFertilizer>"),
                               FindingCode::ProductIncomplete)
            .found;
    };
    EXPECT_EQ(lack(""), "CommercialFertilizer has no ProductID, ProductName, UOMID and UOM");
    EXPECT_EQ(lack("<ProductID>1</ProductID><UOM/>"),
              "CommercialFertilizer has no ProductName and UOMID");
    EXPECT_EQ(lack("<ProductID>1</ProductID><UOM/><UOMID>1</UOMID>"),
              "CommercialFertilizer has no ProductName");
}

TEST(RecDataCheck, SuggestsTheProductThatIsMeantUnlessItIsThereAlready) {
    EXPECT_EQ(test::findingOf(packageWithRecData("<Plantin/>"), FindingCode::ProductUnknown).found,
              "\"Plantin\" is no product; is Planting meant?");
    EXPECT_EQ(
        test::findingOf(packageWithRecData("<Plantin/><Planting/>"), FindingCode::ProductUnknown)
            .found,
        "\"Plantin\" is no product");
}

TEST(RecDataCheck, FindsThatThereIsNoProduct) {
    const Finding empty = test::findingOf(packageWithRecData(""), FindingCode::NoProduct);
    EXPECT_EQ(empty.path + ": " + empty.found + " -> " + test::toText(empty.consequence),
              inRecData + ": RecData is empty -> without product");
    EXPECT_EQ(test::findingOf(packageWithRecData("<Pesticide/>"), FindingCode::PesticideMix).path,
              inRecData + "/Pesticide");
}

} // namespace
