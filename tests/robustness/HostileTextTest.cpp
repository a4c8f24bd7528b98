// Files with numbers, identifiers, characters and document types as nobody writes them.

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "tests/robustness/HostileFile.h"

namespace {

namespace outcome = test::outcome;
using std::string_literals::operator""s;
using test::holdsPackage;
using test::million;
using test::packageWithFarm;
using test::Reading;
using test::repeated;

struct LongNumber {
    std::string text;
    double number;
    int integer;
};

std::vector<LongNumber> longNumbers() {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    const std::string zeros(million, '0');
    const std::string nines(million, '9');
    return {
        {nines, infinite, largest},
        {"-" + nines, -infinite, smallest},
        {zeros, 0.0, 0},
        {zeros + "7", 7.0, 7},
        {"-" + zeros + "7", -7.0, -7},
        {zeros + "7." + zeros, 7.0, 7},
        {"0." + zeros + "7", 0.0, 0},
        {"0." + nines, 1.0, 0},
        {"0." + std::string(million, '3'), 1.0 / 3.0, 0},
        {"0." + zeros + "7e" + std::to_string(million + 1), 7.0, 0},
        {"7" + zeros + "e-" + std::to_string(million), 7.0, largest},
        {"1e" + nines, infinite, 1},
        {"1e-" + nines, 0.0, 1},
        {"7e" + zeros, 7.0, 7},
        {"0x" + zeros + "1F", 31.0, 31},
        {"0x" + std::string(million, 'F'), infinite, largest},
        {"0x0." + std::string(million, 'F'), 1.0, 0},
        {std::string(million, ' ') + "7.5", 7.5, 7},
        {"7.5" + std::string(million, ' '), 7.5, 7},
        {"7.5" + std::string(million, 'x'), 7.5, 7},
        {std::string(million, '-'), 0.0, 0},
        {std::string(million, '.'), 0.0, 0},
    };
}

} // namespace

TEST_F(HostileFile, WithNumbersOfAMillionDigitsIsReadAsWithShortOnes) {
    for (const auto& [text, number, integer] : longNumbers()) {
        SCOPED_TRACE(text.substr(0, 9) + "..." + text.substr(text.size() - 9));
        Reading reading = read(test::package(test::grower(
            1, test::farm(
                   11, test::field(
                           21, test::element("FieldCentroid", test::element("Latitude", text)) +
                                   test::recommendations(test::rec(
                                       31, "<Season SeasonID=\"" + text + "\"/>" +
                                               test::element("RecData", test::planting(text)) +
                                               test::element("RecStats",
                                                             test::elements({"Total", "AreaUOMID"},
                                                                            text)))))))));
        ASSERT_EQ(outcome::read, reading.outcome);
        QenField& field = reading.growers.at(0).farms().at(0).fields().at(0);
        QenRec& rec = field.recs().at(0);
        EXPECT_EQ(number, field.geometries().at(0).centroid().latitude);
        EXPECT_EQ(number, rec.total());
        EXPECT_EQ(integer, rec.areaUomId());
        EXPECT_EQ(integer, dynamic_cast<PlantingRec&>(*rec.recData()).cropId());
        EXPECT_EQ(integer < 0 ? -1 : integer, rec.seasonId());
    }
}

TEST_F(HostileFile, WithIdentifiersOfAMillionCharactersIsReadByTheirRules) {
    const std::string id = test::uuidText(1);
    const auto with = [](const std::string& text) {
        return test::package("<Grower GrowerID=\"" + text + "\"/>");
    };
    expectReadAs(with(id), with(id + std::string(million, '0')));
    expectReadAs(with(id), with("{" + id + std::string(million, '}')));
    expectReadAs(with("ffffffff-ffff-ffff-ffff-ffffffffffff"), with(std::string(million, 'g')));
    expectReadAs(with("ffffffff-ffff-ffff-ffff-ffffffffffff"), with(std::string(million, '}')));
    expectOutcome(outcome::invalid, with(std::string(million, '{')));
    expectOutcome(outcome::invalid, with("{" + std::string(million, '0')));
}

namespace {

struct Character {
    std::string inFile;
    std::string read;
};

} // namespace

