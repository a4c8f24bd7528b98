#include "parser/QenXmlParser.h"

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Conversions.h"
#include "tests/support/CurrentFolder.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Texts.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

// The XML library asks for an absurd amount of memory when the file is a folder. That must fail as
// it does without the address sanitizer, which ends the program by default.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

using std::string;
using test::element;
using test::inUnitsOf;
using test::uuid;
using test::uuidText;

const string name = "00112233-4455-6677-8899-aabbccddeeff";

std::vector<boost::uuids::uuid> ids(QenXmlParser& parser) {
    std::vector<boost::uuids::uuid> result;
    for (const QenGrower& grower : parser.getGrowers())
        result.push_back(grower.id());
    return result;
}

std::vector<boost::uuids::uuid> uuids(const std::vector<unsigned>& numbers) {
    std::vector<boost::uuids::uuid> result;
    for (const unsigned number : numbers)
        result.push_back(uuid(number));
    return result;
}

/// The UUID that the parser took from its last path: every rec that it reads carries it.
boost::uuids::uuid takenBy(QenXmlParser& parser) {
    static const test::Xml rec(test::rec(31));
    return parser.parseRecNode(uuid(21), uuid(71), rec.root()).xmlFileName();
}

/// A parser that has read the growers 101 and 102 from a file with the name 100.
class ParseFile : public ::testing::Test {
protected:
    ParseFile() {
        parser.parseFile(folder.writePackage(
            test::package(test::grower(101, test::farm(11)) + test::grower(102)), uuidText(100)));
    }

    string write(const string& content) const { return folder.writePackage(content, name); }

    /// A parser of its own takes the name of the file and gets no growers from it.
    void expectNoGrowers(bool returned, const string& content) {
        SCOPED_TRACE(content);
        QenXmlParser other;
        EXPECT_EQ(returned, other.parseFile(write(content)));
        EXPECT_EQ(uuids({}), ids(other));
        EXPECT_EQ(uuid(name), takenBy(other));
    }

    /// A parser of its own gets these growers from a file.
    void expectReads(std::vector<QenGrower> growers, const string& content) {
        QenXmlParser other;
        EXPECT_TRUE(other.parseFile(write(content)));
        EXPECT_EQ(test::describe(growers), test::describe(other.getGrowers()));
    }

    void expectInvalidIdentifier(const string& path) {
        try {
            parser.parseFile(path);
            ADD_FAILURE() << "nothing raised";
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ("invalid uuid string", error.what());
        }
    }

    /// The growers are those of the constructor and then the given ones, and the next file is read
    /// and appended as if nothing had happened.
    void expectGrowersAndReuse(std::vector<unsigned> added,
                               const boost::uuids::uuid& takenFromPath) {
        std::vector<unsigned> all = {101, 102};
        all.insert(all.end(), added.begin(), added.end());
        EXPECT_EQ(uuids(all), ids(parser));
        EXPECT_EQ(takenFromPath, takenBy(parser));

        EXPECT_TRUE(
            parser.parseFile(folder.writePackage(test::package(test::grower(200)), uuidText(300))));
        all.push_back(200);
        EXPECT_EQ(uuids(all), ids(parser));
        EXPECT_EQ(uuid(300), takenBy(parser));
    }

    test::TemporaryFolder folder;
    QenXmlParser parser;
};

} // namespace

