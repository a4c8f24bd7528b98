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
        test::findingOf(packageWithRecData("<Planting/><Planting/>"), "second-product");
    EXPECT_EQ(second.path, inRecData + "/Planting[2]");
    EXPECT_EQ(second.found, "Planting follows Planting; a rec has one product");
    EXPECT_EQ(second.consequence, "Planting is ignored");
    EXPECT_EQ(
        test::findingOf(packageWithRecData("<Planting/><CustomFertilizer/>"), "second-product")
            .path,
        inRecData + "/CustomFertilizer");
}

TEST(RecDataCheck, SaysWhichProductASecondOneFollowsThatATextComesBefore) {
    const Finding second =
        test::findingOf(packageWithRecData("text<Planting/><Pesticide/>"), "second-product");
    EXPECT_EQ(second.found, "Pesticide follows Planting; a rec has one product");
}

TEST(RecDataCheck, QuotesATextOfWhiteSpaceOnly) {
    const Finding text =
        test::findingOf(packageWithRecData("&#32;<Planting/>"), "text-before-product");
    EXPECT_EQ(text.found, "the text \" \" stands where the product has to be");
    EXPECT_EQ(text.path, inRecData + "/text()");
    EXPECT_EQ(
        test::findingOf(packageWithRecData("\n see <Planting/>"), "text-before-product").found,
        "the text \"see\" stands where the product has to be");
}

TEST(RecDataCheck, FindsEveryTextAfterAProduct) {
    EXPECT_EQ(test::findingOf(packageWithRecData("<Pesticide/>late"), "stray-text").found,
              "the text \"late\" stands in RecData, which holds elements only");
    EXPECT_EQ(test::findingTexts(packageWithRecData("<Pesticide/>"), "stray-text"), "");
}

TEST(RecDataCheck, SaysThatNumbersOfAnIncompleteProductMatterOnceItIsComplete) {
    const std::string all = "<CropID>x</CropID><CropName/><CompanyID>1</CompanyID><CompanyName/>"
                            "<VarietyID>1</VarietyID><VarietyName/><UOMID>1</UOMID>";
    const auto consequence = [&](const std::string& product) {
        return test::findingOf(packageWithRecData(test::element("Planting", product)),
                               "not-a-number")
            .consequence;
    };
    EXPECT_EQ(consequence(all), "once the product is complete, it is read as 0");
    EXPECT_EQ(consequence(all + "<UOM/>"), "it is read as 0");
    // It is said of no number behind the product.
    EXPECT_EQ(test::findingOf(test::packageWithRec("<RecData><Planting/></RecData>"
                                                   "<RecStats><Area>x</Area></RecStats>"),
                              "not-a-number")
                  .consequence,
              "it is read as 0");
}

TEST(RecDataCheck, NamesAllThatAProductLacks) {
    const auto lack = [](const std::string& content) {
        return test::findingOf(packageWithRecData("<CommercialFertilizer>" + content +
                                                  "</CommercialFertilizer>"),
                               "product-incomplete")
            .found;
    };
    EXPECT_EQ(lack(""), "CommercialFertilizer has no ProductID, ProductName, UOMID and UOM");
    EXPECT_EQ(lack("<ProductID>1</ProductID><UOM/>"),
              "CommercialFertilizer has no ProductName and UOMID");
    EXPECT_EQ(lack("<ProductID>1</ProductID><UOM/><UOMID>1</UOMID>"),
              "CommercialFertilizer has no ProductName");
}

TEST(RecDataCheck, SuggestsTheProductThatIsMeantUnlessItIsThereAlready) {
    EXPECT_EQ(test::findingOf(packageWithRecData("<Plantin/>"), "product-unknown").found,
              "\"Plantin\" is no product; is Planting meant?");
    EXPECT_EQ(test::findingOf(packageWithRecData("<Plantin/><Planting/>"), "product-unknown").found,
              "\"Plantin\" is no product");
}

TEST(RecDataCheck, FindsThatThereIsNoProduct) {
    const Finding empty = test::findingOf(packageWithRecData(""), "no-product");
    EXPECT_EQ(empty.path + ": " + empty.found + " -> " + empty.consequence,
              inRecData + ": RecData is empty -> the rec is kept without product data");
    EXPECT_EQ(test::findingOf(packageWithRecData("<Pesticide/>"), "pesticide-mix").path,
              inRecData + "/Pesticide");
}

} // namespace
