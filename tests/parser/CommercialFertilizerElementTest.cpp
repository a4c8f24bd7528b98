#include "parser/QenXmlParser.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/ElementRules.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;

struct CommercialFertilizerElement {
    using Record = CommercialFertilizerRec;
    static constexpr const char* name = "CommercialFertilizer";

    static std::vector<test::Datum<Record>> data() {
        using test::noRecord;
        using test::value;
        using Rec = CommercialFertilizerRec;
        // clang-format off
        return {
            {"ProductID",   Access::FirstText, Type::Integer, "501",  noRecord, "0", value(&Rec::productId)},
            {"ProductName", Access::FirstText, Type::Text,    "Urea", noRecord, "",  value(&Rec::productName)},
            {"UOMID",       Access::FirstText, Type::Integer, "502",  noRecord, "0", value(&Rec::uomId)},
            {"UOM",         Access::FirstText, Type::Text,    "kg",   noRecord, "",  value(&Rec::uom)},
        };
        // clang-format on
    }

    static std::unique_ptr<CommercialFertilizerRec> read(pugi::xml_node element) {
        return std::unique_ptr<CommercialFertilizerRec>(
            QenXmlParser().parseCommercialFertilizerRecDataNode(uuid(31), element));
    }
};

using FertilizerSample = test::Sample<CommercialFertilizerElement>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(CommercialFertilizer, ElementRules, CommercialFertilizerElement,
                               test::ElementNumber);

TEST(CommercialFertilizerElement, GivesDataOfItsKindForTheRecThatItIsGiven) {
    const FertilizerSample sample;
    const auto data = CommercialFertilizerElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(RecTypeCommercialFertilizer, data->recType());
    EXPECT_EQ(uuid(31), data->recId());
}

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
