// Children with the same identifier, in one package: as if they were added one by one.

#include "parser/QenXmlParser.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageReading.h"
#include "tests/support/PackageText.h"
#include "tests/support/Xml.h"

namespace {

using test::element;
using test::fertilizer;
using test::uuid;
using test::Xml;

/// The product data of recs that were replaced: they belong to whoever replaces the rec.
using ReplacedData = std::vector<std::unique_ptr<QenRecData>>;

QenField fieldOneByOne(const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
                       pugi::xml_node node, ReplacedData& replaced) {
    pugi::xml_document withoutRecs;
    pugi::xml_node bare = withoutRecs.append_copy(node);
    bare.remove_child("Recommendations");
    QenXmlParser parser;
    QenField field = parser.parseFieldNode(growerId, farmId, bare);
    const boost::uuids::uuid geometryId = field.geometries().at(0).geometryId();
    for (const pugi::xml_node recNode : node.child("Recommendations").children("Rec")) {
        const QenRec rec = parser.parseRecNode(field.id(), geometryId, recNode);
        const auto present = std::find(field.recs().begin(), field.recs().end(), rec);
        if (present != field.recs().end())
            replaced.emplace_back(present->recData());
        field.addRec(rec);
    }
    return field;
}

QenFarm farmOneByOne(const boost::uuids::uuid& growerId, pugi::xml_node node,
                     ReplacedData& replaced) {
    pugi::xml_document withoutFields;
    pugi::xml_node bare = withoutFields.append_copy(node);
    while (bare.remove_child("Field")) {
    }
    QenFarm farm = QenXmlParser().parseFarmNode(growerId, bare);
    for (const pugi::xml_node field : node.children("Field"))
        farm.addField(fieldOneByOne(growerId, farm.id(), field, replaced));
    return farm;
}

QenGrower growerOneByOne(pugi::xml_node node, ReplacedData& replaced) {
    pugi::xml_document withoutFarms;
    pugi::xml_node bare = withoutFarms.append_copy(node);
    while (bare.remove_child("Farm")) {
    }
    QenGrower grower = QenXmlParser().parseGrowerNode(bare);
    for (const pugi::xml_node farm : node.children("Farm"))
        grower.addFarm(farmOneByOne(grower.id(), farm, replaced));
    return grower;
}

void expectReadAsAddedOneByOne(const std::string& grower) {
    const Xml xml(grower);
    ReplacedData replaced;
    const std::string oneByOne = test::describe(growerOneByOne(xml.root(), replaced));
    RC_ASSERT(oneByOne == test::describe(QenXmlParser().parseGrowerNode(xml.root())));
}

QenGrower readGrower(const std::string& content) {
    const Xml xml(test::grower(1, content));
    return QenXmlParser().parseGrowerNode(xml.root());
}

TEST(DuplicateIdentifier, IsOneThatIsEqualInEveryByte) {
    // Each differs from the first in one byte; only the last is the same.
    const std::vector<std::string> ids = {
        "00000000-0000-0000-0000-000000000000", "01000000-0000-0000-0000-000000000000",
        "00000000-0000-0001-0000-000000000000", "00000000-0000-0000-0100-000000000000",
        "00000000-0000-0000-0000-000000000001", "00000000-0000-0000-0000-000000000000"};
    std::string farms;
    for (std::size_t i = 0; i < ids.size(); ++i)
        farms +=
            "<Farm FarmID='" + ids[i] + "'>" + element("FarmName", std::to_string(i)) + "</Farm>";
    const Xml xml(test::grower(1, farms));
    QenGrower grower = QenXmlParser().parseGrowerNode(xml.root());
    std::vector<std::string> names;
    for (QenFarm& farm : grower.farms())
        names.push_back(farm.name());
    EXPECT_EQ(names, (std::vector<std::string>{"5", "1", "2", "3", "4"}));
}

} // namespace