TEST_F(ParseFile, ReadsAWholePackage) {
    const string recText = test::rec(
        31, "<RecName>Rec</RecName><CreationDate>today</CreationDate><EditDate>then</EditDate>"
            "<RecDBFCol>RATE</RecDBFCol><Operation OpID=\"" +
                uuidText(34) +
                "\"><OpName>Sowing</OpName></Operation>"
                "<Season SeasonID=\"7\"><SeasonName>Spring</SeasonName></Season>" +
                test::fertilizer() +
                "<RecStats><MinimumRate>1</MinimumRate><MaximumRate>2</MaximumRate>"
                "<AverageRate>1.5</AverageRate><RateUOMID>3</RateUOMID><RateUOM>kg/ha</RateUOM>"
                "<Total>40</Total><TotalUOMID>4</TotalUOMID><TotalUOM>kg</TotalUOM>"
                "<Area>50</Area><AreaUOMID>5</AreaUOMID><AreaUOM>ha</AreaUOM></RecStats>");
    const string fieldText =
        test::field(21, "<FieldName>Field</FieldName><FieldGeometryDate>once</FieldGeometryDate>"
                        "<FieldCentroid><Latitude>45.5</Latitude><Longitude>-93.25</Longitude>"
                        "</FieldCentroid>" +
                            test::recommendations(recText));
    const string text =
        test::package(test::grower(1, "<GrowerName>Grower</GrowerName>" +
                                          test::farm(11, "<FarmName>Farm</FarmName>" + fieldText)) +
                      test::grower(2));

    QenRec rec(uuid(21), uuid(7021), "Rec", uuid(31), uuid(9031), "today", "RATE", "Sowing",
               uuid(34), "Spring", 7, uuid(0),
               new CommercialFertilizerRec(uuid(31), 5, "Urea", 6, "kg"), 1.0, 2.0, 1.5, "kg/ha", 3,
               40.0, 4, "kg", 50.0, 5, "ha", false, uuid(name));
    rec.setEditDate("then");
    LLA centroid{45.5, -93.25, 0.0};
    QenField field("Field", uuid(21), uuid(1), uuid(11), "once", uuid(7021), uuid(8021), centroid);
    field.addRec(rec);
    QenFarm farm("Farm", uuid(11), uuid(1));
    farm.addField(field);
    QenGrower grower("Grower", uuid(1));
    grower.addFarm(farm);

    expectReads({grower, QenGrower("", uuid(2))}, text);
}

TEST_F(ParseFile, OfAMissingFileReturnsFalseAndTakesItsName) {
    EXPECT_FALSE(parser.parseFile(folder.path(name + ".xml")));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAFolderReturnsFalseAndTakesItsName) {
    std::filesystem::create_directory(folder.path(name + ".xml"));
    EXPECT_FALSE(parser.parseFile(folder.path(name + ".xml")));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAFileThatIsNotWellFormedReturnsFalseAndTakesItsName) {
    const string good = test::package(test::grower(1));
    for (const string& content :
         {string(), string(" \n"), string("no mark-up"), string("<!-- comment -->"),
          good.substr(0, good.size() - 1),
          good.substr(0, good.size() - string("</RecPackage>").size()),
          string("<RecPackage>") + test::grower(1) + "<Grower></RecPackage>",
          string("<RecPackage>") + test::grower(1) + "</Recpackage>",
          string("<RecPackage") + "><Grower GrowerID=" + uuidText(1) + "/></RecPackage>"})
        expectNoGrowers(false, content);
    EXPECT_FALSE(parser.parseFile(write(good.substr(0, good.size() - 1))));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAnotherRootReturnsFalseAndTakesItsName) {
    for (const string root :
         {"Package", "recpackage", "RECPACKAGE", "RecPackages", "x:RecPackage", "Grower"})
        expectNoGrowers(false, element(root, test::grower(1)));
    EXPECT_FALSE(parser.parseFile(write(element("Other", test::package(test::grower(1))))));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAPackageWithoutGrowersReturnsTrueAndAddsNothing) {
    for (const string content : {"", "<!-- nothing -->", "<Other/>", "text", "<grower/>"})
        expectNoGrowers(true, test::package(content));
    EXPECT_TRUE(parser.parseFile(write("<RecPackage/>")));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, FindsThePackageAmongSeveralRoots) {
    EXPECT_TRUE(parser.parseFile(
        write("<Other/>" + test::package(test::grower(1)) + test::package(test::grower(2)))));
    expectGrowersAndReuse({1}, uuid(name));
}

TEST_F(ParseFile, OfAShortPathRaisesAlthoughTheFileIsFine) {
    folder.write("a.xml", test::package(test::grower(1)));
    {
        const test::CurrentFolder current(folder.path(""));
        ASSERT_TRUE(std::filesystem::exists("a.xml"));
        EXPECT_THROW(parser.parseFile("a.xml"), std::out_of_range);
    }
    expectGrowersAndReuse({}, uuid(100));
}

TEST_F(ParseFile, OfANameThatIsNoUuidRaisesAlthoughTheFileIsFine) {
    expectInvalidIdentifier(
        folder.write("packages-of-the-year-two-thousand-14.xml", test::package(test::grower(1))));
    expectGrowersAndReuse({}, uuid(100));
}

TEST_F(ParseFile, OfAMissingFileWhoseNameIsNoUuidRaises) {
    expectInvalidIdentifier(folder.path("packages-of-the-year-two-thousand-14.xml"));
    expectGrowersAndReuse({}, uuid(100));
}

