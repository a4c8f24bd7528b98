#include "parser/QenXmlParser.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "tests/support/ElementRules.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;

struct PlantingElement {
    using Record = PlantingRec;
    static constexpr const char* name = "Planting";

    static std::vector<test::Datum<Record>> data() {
        using test::noRecord;
        using test::value;
        using Rec = PlantingRec;
        // clang-format off
        return {
            {"CropID",      Access::FirstText, Type::Integer, "701",      noRecord, "0", value(&Rec::cropId)},
            {"CropName",    Access::FirstText, Type::Text,    "Maize",    noRecord, "",  value(&Rec::cropName)},
            {"CompanyID",   Access::FirstText, Type::Integer, "702",      noRecord, "0", value(&Rec::companyId)},
            {"CompanyName", Access::FirstText, Type::Text,    "Seeds Co", noRecord, "",  value(&Rec::companyName)},
            {"VarietyID",   Access::FirstText, Type::Integer, "703",      noRecord, "0", value(&Rec::varietyId)},
            {"VarietyName", Access::FirstText, Type::Text,    "Early",    noRecord, "",  value(&Rec::varietyName)},
            {"UOMID",       Access::FirstText, Type::Integer, "704",      noRecord, "0", value(&Rec::uomId)},
            {"UOM",         Access::FirstText, Type::Text,    "seeds/ha", noRecord, "",  value(&Rec::uom)},
        };
        // clang-format on
    }

    static std::unique_ptr<PlantingRec> read(pugi::xml_node element) {
        return std::unique_ptr<PlantingRec>(
            QenXmlParser().parsePlantingRecDataNode(uuid(31), element));
    }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Planting, ElementRules, PlantingElement, test::ElementNumber);

TEST(PlantingElement, GivesDataOfItsKindForTheRecThatItIsGiven) {
    const test::Sample<PlantingElement> sample;
    const auto data = PlantingElement::read(sample.root());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(RecTypePlanting, data->recType());
    EXPECT_EQ(uuid(31), data->recId());
}
