#include "parser/QenXmlParser.h"

#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using boost::uuids::uuid;
using pugi::xml_node;

// The programs of hosts depend on these.
template <auto member, class Type>
constexpr bool is = std::is_same_v<decltype(member), Type>;
using Parser = QenXmlParser;
static_assert(is<&Parser::parseFile, bool (Parser::*)(std::string)>);
static_assert(is<&Parser::getGrowers, std::vector<QenGrower> (Parser::*)()>);
static_assert(is<&Parser::parseGrowerNode, QenGrower (Parser::*)(xml_node)>);
static_assert(is<&Parser::parseFarmNode, QenFarm (Parser::*)(uuid, xml_node)>);
static_assert(is<&Parser::parseFieldNode, QenField (Parser::*)(uuid, uuid, xml_node)>);
static_assert(is<&Parser::parseRecNode, QenRec (Parser::*)(uuid, uuid, xml_node)>);
static_assert(is<&Parser::parseRecDataNode, QenRecData* (Parser::*)(uuid, xml_node)>);
static_assert(is<&Parser::parseCommercialFertilizerRecDataNode,
                 CommercialFertilizerRec* (Parser::*)(uuid, xml_node)>);
static_assert(is<&Parser::parseCustomFertilizerRecDataNode,
                 CustomFertilizerRec* (Parser::*)(uuid, xml_node)>);
static_assert(is<&Parser::parsePlantingRecDataNode, PlantingRec* (Parser::*)(uuid, xml_node)>);
static_assert(is<&Parser::parsePesticideRecDataNode, PesticideRec* (Parser::*)(uuid, xml_node)>);

static_assert(std::is_default_constructible_v<Parser>);
static_assert(!std::is_copy_constructible_v<Parser> && !std::is_copy_assignable_v<Parser>);
static_assert(!std::is_move_constructible_v<Parser> && !std::is_move_assignable_v<Parser>);
static_assert(!std::is_polymorphic_v<Parser>);

/// A package of one rec with a blend.
std::string packageWithBlend() {
    const std::string rec = test::rec(31, test::blend(test::uuidText(41)));
    return test::package(
        test::grower(1, test::farm(11, test::field(21, test::recommendations(rec)))) +
        test::grower(2));
}

/// Reads packageWithBlend() in the constructor.
class QenXmlParserWithABlend : public ::testing::Test {
protected:
    QenXmlParserWithABlend() { parser.parseFile(folder.writePackage(packageWithBlend())); }

    test::TemporaryFolder folder;
    QenXmlParser parser;
};

} // namespace

TEST(QenXmlParser, HasNoGrowersAtFirst) {
    EXPECT_EQ(0U, QenXmlParser().getGrowers().size());
}

TEST(QenXmlParser, ReadsElementsWithoutHavingReadAFile) {
    pugi::xml_document document;
    pugi::xml_node node = document.append_child("Grower");
    node.append_attribute("GrowerID") = test::uuidText(1).c_str();
    QenXmlParser parser;
    EXPECT_EQ(test::uuid(1), parser.parseGrowerNode(node).id());
    EXPECT_EQ(0U, parser.getGrowers().size());
}

TEST_F(QenXmlParserWithABlend, GivesEqualGrowersEachTime) {
    const std::vector<QenGrower> first = parser.getGrowers();
    const std::vector<QenGrower> second = parser.getGrowers();
    EXPECT_EQ(first, second);
    EXPECT_EQ(test::describe(first), test::describe(second));
}

TEST_F(QenXmlParserWithABlend, GivesProductDataOfItsOwnEachTime) {
    std::vector<QenGrower> first = parser.getGrowers();
    std::vector<QenGrower> second = parser.getGrowers();
    const auto data = [](std::vector<QenGrower>& growers) {
        return growers.at(0).farms().at(0).fields().at(0).recs().at(0).recData();
    };
    ASSERT_NE(nullptr, data(first));
    ASSERT_NE(nullptr, data(second));
    EXPECT_NE(data(first), data(second));
}

TEST_F(QenXmlParserWithABlend, KeepsItsGrowersWhateverIsDoneToACopy) {
    const std::string before = test::describe(parser.getGrowers());

    std::vector<QenGrower> growers = parser.getGrowers();
    QenGrower& grower = growers.at(0);
    QenFarm& farm = grower.farms().at(0);
    QenField& field = farm.fields().at(0);
    QenRec& rec = field.recs().at(0);
    auto* blend = dynamic_cast<CustomFertilizerRec*>(rec.recData());
    ASSERT_NE(nullptr, blend);
    blend->setProductName("changed");
    blend->setPct_N(99.0);
    rec.setName("changed");
    rec.setIsUsed(true);
    rec.setId(test::uuid(99));
    field.setName("changed");
    field.addFieldGeometry(field.geometries().at(0));
    farm.setName("changed");
    grower.setName("changed");
    EXPECT_NE(before, test::describe(growers));
    EXPECT_EQ(before, test::describe(parser.getGrowers()));

    grower.farms().clear();
    growers.clear();
    EXPECT_EQ(before, test::describe(parser.getGrowers()));
}

TEST_F(QenXmlParserWithABlend, GivesGrowersThatDoNotChangeWithTheNextFile) {
    const std::vector<QenGrower> growers = parser.getGrowers();
    const std::string before = test::describe(growers);
    ASSERT_TRUE(parser.parseFile(folder.writePackage(packageWithBlend(), test::uuidText(5))));
    EXPECT_EQ(4U, parser.getGrowers().size());
    EXPECT_EQ(before, test::describe(growers));
}

TEST(QenXmlParser, GivesGrowersThatOutliveIt) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(packageWithBlend());
    std::vector<QenGrower> growers;
    std::string before;
    {
        QenXmlParser parser;
        parser.parseFile(path);
        growers = parser.getGrowers();
        before = test::describe(growers);
    }
    EXPECT_EQ(before, test::describe(growers));
}
