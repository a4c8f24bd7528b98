#include "parser/QenXmlParser.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "model/CustomFertilizerRec.h"
#include "tests/support/ElementRules.h"
#include "tests/support/PackageText.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;
using test::uuidText;

struct CustomFertilizerElement {
    using Record = CustomFertilizerRec;
    static constexpr const char* name = "CustomFertilizer";

    static std::vector<test::Datum<Record>> data() {
        using test::noRecord;
        using test::raises;
        using test::value;
        using Rec = CustomFertilizerRec;
        // clang-format off
        return {
            {"ProductID",   Access::FirstText, Type::Identifier, uuidText(41), noRecord, raises, value(&Rec::productId)},
            {"ProductName", Access::FirstText, Type::Text,       "Our blend",  noRecord, "",     value(&Rec::productName)},
            {"UOMID",       Access::FirstText, Type::Integer,    "601",        noRecord, "0",    value(&Rec::uomId)},
            {"UOM",         Access::FirstText, Type::Text,       "l",          noRecord, "",     value(&Rec::uom)},
            {"SFertT_ID",   Access::FirstText, Type::Integer,    "602",        noRecord, "0",    value(&Rec::sFertT_ID)},
            {"SpGravity",   Access::FirstText, Type::Number,     "1.5",        noRecord, "0",    value(&Rec::spGravity)},
            {"Pct_N",       Access::FirstText, Type::Number,     "10.5",       noRecord, "0",    value(&Rec::pct_N)},
            {"Pct_P",       Access::FirstText, Type::Number,     "11.5",       noRecord, "0",    value(&Rec::pct_P)},
            {"Pct_K",       Access::FirstText, Type::Number,     "12.5",       noRecord, "0",    value(&Rec::pct_K)},
            {"Pct_Ca",      Access::FirstText, Type::Number,     "13.5",       noRecord, "0",    value(&Rec::pct_Ca)},
            {"Pct_Mg",      Access::FirstText, Type::Number,     "14.5",       noRecord, "0",    value(&Rec::pct_Mg)},
            {"Pct_S",       Access::FirstText, Type::Number,     "15.5",       noRecord, "0",    value(&Rec::pct_S)},
            {"Pct_Fe",      Access::FirstText, Type::Number,     "16.5",       noRecord, "0",    value(&Rec::pct_Fe)},
            {"Pct_Mn",      Access::FirstText, Type::Number,     "17.5",       noRecord, "0",    value(&Rec::pct_Mn)},
            {"Pct_Zn",      Access::FirstText, Type::Number,     "18.5",       noRecord, "0",    value(&Rec::pct_Zn)},
            {"Pct_Cu",      Access::FirstText, Type::Number,     "19.5",       noRecord, "0",    value(&Rec::pct_Cu)},
            {"Pct_B",       Access::FirstText, Type::Number,     "20.5",       noRecord, "0",    value(&Rec::pct_B)},
            {"Pct_Mo",      Access::FirstText, Type::Number,     "21.5",       noRecord, "0",    value(&Rec::pct_Mo)},
            {"Pct_Cl",      Access::FirstText, Type::Number,     "22.5",       noRecord, "0",    value(&Rec::pct_Cl)},
        };
        // clang-format on
    }

    static std::unique_ptr<CustomFertilizerRec> read(pugi::xml_node element) {
        return std::unique_ptr<CustomFertilizerRec>(
            QenXmlParser().parseCustomFertilizerRecDataNode(uuid(31), element));
    }
};

using BlendSample = test::Sample<CustomFertilizerElement>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(CustomFertilizer, ElementRules, CustomFertilizerElement,
                               test::ElementNumber);

TEST(CustomFertilizerElement, GivesDataOfItsKindForTheRecThatItIsGiven) {
    const BlendSample sample;
    const auto data = CustomFertilizerElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(RecTypeCustomFertilizer, data->recType());
    EXPECT_EQ(uuid(31), data->recId());
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
