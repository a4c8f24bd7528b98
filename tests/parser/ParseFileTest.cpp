#include "parser/QenXmlParser.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Conversions.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

// The XML library asks for an absurd amount of memory when the file is a folder. That must fail as
// it does without the address sanitizer, which ends the program by default.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

using test::element;
using test::uuid;
using test::uuidText;

const std::string name = "00112233-4455-6677-8899-aabbccddeeff";

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

    std::string write(const std::string& content) const {
        return folder.writePackage(content, name);
    }

    void expectInvalidIdentifier(const std::string& path) {
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

/// Makes a folder the current one.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::string& path) : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(path);
    }

    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

    ~CurrentFolder() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }

private:
    std::filesystem::path before_;
};

/// @p text, which is ASCII, in units of @p size bytes.
std::string inUnitsOf(std::size_t size, bool bigEndian, const std::string& text) {
    std::string result;
    for (const char c : text) {
        std::string unit(size, '\0');
        unit[bigEndian ? size - 1 : 0] = c;
        result += unit;
    }
    return result;
}

} // namespace

TEST_F(ParseFile, ReadsAWholePackage) {
    const std::string product =
        element("CommercialFertilizer", "<ProductID>5</ProductID><ProductName>Urea</ProductName>"
                                        "<UOMID>6</UOMID><UOM>kg</UOM>");
    const std::string recText = test::rec(
        31, "<RecName>Rec</RecName><CreationDate>today</CreationDate><EditDate>then</EditDate>"
            "<RecDBFCol>RATE</RecDBFCol><Operation OpID=\"" +
                uuidText(34) +
                "\"><OpName>Sowing</OpName></Operation>"
                "<Season SeasonID=\"7\"><SeasonName>Spring</SeasonName></Season>" +
                element("RecData", product) +
                "<RecStats><MinimumRate>1</MinimumRate><MaximumRate>2</MaximumRate>"
                "<AverageRate>1.5</AverageRate><RateUOMID>3</RateUOMID><RateUOM>kg/ha</RateUOM>"
                "<Total>40</Total><TotalUOMID>4</TotalUOMID><TotalUOM>kg</TotalUOM>"
                "<Area>50</Area><AreaUOMID>5</AreaUOMID><AreaUOM>ha</AreaUOM></RecStats>");
    const std::string fieldText =
        test::field(21, "<FieldName>Field</FieldName><FieldGeometryDate>once</FieldGeometryDate>"
                        "<FieldCentroid><Latitude>45.5</Latitude><Longitude>-93.25</Longitude>"
                        "</FieldCentroid>" +
                            test::recommendations(recText));
    const std::string text =
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

    QenXmlParser other;
    ASSERT_TRUE(other.parseFile(write(text)));
    EXPECT_EQ(test::describe({grower, QenGrower("", uuid(2))}), test::describe(other.getGrowers()));
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
    const std::string good = test::package(test::grower(1));
    for (const std::string& content :
         {std::string(), std::string(" \n"), std::string("no mark-up"),
          std::string("<!-- comment -->"), good.substr(0, good.size() - 1),
          good.substr(0, good.size() - std::string("</RecPackage>").size()),
          std::string("<RecPackage>") + test::grower(1) + "<Grower></RecPackage>",
          std::string("<RecPackage>") + test::grower(1) + "</Recpackage>",
          std::string("<RecPackage") + "><Grower GrowerID=" + uuidText(1) + "/></RecPackage>"}) {
        SCOPED_TRACE(content);
        QenXmlParser other;
        EXPECT_FALSE(other.parseFile(write(content)));
        EXPECT_EQ(uuids({}), ids(other));
        EXPECT_EQ(uuid(name), takenBy(other));
    }
    EXPECT_FALSE(parser.parseFile(write(good.substr(0, good.size() - 1))));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAnotherRootReturnsFalseAndTakesItsName) {
    for (const std::string root :
         {"Package", "recpackage", "RECPACKAGE", "RecPackages", "x:RecPackage", "Grower"}) {
        SCOPED_TRACE(root);
        QenXmlParser other;
        EXPECT_FALSE(other.parseFile(write(element(root, test::grower(1)))));
        EXPECT_EQ(uuids({}), ids(other));
        EXPECT_EQ(uuid(name), takenBy(other));
    }
    EXPECT_FALSE(parser.parseFile(write(element("Other", test::package(test::grower(1))))));
    expectGrowersAndReuse({}, uuid(name));
}

