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

QenFarm readFarm(pugi::xml_node element) {
    return QenXmlParser().parseFarmNode(uuid(1), element);
}

QenFarm readFarm(const std::string& text) {
    const Xml xml(text);
    return readFarm(xml.root());
}

struct FarmElement {
    using Record = QenFarm;
    static constexpr const char* name = "Farm";

    static std::vector<test::Datum<Record>> data() {
        using test::raises;
        using test::value;
        // clang-format off
        return {
            {"@FarmID",  Access::Attribute,  Type::Identifier, uuidText(11), raises, raises, value(&QenFarm::id)},
            {"FarmName", Access::ChildValue, Type::Text,       "Home farm",  "",     "",     value(&QenFarm::name)},
        };
        // clang-format on
    }

    static std::unique_ptr<QenFarm> read(pugi::xml_node element) {
        return std::make_unique<QenFarm>(readFarm(element));
    }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Farm, ElementRules, FarmElement, test::ElementNumber);

TEST(FarmElement, WithAnIdentifierOnlyGivesAnEmptyFarmOfItsGrower) {
    QenFarm farm = readFarm(test::farm(11));
    EXPECT_EQ("", farm.name());
    EXPECT_EQ(uuid(11), farm.id());
    EXPECT_EQ(uuid(1), farm.growerId());
    EXPECT_EQ(0U, farm.fields().size());
}

TEST(FarmElement, WithAnEmptyFieldRaises) {
    EXPECT_THROW(readFarm(test::farm(11, "<Field/>")), std::runtime_error);
}

TEST(FarmElement, GivesItsFieldsInTheirOrder) {
    QenFarm farm = readFarm(test::farm(11, test::field(22) + test::field(21)));
    ASSERT_EQ(2U, farm.fields().size());
    EXPECT_EQ(uuid(22), farm.fields()[0].id());
    EXPECT_EQ(uuid(21), farm.fields()[1].id());
}

TEST(FarmElement, HandsBothIdentifiersToEveryField) {
    QenFarm farm = readFarm(test::farm(11, test::field(21) + test::field(22)));
    ASSERT_EQ(2U, farm.fields().size());
    for (const QenField& field : farm.fields()) {
        EXPECT_EQ(uuid(1), field.growerId());
        EXPECT_EQ(uuid(11), field.farmId());
    }
}

TEST(FarmElement, TakesItsNameFromBeforeItsFieldsOnly) {
    const std::string name = "<FarmName>Home</FarmName>";
    QenFarm farm = readFarm(test::farm(11, name + test::field(21)));
    EXPECT_EQ("Home", farm.name());
    ASSERT_EQ(1U, farm.fields().size());
    EXPECT_EQ(uuid(21), farm.fields()[0].id());

    // After the first field it is read as one more field, which has no identifier.
    EXPECT_THROW(readFarm(test::farm(11, test::field(21) + name)), std::runtime_error);
}