TEST(DuplicateIdentifier, OfFarmsLeavesTheLastInThePlaceOfTheFirst) {
    QenGrower grower = readGrower(test::farm(11, "<FarmName>first</FarmName>" + test::field(21)) +
                                  test::farm(10, "<FarmName>other</FarmName>") +
                                  test::farm(11, "<FarmName>last</FarmName>" + test::field(22)));
    ASSERT_EQ(2U, grower.farms().size());
    EXPECT_EQ("last", grower.farms()[0].name());
    EXPECT_EQ("other", grower.farms()[1].name());
    // Replaced, not merged.
    ASSERT_EQ(1U, grower.farms()[0].fields().size());
    EXPECT_EQ(uuid(22), grower.farms()[0].fields()[0].id());
}

TEST(DuplicateIdentifier, OfFarmsThatAlternateLeavesOneOfEach) {
    const auto farm = [](const std::string& firstDigits, const std::string& name) {
        return "<Farm FarmID='" + firstDigits + "-2233-4455-6677-8899aabbccdd'>" +
               element("FarmName", name) + "</Farm>";
    };
    QenGrower grower = readGrower(farm("00000000", "first") + farm("00000001", "other first") +
                                  farm("00000000", "last") + farm("00000001", "other last"));
    ASSERT_EQ(2U, grower.farms().size());
    EXPECT_EQ("last", grower.farms()[0].name());
    EXPECT_EQ("other last", grower.farms()[1].name());
}

TEST(DuplicateIdentifier, OfFieldsLeavesTheLastInThePlaceOfTheFirst) {
    const auto field = [](unsigned number, const std::string& name, unsigned rec) {
        return test::field(number,
                           element("FieldName", name) + test::recommendations(test::rec(rec)));
    };
    QenGrower grower = readGrower(
        test::farm(11, field(21, "first", 31) + field(20, "other", 32) + field(21, "last", 33)));
    std::vector<QenField>& fields = grower.farms().at(0).fields();
    ASSERT_EQ(2U, fields.size());
    EXPECT_EQ("last", fields[0].name());
    EXPECT_EQ("other", fields[1].name());
    EXPECT_EQ(1U, fields[0].geometries().size());
    ASSERT_EQ(1U, fields[0].recs().size());
    EXPECT_EQ(uuid(33), fields[0].recs()[0].id());
}

TEST(DuplicateIdentifier, OfRecsLeavesTheLastInThePlaceOfTheFirst) {
    const auto rec = [](unsigned number, const std::string& name) {
        return test::rec(number, element("RecName", name) + fertilizer("product of " + name));
    };
    QenGrower grower = readGrower(test::farm(
        11, test::field(21, test::recommendations(rec(31, "first") + rec(30, "other") +
                                                  rec(31, "second") + rec(31, "last")))));
    std::vector<QenRec>& recs = grower.farms().at(0).fields().at(0).recs();
    ASSERT_EQ(2U, recs.size());
    EXPECT_EQ("last", recs[0].name());
    EXPECT_EQ("other", recs[1].name());
    auto* data = dynamic_cast<CommercialFertilizerRec*>(recs[0].recData());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ("product of last", data->productName());
}

TEST(DuplicateIdentifier, OfRecsGivesProductDataToNoneWhenTheLastHasNone) {
    QenGrower grower = readGrower(test::farm(
        11, test::field(21, test::recommendations(test::rec(31, fertilizer("of the first")) +
                                                  test::rec(31)))));
    std::vector<QenRec>& recs = grower.farms().at(0).fields().at(0).recs();
    ASSERT_EQ(1U, recs.size());
    EXPECT_EQ(nullptr, recs[0].recData());
}

TEST(DuplicateIdentifier, IsRecognisedWhateverItsSpelling) {
    QenGrower grower = readGrower("<Farm FarmID=\"00112233-4455-6677-8899-aabbccddeeff\"/>"
                                  "<Farm FarmID=\"{00112233445566778899AABBCCDDEEFF}\"/>");
    EXPECT_EQ(1U, grower.farms().size());
}