TEST_F(ParseFile, OfABrokenFileWhoseNameIsNoUuidRaises) {
    expectInvalidIdentifier(
        folder.write("packages-of-the-year-two-thousand-14.xml", "<RecPackage>"));
    expectGrowersAndReuse({}, uuid(100));
}

TEST_F(ParseFile, OfAGrowerWithoutIdentifierRaises) {
    expectInvalidIdentifier(write(test::package("<Grower><GrowerName>Ada</GrowerName></Grower>")));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAForeignElementAfterTheGrowersRaisesAndKeepsThem) {
    expectInvalidIdentifier(
        write(test::package(test::grower(1) + test::grower(2) + test::grower(3) + "<Foreign/>")));
    expectGrowersAndReuse({1, 2, 3}, uuid(name));
}

TEST_F(ParseFile, OfABrokenIdentifierAnywhereKeepsOnlyTheGrowersBefore) {
    const auto inField = [](const string& content) {
        return test::grower(3, test::farm(11) + test::farm(12, test::field(21) + content));
    };
    const auto inRec = [&](const string& rec) {
        return inField(test::field(22, test::recommendations(test::rec(31) + rec)));
    };
    const auto fieldOf = [](const string& geometryId, const string& geometry) {
        return element("Field", "FieldID", 23,
                       element("FieldGeometryID", geometryId) + element("FieldGeometry", geometry));
    };
    const string good = uuidText(99);
    using GrowerWith = std::function<string(const string& identifier)>;
    const std::vector<std::pair<const char*, GrowerWith>> cases = {
        {"GrowerID", [](const string& id) { return "<Grower GrowerID=\"" + id + "\"/>"; }},
        {"FarmID",
         [](const string& id) {
             return test::grower(3, test::farm(11) + "<Farm FarmID=\"" + id + "\"/>");
         }},
        {"FieldID",
         [&](const string& id) {
             return inField("<Field FieldID=\"" + id + "\">" + element("FieldGeometryID", good) +
                            element("FieldGeometry", good) + "</Field>");
         }},
        {"FieldGeometryID", [&](const string& id) { return inField(fieldOf(id, good)); }},
        {"FieldGeometry", [&](const string& id) { return inField(fieldOf(good, id)); }},
        {"RecID",
         [&](const string& id) {
             return inRec("<Rec RecID=\"" + id + "\">" + element("RecGeometry", good) + "</Rec>");
         }},
        {"RecGeometry",
         [&](const string& id) {
             return inRec(element("Rec", "RecID", 32, element("RecGeometry", id)));
         }},
        {"OpID",
         [&](const string& id) {
             return inRec(test::rec(32, "<Operation OpID=\"" + id + "\"/>"));
         }},
        {"ProductID", [&](const string& id) { return inRec(test::rec(32, test::blend(id))); }},
    };
    for (const auto& [identifier, growerWith] : cases) {
        SCOPED_TRACE(identifier);
        for (const string broken : {"", "abc", "00112233-44556677-8899-aabbccddeeff"}) {
            QenXmlParser other;
            EXPECT_THROW(
                other.parseFile(write(test::package(test::grower(1) + test::grower(2) +
                                                    growerWith(broken) + test::grower(4)))),
                std::runtime_error);
            EXPECT_EQ(uuids({1, 2}), ids(other));
            EXPECT_EQ(uuid(name), takenBy(other));
        }
        // It is only the identifier that is wrong.
        QenXmlParser other;
        EXPECT_TRUE(other.parseFile(write(test::package(growerWith(good)))));
        EXPECT_EQ(1U, ids(other).size());
    }
}

TEST_F(ParseFile, OfTheSamePackageTwiceGivesEveryGrowerTwice) {
    const string path = write(test::package(test::grower(1) + test::grower(2)));
    QenXmlParser twice;
    EXPECT_TRUE(twice.parseFile(path));
    EXPECT_TRUE(twice.parseFile(path));
    EXPECT_EQ(uuids({1, 2, 1, 2}), ids(twice));
}

