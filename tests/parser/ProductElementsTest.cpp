// What is special to the elements of products; their tables stand in ProductElements.h.

#include <string>
#include <tuple>
#include <type_traits>

#include <gtest/gtest.h>

#include "model/internal/RecDataVisit.h"
#include "tests/support/ElementRules.h"
#include "tests/support/ProductElements.h"

namespace {

using test::uuid;

template <class>
struct TypesOf;

template <class... Elements>
struct TypesOf<std::tuple<Elements...>> {
    using type = testing::Types<Elements...>;
};

using Products = TypesOf<test::ProductElements>::type;

/// ctest takes no other names than numbers.
struct ProductNumber {
    template <class Element>
    static std::string GetName(int number) {
        return std::to_string(number);
    }
};

template <class Element>
class ProductElement : public testing::Test {};

TYPED_TEST_SUITE(ProductElement, Products, ProductNumber);

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Product, ElementRules, Products, ProductNumber);

TYPED_TEST(ProductElement, GivesDataOfItsKindForTheRecThatItIsGiven) {
    const test::Sample<TypeParam> sample;
    const auto data = TypeParam::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(TypeParam::kind, data->recType());
    EXPECT_EQ(uuid(31), data->recId());
}

// Copying a product as another class would read beyond its end.
TYPED_TEST(ProductElement, IsVisitedAsItsOwnClass) {
    const test::Sample<TypeParam> sample;
    const auto data = TypeParam::read(sample.root());
    ASSERT_NE(nullptr, data);
    const auto isOwn = [](auto& product) {
        return std::is_same_v<decltype(product), typename TypeParam::Record&>;
    };
    EXPECT_TRUE(qenxml::visitRecData(*data, isOwn, false));
}

using test::CommercialFertilizerElement;
using test::CustomFertilizerElement;
using test::PesticideElement;
using FertilizerSample = test::Sample<CommercialFertilizerElement>;
using BlendSample = test::Sample<CustomFertilizerElement>;
using MixSample = test::Sample<PesticideElement>;

TEST(CommercialFertilizerElement, WithoutAUnitGivesNothing) {
    const FertilizerSample sample;
    sample.place("UOM").remove();
    EXPECT_EQ(nullptr, CommercialFertilizerElement::read(sample.root()));
}

TEST(CommercialFertilizerElement, WithAnEmptyProductIdentifierHasItAtZero) {
    const FertilizerSample sample;
    sample.place("ProductID").replace("");
    const auto data = CommercialFertilizerElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(0, data->productId());
}

TEST(CustomFertilizerElement, WithoutChlorineAndWithAnEmptyProductIdentifierGivesNothing) {
    const BlendSample sample;
    sample.place("Pct_Cl").remove();
    sample.place("ProductID").replace("");
    EXPECT_EQ(sample.expected({{"result", test::noRecord}}), sample.read());
}

TEST(CustomFertilizerElement, AnyMissingChildWinsOverABrokenProductIdentifier) {
    for (const auto& datum : CustomFertilizerElement::data()) {
        SCOPED_TRACE(datum.path);
        const BlendSample sample;
        sample.place("ProductID").replace("broken");
        sample.place(datum).remove();
        EXPECT_EQ(sample.expected({{"result", test::noRecord}}), sample.read());
    }
}

TEST(CustomFertilizerElement, KeepsValuesThatMakeNoSense) {
    const BlendSample sample;
    sample.place("UOMID").replace("-7");
    sample.place("SpGravity").replace("0");
    sample.place("Pct_N").replace("250");
    sample.place("Pct_P").replace("-1");
    EXPECT_EQ(
        sample.expected({{"UOMID", "-7"}, {"SpGravity", "0"}, {"Pct_N", "250"}, {"Pct_P", "-1"}}),
        sample.read());
}

TEST(PesticideElement, NeverReadsProductLines) {
    const MixSample sample;
    for (const char* list : {"PestcideByPercent", "PestcideByAmount"}) {
        for (const char* kind :
             {"Herbicide", "Insecticide", "Fungicide", "Additive", "GrowthRegulator", "Carrier"}) {
            pugi::xml_node line = sample.root().append_child(list).append_child(kind);
            for (const char* name : {"ProductID", "ProductName", "RegCodeID", "RegCode", "Percent",
                                     "Amount", "UOMID", "UOM"})
                line.append_child(name).text() = 1;
        }
    }
    EXPECT_EQ(sample.expected({}), sample.read());
    const auto data = PesticideElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(0U, data->pesticidesByPercent().size());
    EXPECT_EQ(0U, data->pesticidesByAmount().size());
}