TEST(DuplicateIdentifier, BelowDifferentParentsIsNone) {
    QenGrower grower =
        readGrower(test::farm(11, test::field(21)) + test::farm(12, test::field(21)));
    ASSERT_EQ(2U, grower.farms().size());
    EXPECT_EQ(1U, grower.farms()[0].fields().size());
    EXPECT_EQ(1U, grower.farms()[1].fields().size());
}

TEST(DuplicateIdentifier, OfANilFarmIsOneAsWell) {
    QenGrower grower = readGrower(test::farm(0, "<FarmName>first</FarmName>") +
                                  test::farm(0, "<FarmName>last</FarmName>"));
    ASSERT_EQ(1U, grower.farms().size());
    EXPECT_EQ("last", grower.farms()[0].name());
}

TEST(DuplicateIdentifier, OfGrowersLeavesBoth) {
    std::vector<QenGrower> growers = test::growersOf(
        test::package(test::grower(1, "<GrowerName>first</GrowerName>" + test::farm(11)) +
                      test::grower(1, "<GrowerName>last</GrowerName>")));
    ASSERT_EQ(2U, growers.size());
    EXPECT_EQ("first", growers[0].name());
    EXPECT_EQ(1U, growers[0].farms().size());
    EXPECT_EQ("last", growers[1].name());
    EXPECT_EQ(0U, growers[1].farms().size());
}

// Every element gets another name, so that it shows which one has remained.

RC_GTEST_PROP(DuplicateIdentifier, AnywhereInAGrowerIsReadAsAddedOneByOne, ()) {
    const auto number = rc::gen::inRange(1U, 4U);
    const auto recs = rc::gen::container<std::vector<unsigned>>(number);
    const auto fields = rc::gen::container<std::vector<std::pair<unsigned, std::vector<unsigned>>>>(
        rc::gen::pair(number, recs));
    const auto farms = rc::gen::container<
        std::vector<std::pair<unsigned, std::vector<std::pair<unsigned, std::vector<unsigned>>>>>>(
        rc::gen::pair(number, fields));

    unsigned serial = 0;
    const auto name = [&serial](const std::string& tag) {
        return element(tag, std::to_string(++serial));
    };
    std::string content;
    for (const auto& [farmNumber, fieldsOfFarm] : *rc::gen::resize(5, farms)) {
        std::string fieldTexts;
        for (const auto& [fieldNumber, recsOfField] : fieldsOfFarm) {
            std::string recTexts;
            for (const unsigned recNumber : recsOfField) {
                const std::string data =
                    serial % 3 == 0 ? "" : fertilizer("product " + std::to_string(serial));
                recTexts += test::rec(recNumber, name("RecName") + data);
            }
            fieldTexts +=
                test::field(fieldNumber, name("FieldName") + test::recommendations(recTexts));
        }
        content += test::farm(farmNumber, name("FarmName") + fieldTexts);
    }
    expectReadAsAddedOneByOne(test::grower(1, content));
}

RC_GTEST_PROP(DuplicateIdentifier, InLongListsIsReadAsAddedOneByOne, ()) {
    const auto number = rc::gen::inRange(1U, 60U);
    unsigned serial = 0;
    const auto siblings = [&](const std::string& tag,
                              std::string (*text)(unsigned, const std::string&)) {
        std::string result;
        for (const unsigned n : *rc::gen::container<std::vector<unsigned>>(number))
            result += text(n, element(tag, std::to_string(++serial)));
        return result;
    };
    const std::string recs = test::recommendations(siblings("RecName", test::rec));
    const std::string fields = siblings("FieldName", test::field);
    const std::string farms = siblings("FarmName", test::farm);
    expectReadAsAddedOneByOne(
        test::grower(1, test::farm(100, test::field(100, recs) + fields) + farms));
}