TEST_F(ParseFile, AppendsTheGrowersOfEachFileWhichCarryItsName) {
    const auto packageOf = [](unsigned number) {
        const string recs = test::recommendations(test::rec(31));
        return test::package(test::grower(number, test::farm(11, test::field(21, recs))));
    };
    QenXmlParser several;
    for (const unsigned number : {3U, 1U, 2U})
        EXPECT_TRUE(
            several.parseFile(folder.writePackage(packageOf(number), uuidText(1000 + number))));
    EXPECT_EQ(uuids({3, 1, 2}), ids(several));

    std::vector<boost::uuids::uuid> names;
    for (QenGrower& grower : several.getGrowers())
        names.push_back(grower.farms().at(0).fields().at(0).recs().at(0).xmlFileName());
    EXPECT_EQ(uuids({1003, 1001, 1002}), names);
}

TEST_F(ParseFile, ReadsTheFileAgainEachTime) {
    EXPECT_TRUE(parser.parseFile(write(test::package(test::grower(1)))));
    EXPECT_TRUE(parser.parseFile(write(test::package(test::grower(2)))));
    EXPECT_EQ(uuids({101, 102, 1, 2}), ids(parser));
}

TEST_F(ParseFile, IgnoresCommentsInstructionsDeclarationAndDocumentType) {
    const string noise = "<!-- <RecPackage/> --><?instruction <Grower/>?>";
    const string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + noise +
                        "<!DOCTYPE RecPackage [<!ELEMENT RecPackage ANY><!ENTITY ada \"Ada\">]>\n" +
                        noise + "<RecPackage>" + noise + "<Grower " + "GrowerID=\"" + uuidText(1) +
                        "\">" + noise + "<GrowerName>" + noise + "&ada;" + noise + "</GrowerName>" +
                        noise + "</Grower>" + noise + "</RecPackage>" + noise;
    // Entities that a document declares are not known.
    expectReads({QenGrower("&ada;", uuid(1))}, text);
}

TEST_F(ParseFile, TakesTextsVerbatim) {
    for (const auto& [markup, text] : test::textConversions()) {
        SCOPED_TRACE(markup);
        expectReads({QenGrower(text, uuid(1))},
                    test::package(test::grower(1, element("GrowerName", markup))));
    }
}

TEST_F(ParseFile, ReadsAllEncodingsThatAreRecognised) {
    const string text =
        test::package(test::grower(1, "<GrowerName>Ada</GrowerName>" + test::farm(11)));
    const string declared = "<?xml version=\"1.0\"?>" + text;
    const std::vector<std::pair<const char*, string>> cases = {
        {"UTF-8", text},
        {"UTF-8 with byte order mark", "\xEF\xBB\xBF" + text},
        {"UTF-16 LE with byte order mark", "\xFF\xFE" + inUnitsOf(2, false, text)},
        {"UTF-16 BE with byte order mark", "\xFE\xFF" + inUnitsOf(2, true, text)},
        {"UTF-16 LE", inUnitsOf(2, false, declared)},
        {"UTF-16 BE", inUnitsOf(2, true, declared)},
        {"UTF-32 LE with byte order mark", string("\xFF\xFE\0\0", 4) + inUnitsOf(4, false, text)},
        {"UTF-32 BE with byte order mark", string("\0\0\xFE\xFF", 4) + inUnitsOf(4, true, text)},
        {"UTF-32 LE", inUnitsOf(4, false, text)},
        {"UTF-32 BE", inUnitsOf(4, true, text)},
    };
    QenGrower grower("Ada", uuid(1));
    grower.addFarm(QenFarm("", uuid(11), uuid(1)));
    for (const auto& [encoding, content] : cases) {
        SCOPED_TRACE(encoding);
        expectReads({grower}, content);
    }
}

TEST_F(ParseFile, GivesTextsInUtf8WhateverTheEncodingOfTheFile) {
    const string before = "<RecPackage><Grower GrowerID=\"" + uuidText(1) + "\"><GrowerName>";
    const string after = "</GrowerName></Grower></RecPackage>";
    const std::u32string units = test::unitsOf(before) + U"Z\u00FCrich" + test::unitsOf(after);
    const std::vector<std::pair<const char*, string>> cases = {
        {"UTF-8", before + "Z\xC3\xBCrich" + after},
        {"Latin-1",
         "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + before + "Z\xFCrich" + after},
        {"UTF-16 LE", "\xFF\xFE" + inUnitsOf(2, false, units)},
        {"UTF-16 BE", "\xFE\xFF" + inUnitsOf(2, true, units)},
    };
    for (const auto& [encoding, content] : cases) {
        SCOPED_TRACE(encoding);
        expectReads({QenGrower("Z\xC3\xBCrich", uuid(1))}, content);
    }
}
