#include "parser/QenXmlParser.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ElementRules.h"
#include "tests/support/PackageText.h"
#include "tests/support/Xml.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;
using test::uuidText;
using test::Xml;

struct GrowerElement {
    using Record = QenGrower;
    static constexpr const char* name = "Grower";

    static std::vector<test::Datum<Record>> data() {
        using test::raises;
        using test::value;
        // clang-format off
        return {
            {"@GrowerID",  Access::Attribute,  Type::Identifier, uuidText(1),  raises, raises, value(&QenGrower::id)},
            {"GrowerName", Access::ChildValue, Type::Text,       "Ada Field", "",     "",     value(&QenGrower::name)},
        };
        // clang-format on
    }

    static std::unique_ptr<QenGrower> read(pugi::xml_node element) {
        return std::make_unique<QenGrower>(QenXmlParser().parseGrowerNode(element));
    }
};

QenGrower readGrower(const std::string& text) {
    const Xml xml(text);
    return QenXmlParser().parseGrowerNode(xml.root());
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Grower, ElementRules, GrowerElement, test::ElementNumber);

TEST(GrowerElement, WithoutANameGivesAnEmptyName) {
    QenGrower grower = readGrower(test::grower(1));
    EXPECT_EQ("", grower.name());
    EXPECT_EQ(uuid(1), grower.id());
}

TEST(GrowerElement, WithoutFarmsGivesNone) {
    EXPECT_EQ(0U, readGrower(test::grower(1)).farms().size());
}

TEST(GrowerElement, WithAnEmptyFarmRaises) {
    EXPECT_THROW(readGrower(test::grower(1, "<Farm/>")), std::runtime_error);
}

TEST(GrowerElement, GivesItsFarmsInTheirOrder) {
    QenGrower grower = readGrower(test::grower(1, test::farm(12) + test::farm(11)));
    ASSERT_EQ(2U, grower.farms().size());
    EXPECT_EQ(uuid(12), grower.farms()[0].id());
    EXPECT_EQ(uuid(11), grower.farms()[1].id());
}

TEST(GrowerElement, HandsItsIdentifierToFarmsAndFields) {
    QenGrower grower =
        readGrower(test::grower(1, test::farm(11, test::field(21)) + test::farm(12)));
    ASSERT_EQ(2U, grower.farms().size());
    EXPECT_EQ(uuid(1), grower.farms()[0].growerId());
    EXPECT_EQ(uuid(1), grower.farms()[1].growerId());
    ASSERT_EQ(1U, grower.farms()[0].fields().size());
    EXPECT_EQ(uuid(1), grower.farms()[0].fields()[0].growerId());
}

TEST(GrowerElement, TakesItsNameFromBeforeItsFarmsOnly) {
    const std::string name = "<GrowerName>Ada</GrowerName>";
    QenGrower grower = readGrower(test::grower(1, name + test::farm(11)));
    EXPECT_EQ("Ada", grower.name());
    ASSERT_EQ(1U, grower.farms().size());
    EXPECT_EQ(uuid(11), grower.farms()[0].id());

    // After the first farm it is read as one more farm, which has no identifier.
    EXPECT_THROW(readGrower(test::grower(1, test::farm(11) + name)), std::runtime_error);
}