TEST_F(HostileFile, WithReferencesToCharactersThatAreNoneIsRead) {
    // The text ends at a NUL character; nothing else is lost, and nothing is checked.
    const std::vector<Character> characters = {
        {"&#0;", ""},
        {"A&#0;B", "A"},
        {"A&#x0;B", "A"},
        {"A&#x00000000000000000000;B", "A"},
        {"A&#1;B", "A\1B"},
        {"A&#xFFFE;B", "A\xEF\xBF\xBE"
                       "B"},
        {"A&#x10FFFF;B", "A\xF4\x8F\xBF\xBF"
                         "B"},
        {"A&#;B", "A&#;B"},
        {"A&#x;B", "A&#x;B"},
        {"A&#x41B", "A&#x41B"},
        {"A&#65", "A&#65"},
        {"A&#-65;B", "A&#-65;B"},
        {"A&#xG;B", "A&#xG;B"},
        {"A&;B", "A&;B"},
        {"A&", "A&"},
        {"A&#", "A&#"},
        {"A&unknown;B", "A&unknown;B"},
    };
    for (const auto& [inFile, expected] : characters) {
        SCOPED_TRACE(inFile);
        expectFarm(expected, packageWithFarm(inFile));
    }
}

TEST_F(HostileFile, WithReferencesBeyondAllCharactersIsReadAsTheXmlLibraryReadsIt) {
    for (const std::string inFile :
         {"&#xD800;", "&#xDFFF;", "&#xD83D;&#xDE00;", "&#x110000;", "&#xFFFFFFFF;", "&#x100000041;",
          "&#99999999999999999999;", "&#4294967361;"}) {
        SCOPED_TRACE(inFile);
        const std::string content = packageWithFarm("A" + inFile + "B");
        pugi::xml_document document;
        ASSERT_TRUE(document.load_buffer(content.data(), content.size()));
        const std::string expected =
            document.first_element_by_path("RecPackage/Grower/Farm/FarmName").child_value();
        expectFarm(expected, content);
        EXPECT_EQ('A', expected.at(0));
    }
    const std::string everywhere = repeated("&#x110000;&#xD800;", 100'000);
    EXPECT_EQ(outcome::read, read(packageWithFarm(everywhere)).outcome);
}

TEST_F(HostileFile, WithANulReferenceInAnIdentifierEndsTheIdentifierThere) {
    const std::string id = test::uuidText(1);
    const auto with = [](const std::string& text) {
        return test::package("<Grower GrowerID=\"" + text + "\"/>");
    };
    expectReadAs(with(id), with(id + "&#0;"));
    expectReadAs(with(id), with(id + "&#0;rest"));
    expectOutcome(outcome::invalid, with("&#0;"));
    expectOutcome(outcome::invalid, with("&#0;" + id));
    expectOutcome(outcome::invalid, with("{" + id + "&#0;}"));
    for (std::size_t at = 0; at < id.size(); ++at)
        expectOutcome(outcome::invalid, with(id.substr(0, at) + "&#0;" + id.substr(at)));
}

TEST_F(HostileFile, WithANulReferenceInAnElementWithAnIdentifierEndsTheIdentifierThere) {
    const auto with = [](const std::string& geometry, const std::string& zone) {
        return test::packageWithRecs("<Rec RecID=\"" + test::uuidText(31) + "\" MgmtZoneID=\"" +
                                     zone + "\">" + test::element("RecGeometry", geometry) +
                                     "</Rec>");
    };
    const std::string id = test::uuidText(2);
    expectReadAs(with(id, ""), with(id + "&#0;rest", "&#0;rest"));
    expectReadAs(with(id, id), with(id, id + "&#0;rest"));
    expectOutcome(outcome::invalid, with("&#0;" + id, ""));
    expectOutcome(outcome::invalid, with(id, "0&#0;" + id));
}

TEST_F(HostileFile, WithInvalidUtf8IsReadAsItIs) {
    const std::vector<std::string> sequences = {
        "\x80",             // a continuation without a beginning
        "\xBF\xBF\xBF",     //
        "\xC3",             // a beginning without its continuation
        "\xE2\x82",         //
        "\xF0\x9F\x98",     //
        "\xC0\x80",         // overlong
        "\xE0\x80\xAF",     //
        "\xED\xA0\x80",     // a surrogate
        "\xF4\x90\x80\x80", // beyond Unicode
        "\xF8\x88\x80\x80\x80",
        "\xFE",
        "\xFF",
        "\xFF\xFE",
        "\xEF\xBB\xBF", // a byte order mark where there should be none
    };
    for (const std::string& sequence : sequences) {
        for (const std::string& text : {sequence, "A" + sequence + "B"}) {
            expectFarm(text, packageWithFarm(text));
        }
        // In the place of two digits they count as no digits: neither refused nor looked up wildly.
        const std::string two = (sequence + sequence).substr(0, 2);
        expectReadAs(
            test::package("<Grower GrowerID=\"ff" + test::uuidText(1).substr(2) + "\"/>"),
            test::package("<Grower GrowerID=\"" + two + test::uuidText(1).substr(2) + "\"/>"));
        // A beginning right before a mark-up character does not swallow it.
        expectReadAs(test::package(test::grower(1)), test::package(sequence + test::grower(1)));
        // In names of elements and attributes, where they are just other names.
        expectReadAs(
            test::package(test::grower(1)),
            test::package(test::grower(1, "<Farm" + sequence + " FarmID" + sequence + "=\"\"/>")));
    }
}

TEST_F(HostileFile, WithEntitiesThatMultiplyLeavesThemUnexpanded) {
    std::string type = "<!DOCTYPE RecPackage [\n<!ENTITY e0 \"ten times ten times ten\">\n";
    for (int i = 1; i < 50; ++i)
        type += "<!ENTITY e" + std::to_string(i) + " \"" +
                repeated("&e" + std::to_string(i - 1) + ";", 10) + "\">\n";
    type += "]>\n";
    expectFarm("&e49;", type + packageWithFarm("&e49;"));
}

TEST_F(HostileFile, WithEntitiesFromOutsideLeavesThemUnread) {
    const std::string secret = folder_.write("secret", "secret");
    for (const std::string& entity :
         {"<!ENTITY e SYSTEM \"file://" + secret + "\">", "<!ENTITY e SYSTEM \"" + secret + "\">",
          "<!ENTITY % p SYSTEM \"" + secret + "\"> %p; <!ENTITY e \"%p;\">",
          "<!ENTITY e SYSTEM \"/dev/zero\">"s})
        expectFarm("&e;", "<!DOCTYPE RecPackage [" + entity + "]>" + packageWithFarm("&e;"));
    expectFarm("&e;", "<!DOCTYPE RecPackage SYSTEM \"" + secret + "\">" + packageWithFarm("&e;"));
}

TEST_F(HostileFile, WithAnEntityThatNamesItselfLeavesItUnexpanded) {
    expectFarm("&a;&b;", "<!DOCTYPE RecPackage [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>" +
                             packageWithFarm("&a;&b;"));
}

TEST_F(HostileFile, WithAMillionNestedDeclarationsInItsTypeEndsInADocumentedWay) {
    const std::string package = packageWithFarm("x");
    for (const auto& [open, close] : std::vector<std::pair<std::string, std::string>>{
             {"<!a ", ">"}, {"<![IGNORE[", "]]>"}, {"<![INCLUDE[", "]]>"}, {"[", "]"}}) {
        SCOPED_TRACE(open);
        const std::string closed = "<!DOCTYPE RecPackage [" + repeated(open, million) +
                                   repeated(close, million) + "]>" + package;
        const std::string unclosed =
            "<!DOCTYPE RecPackage [" + repeated(open, million) + "]>" + package;
        for (const std::string& content : {closed, unclosed}) {
            const std::string expected = holdsPackage(content) ? outcome::read : outcome::refused;
            EXPECT_EQ(expected, read(content).outcome);
        }
    }
}

TEST_F(HostileFile, WithATypeThatNeverEndsIsRefused) {
    for (const std::string type : {"<!DOCTYPE", "<!DOCTYPE ", "<!DOCTYPE RecPackage [",
                                   "<!DOCTYPE RecPackage \"", "<!DOCTYPE RecPackage [<!--",
                                   "<!DOCTYPE RecPackage [<?", "<!DOCTYPE RecPackage [<![IGNORE["})
        expectRefused(type + std::string(1000, ' ') + packageWithFarm("x"));
}
