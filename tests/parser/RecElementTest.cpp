#include "parser/QenXmlParser.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/ElementRules.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

namespace {

using test::Access;
using test::raises;
using test::Type;
using test::uuid;
using test::uuidText;
using test::Xml;

QenRec readRec(pugi::xml_node element) {
    return QenXmlParser().parseRecNode(uuid(21), uuid(71), element);
}

QenRec readRec(const std::string& text) {
    const Xml xml(text);
    return readRec(xml.root());
}

struct RecElement {
    using Record = QenRec;
    static constexpr const char* name = "Rec";

    static std::vector<test::Datum<Record>> data() {
        using test::nilText;
        using test::value;
        // clang-format off
        return {
            {"@RecID",               Access::Attribute,  Type::Identifier, uuidText(31),     raises,  raises,  value(&QenRec::id)},
            {"@MgmtZoneID",          Access::Attribute,  Type::Identifier, uuidText(32),     nilText, nilText, value(&QenRec::mgmtZoneId)},
            {"RecName",              Access::ChildValue, Type::Text,       "Spring rec",     "",      "",      value(&QenRec::name)},
            {"RecGeometry",          Access::FirstText,  Type::Identifier, uuidText(33),     raises,  raises,  value(&QenRec::recGeometry)},
            {"CreationDate",         Access::FirstText,  Type::Text,       "2014-01-02",     "",      "",      value(&QenRec::creationDate)},
            {"EditDate",             Access::FirstText,  Type::Text,       "some day later", "",      "",      value(&QenRec::editDate)},
            {"RecDBFCol",            Access::FirstText,  Type::Text,       "RATE",           "",      "",      value(&QenRec::recDbfCol)},
            {"Operation/@OpID",      Access::Attribute,  Type::Identifier, uuidText(34),     raises,  raises,  value(&QenRec::operationId)},
            {"Operation/OpName",     Access::FirstText,  Type::Text,       "Sowing",         "",      "",      value(&QenRec::operationName)},
            {"Season/@SeasonID",     Access::Attribute,  Type::Season,     "17",             "0",     "0",     value(&QenRec::seasonId)},
            {"Season/SeasonName",    Access::FirstText,  Type::Text,       "2014 summer",    "",      "",      value(&QenRec::seasonName)},
            {"RecStats/MinimumRate", Access::FirstText,  Type::Number,     "1.5",            "0",     "0",     value(&QenRec::minimumRate)},
            {"RecStats/MaximumRate", Access::FirstText,  Type::Number,     "9.25",           "0",     "0",     value(&QenRec::maximumRate)},
            {"RecStats/AverageRate", Access::FirstText,  Type::Number,     "5.125",          "0",     "0",     value(&QenRec::averageRate)},
            {"RecStats/RateUOMID",   Access::FirstText,  Type::Integer,    "101",            "0",     "0",     value(&QenRec::rateUomId)},
            {"RecStats/RateUOM",     Access::FirstText,  Type::Text,       "kg/ha",          "",      "",      value(&QenRec::rateUom)},
            {"RecStats/Total",       Access::FirstText,  Type::Number,     "1234.5",         "0",     "0",     value(&QenRec::total)},
            {"RecStats/TotalUOMID",  Access::FirstText,  Type::Integer,    "102",            "0",     "0",     value(&QenRec::totalUomId)},
            {"RecStats/TotalUOM",    Access::FirstText,  Type::Text,       "kg",             "",      "",      value(&QenRec::totalUom)},
            {"RecStats/Area",        Access::FirstText,  Type::Number,     "40.75",          "0",     "0",     value(&QenRec::area)},
            {"RecStats/AreaUOMID",   Access::FirstText,  Type::Integer,    "103",            "0",     "0",     value(&QenRec::areaUomId)},
            {"RecStats/AreaUOM",     Access::FirstText,  Type::Text,       "ha",             "",      "",      value(&QenRec::areaUom)},
        };
        // clang-format on
    }

