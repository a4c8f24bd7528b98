#include "parser/QenXmlParser.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "model/PesticideRec.h"
#include "tests/support/ElementRules.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;

struct PesticideElement {
    using Record = PesticideRec;
    static constexpr const char* name = "Pesticide";

    static std::vector<test::Datum<Record>> data() {
        using test::noRecord;
        using test::value;
        using Rec = PesticideRec;
        // clang-format off
        return {
            {"PesticideMixName", Access::FirstText, Type::Text,    "Weed mix", noRecord, "",  value(&Rec::pesticideMixName)},
            {"UOMID",            Access::FirstText, Type::Integer, "801",      noRecord, "0", value(&Rec::uomId)},
            {"UOM",              Access::FirstText, Type::Text,    "l/ha",     noRecord, "",  value(&Rec::uom)},
        };
        // clang-format on
    }

    static std::unique_ptr<PesticideRec> read(pugi::xml_node element) {
        return std::unique_ptr<PesticideRec>(
            QenXmlParser().parsePesticideRecDataNode(uuid(31), element));
    }
};

using MixSample = test::Sample<PesticideElement>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Pesticide, ElementRules, PesticideElement, test::ElementNumber);

TEST(PesticideElement, GivesDataOfItsKindForTheRecThatItIsGiven) {
    const MixSample sample;
    const auto data = PesticideElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(4, data->recType());
    EXPECT_EQ(uuid(31), data->recId());
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