TEST_F(ParseFile, OfAPackageWithoutGrowersReturnsTrueAndAddsNothing) {
    for (const std::string content : {"", "<!-- nothing -->", "<Other/>", "text", "<grower/>"}) {
        SCOPED_TRACE(content);
        QenXmlParser other;
        EXPECT_TRUE(other.parseFile(write(test::package(content))));
        EXPECT_EQ(uuids({}), ids(other));
        EXPECT_EQ(uuid(name), takenBy(other));
    }
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
        const CurrentFolder current(folder.path(""));
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
    const auto inField = [](const std::string& content) {
        return test::grower(3, test::farm(11) + test::farm(12, test::field(21) + content));
    };
    const auto inRec = [&](const std::string& rec) {
        return inField(test::field(22, test::recommendations(test::rec(31) + rec)));
    };
    const auto blend = [](const std::string& productId) {
        std::string content = element("ProductID", productId);
        for (const char* child : {"ProductName", "UOMID", "UOM", "SFertT_ID", "SpGravity", "Pct_N",
                                  "Pct_P", "Pct_K", "Pct_Ca", "Pct_Mg", "Pct_S", "Pct_Fe", "Pct_Mn",
                                  "Pct_Zn", "Pct_Cu", "Pct_B", "Pct_Mo", "Pct_Cl"})
            content += element(child, "1");
        return element("RecData", element("CustomFertilizer", content));
    };
    const auto fieldOf = [](const std::string& geometryId, const std::string& geometry) {
        return element("Field", "FieldID", 23,
                       element("FieldGeometryID", geometryId) + element("FieldGeometry", geometry));
    };
    const std::string good = uuidText(99);
    struct Case {
        const char* identifier;
        std::function<std::string(const std::string&)> grower; ///< With the identifier in it.
    };
    const Case cases[] = {
        {"GrowerID", [](const std::string& id) { return "<Grower GrowerID=\"" + id + "\"/>"; }},
        {"FarmID",
         [](const std::string& id) {
             return test::grower(3, test::farm(11) + "<Farm FarmID=\"" + id + "\"/>");
         }},
        {"FieldID",
         [&](const std::string& id) {
             return inField("<Field FieldID=\"" + id + "\">" + element("FieldGeometryID", good) +
                            element("FieldGeometry", good) + "</Field>");
         }},
        {"FieldGeometryID", [&](const std::string& id) { return inField(fieldOf(id, good)); }},
        {"FieldGeometry", [&](const std::string& id) { return inField(fieldOf(good, id)); }},
        {"RecID",
         [&](const std::string& id) {
             return inRec("<Rec RecID=\"" + id + "\">" + element("RecGeometry", good) + "</Rec>");
         }},
        {"RecGeometry",
         [&](const std::string& id) {
             return inRec(element("Rec", "RecID", 32, element("RecGeometry", id)));
         }},
        {"OpID",
         [&](const std::string& id) {
             return inRec(test::rec(32, "<Operation OpID=\"" + id + "\"/>"));
         }},
        {"ProductID", [&](const std::string& id) { return inRec(test::rec(32, blend(id))); }},
    };
    for (const auto& [identifier, growerWith] : cases) {
        SCOPED_TRACE(identifier);
        for (const std::string broken : {"", "abc", "00112233-44556677-8899-aabbccddeeff"}) {
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
    const std::string path = write(test::package(test::grower(1) + test::grower(2)));
    QenXmlParser twice;
    EXPECT_TRUE(twice.parseFile(path));
    EXPECT_TRUE(twice.parseFile(path));
    EXPECT_EQ(uuids({1, 2, 1, 2}), ids(twice));
}

TEST_F(ParseFile, AppendsTheGrowersOfEachFileWhichCarryItsName) {
    const auto packageOf = [](unsigned number) {
        const std::string recs = test::recommendations(test::rec(31));
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
    QenXmlParser other;
    EXPECT_TRUE(other.parseFile(write(test::package(test::grower(1)))));
    EXPECT_TRUE(other.parseFile(write(test::package(test::grower(2)))));
    EXPECT_EQ(uuids({1, 2}), ids(other));
}

TEST_F(ParseFile, IgnoresCommentsInstructionsDeclarationAndDocumentType) {
    const std::string noise = "<!-- <RecPackage/> --><?instruction <Grower/>?>";
    const std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + noise +
        "<!DOCTYPE RecPackage [<!ELEMENT RecPackage ANY><!ENTITY ada \"Ada\">]>\n" + noise +
        "<RecPackage>" + noise + "<Grower " + "GrowerID=\"" + uuidText(1) + "\">" + noise +
        "<GrowerName>" + noise + "&ada;" + noise + "</GrowerName>" + noise + "</Grower>" + noise +
        "</RecPackage>" + noise;
    QenXmlParser other;
    EXPECT_TRUE(other.parseFile(write(text)));
    // Entities that a document declares are not known.
    EXPECT_EQ(test::describe({QenGrower("&ada;", uuid(1))}), test::describe(other.getGrowers()));
}

TEST_F(ParseFile, TakesTextsVerbatim) {
    for (const auto& [markup, text] : test::textConversions()) {
        SCOPED_TRACE(markup);
        QenXmlParser other;
        EXPECT_TRUE(
            other.parseFile(write(test::package(test::grower(1, element("GrowerName", markup))))));
        EXPECT_EQ(test::describe({QenGrower(text, uuid(1))}), test::describe(other.getGrowers()));
    }
}

TEST_F(ParseFile, ReadsAllEncodingsThatAreRecognised) {
    const std::string text =
        test::package(test::grower(1, "<GrowerName>Ada</GrowerName>" + test::farm(11)));
    const std::string declared = "<?xml version=\"1.0\"?>" + text;
    const std::string little16 = inUnitsOf(2, false, text);
    const std::string big16 = inUnitsOf(2, true, text);
    const std::string little32 = inUnitsOf(4, false, text);
    const std::string big32 = inUnitsOf(4, true, text);
    struct Case {
        const char* encoding;
        std::string content;
    };
    const Case cases[] = {
        {"UTF-8", text},
        {"UTF-8 with byte order mark", "\xEF\xBB\xBF" + text},
        {"UTF-16 LE with byte order mark", "\xFF\xFE" + little16},
        {"UTF-16 BE with byte order mark", "\xFE\xFF" + big16},
        {"UTF-16 LE", inUnitsOf(2, false, declared)},
        {"UTF-16 BE", inUnitsOf(2, true, declared)},
        {"UTF-32 LE with byte order mark", std::string("\xFF\xFE\0\0", 4) + little32},
        {"UTF-32 BE with byte order mark", std::string("\0\0\xFE\xFF", 4) + big32},
        {"UTF-32 LE", little32},
        {"UTF-32 BE", big32},
    };
    QenGrower grower("Ada", uuid(1));
    grower.addFarm(QenFarm("", uuid(11), uuid(1)));
    for (const Case& each : cases) {
        SCOPED_TRACE(each.encoding);
        QenXmlParser other;
        EXPECT_TRUE(other.parseFile(write(each.content)));
        EXPECT_EQ(test::describe(grower), test::describe(other.getGrowers()));
    }
}

TEST_F(ParseFile, GivesTextsInUtf8WhateverTheEncodingOfTheFile) {
    const std::string before = "<RecPackage>"
                               "<Grower GrowerID=\"" +
                               uuidText(1) + "\"><GrowerName>";
    const std::string after = "</GrowerName></Grower></RecPackage>";
    struct Case {
        const char* encoding;
        std::string content;
    };
    const Case cases[] = {
        {"UTF-8", before + "Z\xC3\xBCrich" + after},
        {"Latin-1",
         "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + before + "Z\xFCrich" + after},
        {"UTF-16 LE", "\xFF\xFE" + inUnitsOf(2, false, before + "Z") + std::string("\xFC\0", 2) +
                          inUnitsOf(2, false, "rich" + after)},
        {"UTF-16 BE", "\xFE\xFF" + inUnitsOf(2, true, before + "Z") + std::string("\0\xFC", 2) +
                          inUnitsOf(2, true, "rich" + after)},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.encoding);
        QenXmlParser other;
        EXPECT_TRUE(other.parseFile(write(each.content)));
        EXPECT_EQ(test::describe({QenGrower("Z\xC3\xBCrich", uuid(1))}),
                  test::describe(other.getGrowers()));
    }
}