    static std::unique_ptr<QenRec> read(pugi::xml_node element) {
        return std::make_unique<QenRec>(readRec(element));
    }
};

using RecSample = test::Sample<RecElement>;

const test::Values noOperation = {{"Operation/@OpID", test::nilText}, {"Operation/OpName", ""}};
const test::Values noSeason = {{"Season/@SeasonID", "-1"}, {"Season/SeasonName", ""}};

/// What the statistics read as when they are missing.
test::Values noStatistics() {
    test::Values values;
    for (const test::Datum<QenRec>& datum : RecElement::data()) {
        if (datum.path.rfind("RecStats/", 0) == 0)
            values[datum.path] = datum.whenAbsent;
    }
    return values;
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Rec, ElementRules, RecElement, test::ElementNumber);

TEST(RecElement, WithItsTwoIdentifiersOnlyGivesEmptyValues) {
    QenRec rec = readRec(test::rec(31));
    EXPECT_EQ(uuid(31), rec.id());
    EXPECT_EQ(uuid(9031), rec.recGeometry());
    EXPECT_EQ("", rec.name());
    EXPECT_EQ("", rec.creationDate());
    EXPECT_EQ("", rec.editDate());
    EXPECT_EQ("", rec.recDbfCol());
    EXPECT_EQ(uuid(0), rec.operationId());
    EXPECT_EQ("", rec.operationName());
    EXPECT_EQ(-1, rec.seasonId());
    EXPECT_EQ("", rec.seasonName());
    EXPECT_EQ(uuid(0), rec.mgmtZoneId());
    EXPECT_EQ(0.0, rec.minimumRate());
    EXPECT_EQ(0.0, rec.maximumRate());
    EXPECT_EQ(0.0, rec.averageRate());
    EXPECT_EQ(0.0, rec.total());
    EXPECT_EQ(0.0, rec.area());
    EXPECT_EQ(0, rec.rateUomId()); // -1 in a rec that was not read
    EXPECT_EQ(0, rec.totalUomId());
    EXPECT_EQ(0, rec.areaUomId());
    EXPECT_EQ("", rec.rateUom());
    EXPECT_EQ("", rec.totalUom());
    EXPECT_EQ("", rec.areaUom());
    EXPECT_EQ(nullptr, rec.recData());
}

TEST(RecElement, KeepsTheIdentifiersThatItIsGiven) {
    QenRec rec = readRec(test::rec(31));
    EXPECT_EQ(uuid(21), rec.fieldId());
    EXPECT_EQ(uuid(71), rec.fieldGeometryId());
}

TEST(RecElement, IsNeverUsed) {
    const RecSample sample;
    EXPECT_FALSE(readRec(sample.root()).isUsed());
}

TEST(RecElement, OfAParserThatReadNoFileCarriesANilFileName) {
    EXPECT_EQ(uuid(0), readRec(test::rec(31)).xmlFileName());
}

TEST(RecElement, CarriesTheFileNameThatItsParserTookLast) {
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    parser.parseFile(folder.writePackage(test::package()));
    const Xml xml(test::rec(31));
    EXPECT_EQ(uuid("00112233-4455-6677-8899-aabbccddeeff"),
              parser.parseRecNode(uuid(21), uuid(71), xml.root()).xmlFileName());
}

TEST(RecElement, AllRecsOfAFileCarryTheSameFileNameAndAreNotUsed) {
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    const auto fieldWith = [](unsigned number) {
        return test::field(number,
                           test::recommendations(test::rec(number + 10) + test::rec(number + 11)));
    };
    parser.parseFile(folder.writePackage(
        test::package(test::grower(1, test::farm(11, fieldWith(100) + fieldWith(200))))));
    unsigned recs = 0;
    std::vector<QenGrower> growers = parser.getGrowers();
    for (QenField& field : growers.at(0).farms().at(0).fields()) {
        for (QenRec& rec : field.recs()) {
            ++recs;
            EXPECT_EQ(uuid("00112233-4455-6677-8899-aabbccddeeff"), rec.xmlFileName());
            EXPECT_FALSE(rec.isUsed());
        }
    }
    EXPECT_EQ(4U, recs);
}

TEST(RecElement, AManagementZoneOfThreeLettersRaises) {
    const RecSample sample;
    sample.place("@MgmtZoneID").replace("abc");
    EXPECT_EQ(sample.expected({{"result", raises}}), sample.read());
}

TEST(RecElement, OfTwoNamesTheFirstIsTaken) {
    EXPECT_EQ("one", readRec(test::rec(31, "<RecName>one</RecName><RecName>two</RecName>")).name());
}

TEST(RecElement, WithoutAnOperationLeavesItUnset) {
    const RecSample sample;
    sample.root().remove_child("Operation");
    EXPECT_EQ(sample.expected(noOperation), sample.read());
}

TEST(RecElement, WithAnEmptyOperationRaises) {
    const RecSample sample;
    sample.root().remove_child("Operation");
    sample.root().append_child("Operation");
    EXPECT_EQ(sample.expected({{"result", raises}}), sample.read());
}

TEST(RecElement, WithAnOperationThatHasANameOnlyRaises) {
    EXPECT_THROW(readRec(test::rec(31, "<Operation><OpName>Sowing</OpName></Operation>")),
                 std::runtime_error);
}

TEST(RecElement, WithANilOperationDropsItsName) {
    for (const char* nil :
         {"00000000-0000-0000-0000-000000000000", "00000000000000000000000000000000",
          "{00000000-0000-0000-0000-000000000000}"}) {
        SCOPED_TRACE(nil);
        const RecSample sample;
        sample.place("Operation/@OpID").replace(nil);
        EXPECT_EQ(sample.expected(noOperation), sample.read());
    }
}

TEST(RecElement, OfSeveralOperationsTakesTheFirstEvenForWhatItLacks) {
    const RecSample sample;
    sample.place("Operation/OpName").remove();
    pugi::xml_node second = sample.root().append_child("Operation");
    second.append_attribute("OpID") = "broken";
    second.append_child("OpName").text() = "Harvest";
    EXPECT_EQ(sample.expected({{"Operation/OpName", ""}}), sample.read());
}

TEST(RecElement, WithoutASeasonLeavesItUnset) {
    const RecSample sample;
    sample.root().remove_child("Season");
    EXPECT_EQ(sample.expected(noSeason), sample.read());
}

TEST(RecElement, WithAnEmptySeasonHasNumberZero) {
    const RecSample sample;
    sample.root().remove_child("Season");
    sample.root().append_child("Season");
    EXPECT_EQ(sample.expected({{"Season/@SeasonID", "0"}, {"Season/SeasonName", ""}}),
              sample.read());
}

TEST(RecElement, WithASeasonThatHasANameOnlyHasNumberZeroAndThatName) {
    QenRec rec = readRec(test::rec(31, "<Season><SeasonName>2014</SeasonName></Season>"));
    EXPECT_EQ(0, rec.seasonId());
    EXPECT_EQ("2014", rec.seasonName());
}

TEST(RecElement, WithANegativeSeasonDropsItsName) {
    for (const auto& [text, number] : test::negativeIntegerConversions()) {
        SCOPED_TRACE(text);
        const RecSample sample;
        sample.place("Season/@SeasonID").replace(text);
        EXPECT_EQ(sample.expected(noSeason), sample.read());
    }
}

TEST(RecElement, OfSeveralSeasonsTakesTheFirstEvenForWhatItLacks) {
    const RecSample sample;
    sample.place("Season/SeasonName").remove();
    pugi::xml_node second = sample.root().append_child("Season");
    second.append_attribute("SeasonID") = 99;
    second.append_child("SeasonName").text() = "winter";
    EXPECT_EQ(sample.expected({{"Season/SeasonName", ""}}), sample.read());
}

TEST(RecElement, WithoutStatisticsHasAllElevenAtTheirDefaults) {
    ASSERT_EQ(11U, noStatistics().size());
    const RecSample sample;
    sample.root().remove_child("RecStats");
    EXPECT_EQ(sample.expected(noStatistics()), sample.read());
}

TEST(RecElement, WithEmptyStatisticsHasAllElevenAtTheirDefaults) {
    const RecSample sample;
    sample.root().child("RecStats").remove_children();
    EXPECT_EQ(sample.expected(noStatistics()), sample.read());
}

TEST(RecElement, OfSeveralStatisticsTakesTheFirstEvenForWhatTheyLack) {
    const RecSample sample;
    sample.place("RecStats/Total").remove();
    pugi::xml_node second = sample.root().append_child("RecStats");
    for (const char* name : {"MinimumRate", "Total", "Area"})
        second.append_child(name).text() = 77;
    EXPECT_EQ(sample.expected({{"RecStats/Total", "0"}}), sample.read());
}

TEST(RecElement, WithAMinimumRateButNoTotalHasATotalOfZero) {
    QenRec rec = readRec(test::rec(31, "<RecStats><MinimumRate>2.5</MinimumRate></RecStats>"));
    EXPECT_EQ(2.5, rec.minimumRate());
    EXPECT_EQ(0.0, rec.total());
}

TEST(RecElement, AcceptsItsIdentifiersInBracesOrWithoutHyphens) {
    const RecSample sample;
    sample.place("@RecID").replace("{00112233-4455-6677-8899-aabbccddeeff}");
    sample.place("RecGeometry").replace("FFEEDDCCBBAA99887766554433221100");
    QenRec rec = readRec(sample.root());
    EXPECT_EQ(uuid("00112233-4455-6677-8899-aabbccddeeff"), rec.id());
    EXPECT_EQ(uuid("ffeeddcc-bbaa-9988-7766-554433221100"), rec.recGeometry());
}

TEST(RecElement, AcceptsAnIdentifierWithAForeignLetterAndOneThatIsFollowedByText) {
    const RecSample sample;
    sample.place("@RecID").replace("00112233-4455-6677-8899-aabbccddeexf");
    EXPECT_EQ(uuid("00112233-4455-6677-8899-aabbccddeeff"), readRec(sample.root()).id());
    sample.place("@RecID").replace("00112233-4455-6677-8899-aabbccddeeff (copy)");
    EXPECT_EQ(uuid("00112233-4455-6677-8899-aabbccddeeff"), readRec(sample.root()).id());
}

TEST(RecElement, WithoutProductDataHasNone) {
    const RecSample sample;
    EXPECT_EQ(nullptr, readRec(sample.root()).recData());
}

TEST(RecElement, WithEmptyProductDataHasNone) {
    EXPECT_EQ(nullptr, readRec(test::rec(31, "<RecData/>")).recData());
}

TEST(RecElement, OwnsProductDataThatCarryItsIdentifier) {
    QenRec rec = readRec(test::rec(31, test::fertilizer()));
    const std::unique_ptr<QenRecData> expected =
        std::make_unique<CommercialFertilizerRec>(uuid(31), 5, "Urea", 6, "kg");
    EXPECT_EQ(test::describe(expected.get()), test::describe(rec.recData()));
}

TEST(RecElement, OfSeveralProductDataTakesTheFirst) {
    const std::string first = test::fertilizer("Urea", "first");
    const std::string second = test::fertilizer("Urea", "second");
    QenRec rec = readRec(test::rec(31, first + second));
    auto* data = dynamic_cast<CommercialFertilizerRec*>(rec.recData());
    ASSERT_NE(nullptr, data);
    EXPECT_EQ("first", data->uom());

    EXPECT_EQ(nullptr, readRec(test::rec(31, "<RecData/>" + second)).recData());
}

TEST(RecElement, WithABrokenProductIdentifierRaises) {
    EXPECT_THROW(readRec(test::rec(31, test::blend("broken"))), std::runtime_error);
}

TEST(RecElement, WithABrokenIdentifierRaisesWithoutLosingProductData) {
    // Whether memory is lost shows under the leak checker.
    for (const char* path : {"@RecID", "@MgmtZoneID", "RecGeometry", "Operation/@OpID"}) {
        SCOPED_TRACE(path);
        const RecSample sample;
        const Xml data(test::fertilizer());
        sample.root().append_copy(data.root());
        sample.place(path).replace("broken");
        EXPECT_EQ(sample.expected({{"result", raises}}), sample.read());
    }
}
