// Whatever a file holds, or is: reading it ends in one of the documented ways, the growers read
// before stay, and the parser reads the next file as if nothing had happened.

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/robustness/Instrumented.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/robustness/Outcome.h"
#include "tests/support/Describe.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"

// The XML library asks for half of all memory to read a directory, and is refused. The allocators
// of the sanitizers would end the program instead.
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "allocator_may_return_null=1";
}
extern "C" const char* __tsan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "allocator_may_return_null=1";
}

namespace {

namespace fs = std::filesystem;
namespace outcome = test::outcome;
using std::string_literals::operator""s;

const std::string packageUuid = "00112233-4455-6677-8899-aabbccddeeff";

std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

/// A whole package whose farm is called @p name, a text as it stands in a file.
std::string packageWithFarm(const std::string& name) {
    return test::package(test::grower(1, test::farm(11, test::element("FarmName", name))));
}

/// A package that has every kind of element, with line breaks between them.
std::string completePackage() {
    return "<?xml version=\"1.0\"?>\n<!-- complete -->\n" +
           test::package("\n  " + test::growerWithNumbers("12.75") + "\n  " + test::grower(2)) +
           "\n";
}

struct Reading {
    std::string outcome;
    std::vector<QenGrower> growers;

    std::string farmName() { return growers.at(0).farms().at(0).name(); }
};

/// Whether the document of a file holds a package at all, as the XML library sees it.
bool holdsPackage(std::string_view content) {
    pugi::xml_document document;
    return document.load_buffer(content.data(), content.size()) && document.child("RecPackage");
}

} // namespace

class HostileFile : public testing::Test {
protected:
    /// Reads an ordinary package before and after the hostile one, with the same parser, and
    /// expects them to be read as ever.
    Reading readFrom(const std::string& path) {
        QenXmlParser parser;
        EXPECT_EQ(outcome::read, test::outcomeOf(parser, ordinary_));
        Reading reading;
        reading.outcome = test::outcomeOf(parser, path);
        EXPECT_EQ(outcome::read, test::outcomeOf(parser, ordinary_));

        reading.growers = parser.getGrowers();
        if (reading.growers.size() < 2) {
            ADD_FAILURE() << "ordinary growers are lost";
            return reading;
        }
        EXPECT_EQ(described_, test::describe(reading.growers.front()));
        EXPECT_EQ(described_, test::describe(reading.growers.back()));
        reading.growers.erase(reading.growers.begin());
        reading.growers.pop_back();
        return reading;
    }

    Reading read(std::string_view content) {
        // A new file each time: some file systems write an overwritten one to the disk at once.
        fs::remove(path());
        return readFrom(folder_.writePackage(content, packageUuid));
    }

    /// Expects a package to be read as another one is, which has nothing unusual.
    void expectReadAs(std::string_view usual, std::string_view content) {
        Reading reading = read(content);
        EXPECT_EQ(outcome::read, reading.outcome);
        EXPECT_EQ(test::describe(read(usual).growers), test::describe(reading.growers));
    }

    void expectRefused(std::string_view content) { expectOutcome(outcome::refused, content); }

    void expectOutcome(const std::string& expected, std::string_view content) {
        const Reading reading = read(content);
        EXPECT_EQ(expected, reading.outcome);
        EXPECT_EQ("", test::describe(reading.growers));
    }

    /// A path in the folder that carries a UUID, as every path must.
    std::string path() const { return folder_.path(packageUuid + ".xml"); }

    const test::TemporaryFolder folder_;

private:
    const std::string ordinary_ = folder_.writePackage(
        test::package(test::grower(
            3, test::farm(13, test::field(23, test::recommendations(test::recWithNumbers(
                                                  33, test::planting("3.5"), "3.5")))))),
        "ffffffff-4455-6677-8899-aabbccddeeff");
    const std::string described_ = [this] {
        QenXmlParser parser;
        parser.parseFile(ordinary_);
        return test::describe(parser.getGrowers());
    }();
};

// Damaged packages

TEST_F(HostileFile, CutAnywhereIsRefusedAndReadsOnlyWhenItsRootElementIsWhole) {
    const std::string whole = completePackage();
    const std::string described = test::describe(read(whole).growers);
    const std::size_t end = whole.rfind('>') + 1;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        const Reading reading = read(std::string_view(whole).substr(0, length));
        EXPECT_EQ(length < end ? outcome::refused : outcome::read, reading.outcome);
        EXPECT_EQ(length < end ? "" : described, test::describe(reading.growers));
        if (HasFailure())
            return;
    }
}

TEST_F(HostileFile, WithAnyByteReplacedEndsInADocumentedWay) {
    const std::string whole = completePackage();
    const std::string nasty = "\0<>&\"'/\x80\xFF] \n7{"s;
    // Each place is tried all the same, but with fewer bytes.
    const std::size_t step = test::builtWithSanitizers ? 3 : 1;
    std::size_t each[3] = {};
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (std::size_t n = at % step; n < nasty.size(); n += step) {
            std::string damaged = whole;
            damaged[at] = nasty[n];
            const Reading reading = read(damaged);
            if (!holdsPackage(damaged)) {
                EXPECT_EQ(outcome::refused, reading.outcome);
                EXPECT_EQ(0U, reading.growers.size());
                ++each[0];
            } else if (reading.outcome == outcome::read) {
                EXPECT_EQ(2U, reading.growers.size());
                ++each[1];
            } else {
                EXPECT_EQ(outcome::invalid, reading.outcome);
                EXPECT_GE(1U, reading.growers.size());
                ++each[2];
            }
            ASSERT_FALSE(HasFailure())
                << "byte " << at << " replaced by " << static_cast<int>(nasty[n]);
        }
    }
    // All three ways came up, each more than once in a while.
    EXPECT_LT(whole.size(), each[0] * step);
    EXPECT_LT(whole.size(), each[1] * step);
    EXPECT_LT(whole.size() / 10, each[2] * step);
}

TEST_F(HostileFile, WithoutAFinalNewlineIsReadInFull) {
    std::string whole = completePackage();
    ASSERT_EQ('\n', whole.back());
    const std::string described = test::describe(read(whole).growers);
    whole.pop_back();
    const Reading reading = read(whole);
    EXPECT_EQ(outcome::read, reading.outcome);
    EXPECT_EQ(described, test::describe(reading.growers));
    EXPECT_NE("", described);
}

TEST_F(HostileFile, OfNothingOrOfOneByteIsRefused) {
    expectRefused("");
    for (unsigned byte = 0; byte < 256; ++byte)
        expectRefused(std::string(1, static_cast<char>(byte)));
}

TEST_F(HostileFile, OfZerosOnlyIsRefused) {
    expectRefused(std::string(1000, '\0'));
    expectRefused(std::string(1U << 20U, '\0'));
}

// Size without end

namespace {

constexpr std::size_t million = 1'000'000;

} // namespace

TEST_F(HostileFile, WithAMillionNestedElementsIsReadAroundThem) {
    const std::string nested = repeated("<a>", million) + repeated("</a>", million);
    const auto with = [](const std::string& content) {
        return test::package(
            content +
            test::grower(1, content + test::farm(11, content + test::field(21, content))));
    };
    expectReadAs(with(""), with(nested));
}

TEST_F(HostileFile, WithAMillionNestedElementsInARecIsReadAroundThem) {
    const std::string nested = repeated("<a>", million) + repeated("</a>", million);
    const auto with = [](const std::string& content) {
        return test::package(test::grower(
            1, test::farm(11,
                          test::field(21, test::recommendations(test::rec(
                                              31, content + test::element("RecData", content)))))));
    };
    expectReadAs(with(""), with(nested));
}

TEST_F(HostileFile, WithAMillionElementsOfTheFormatNestedInThemselvesIsRead) {
    for (const std::string name : {"RecPackage", "Grower", "Farm", "Field", "Recommendations",
                                   "Rec", "RecData", "FarmName", "Planting"}) {
        SCOPED_TRACE(name);
        const std::string nested =
            repeated("<" + name + ">", million / 10) + repeated("</" + name + ">", million / 10);
        // Beneath a name, where nothing is looked for, and as the content of a grower, where Farm
        // alone is.
        expectReadAs(test::package(test::grower(1, "<GrowerName/>")),
                     test::package(test::grower(1, test::element("GrowerName", nested))));
        if (name == "Farm")
            expectOutcome(outcome::invalid, test::package(test::grower(1, nested)));
        else
            expectReadAs(test::package(test::grower(1)), test::package(test::grower(1, nested)));
    }
}

TEST_F(HostileFile, WithAMillionElementsThatNeverCloseIsRefused) {
    expectRefused(repeated("<a>", million));
    expectRefused(repeated("<RecPackage>", million));
    expectRefused(repeated("<a>x", million));
    expectRefused("<RecPackage>" + repeated("</a>", million));
    expectRefused(repeated("<", million));
    expectRefused(repeated("<!--", million));
    expectRefused(repeated("<![CDATA[", million));
    expectRefused(repeated("<?", million));
}

TEST_F(HostileFile, WithAMillionAttributesIsReadByThoseThatCount) {
    std::string others;
    for (std::size_t i = 0; i < million; ++i)
        others += " a" + std::to_string(i) + "=\"\"";
    const std::string id = " GrowerID=\"" + test::uuidText(1) + "\"";
    expectReadAs(test::package(test::grower(1)),
                 test::package("<Grower" + others + id + "></Grower>"));
    // Of several attributes with one name the first counts.
    expectReadAs(
        test::package(test::grower(1)),
        test::package("<Grower" + id + repeated(" GrowerID=\"\"", million) + "></Grower>"));
    expectOutcome(outcome::invalid, test::package("<Grower" + repeated(" GrowerID=\"\"", million) +
                                                  id + "></Grower>"));
}

TEST_F(HostileFile, WithAMillionForeignItemsInAListFailsAtTheFirst) {
    for (const std::string item : {"<a/>", "<Farm/>", "<!-- --><a/>", "x<a/>"}) {
        expectOutcome(outcome::invalid,
                      test::package(test::grower(1, test::farm(11) + repeated(item, million))));
    }
}

TEST_F(HostileFile, WithAMillionChildrenInARecIsReadAroundThem) {
    const auto with = [](const std::string& content) {
        return test::package(test::grower(
            1, test::farm(11, test::field(21, test::recommendations(test::rec(31, content))))));
    };
    const std::string name = "<RecName>last</RecName>";
    expectReadAs(with(name), with(repeated("<a/>", million) + name));
    expectReadAs(with(name), with(name + repeated("<RecName/>", million)));
}

TEST_F(HostileFile, OfAHundredMegabytesInOneTextIsRead) {
    const std::size_t size = test::builtWithSanitizers ? 10 * million : 100 * million;
    const std::string text(size, 'x');
    Reading reading = read(packageWithFarm(text));
    EXPECT_EQ(outcome::read, reading.outcome);
    EXPECT_TRUE(text == reading.farmName()); // not EXPECT_EQ, which would print them
}

TEST_F(HostileFile, OfAHundredMegabytesInOneTextThatNeverEndsIsRefused) {
    const std::size_t size = test::builtWithSanitizers ? 10 * million : 100 * million;
    expectRefused("<RecPackage><Grower GrowerID=\"" + std::string(size, '0'));
}

TEST_F(HostileFile, OfManyMegabytesOfEntitiesIsRead) {
    Reading reading = read(packageWithFarm(repeated("&amp;", 10 * million)));
    EXPECT_EQ(outcome::read, reading.outcome);
    EXPECT_TRUE(std::string(10 * million, '&') == reading.farmName());
}

// Numbers and identifiers

namespace {

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

// Characters

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
        Reading reading = read(packageWithFarm(inFile));
        ASSERT_EQ(outcome::read, reading.outcome);
        EXPECT_EQ(expected, reading.farmName());
    }
}

TEST_F(HostileFile, WithReferencesBeyondAllCharactersIsReadAsTheXmlLibraryReadsIt) {
    for (const std::string inFile :
         {"&#xD800;", "&#xDFFF;", "&#xD83D;&#xDE00;", "&#x110000;", "&#xFFFFFFFF;", "&#x100000041;",
          "&#99999999999999999999;", "&#4294967361;"}) {
        SCOPED_TRACE(inFile);
        const std::string content = packageWithFarm("A" + inFile + "B");
        Reading reading = read(content);
        ASSERT_EQ(outcome::read, reading.outcome);
        pugi::xml_document document;
        ASSERT_TRUE(document.load_buffer(content.data(), content.size()));
        const std::string expected =
            document.first_element_by_path("RecPackage/Grower/Farm/FarmName").child_value();
        EXPECT_EQ(expected, reading.farmName());
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
        return test::package(test::grower(
            1, test::farm(11, test::field(
                                  21, test::recommendations("<Rec RecID=\"" + test::uuidText(31) +
                                                            "\" MgmtZoneID=\"" + zone + "\">" +
                                                            test::element("RecGeometry", geometry) +
                                                            "</Rec>")))));
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
            Reading reading = read(packageWithFarm(text));
            EXPECT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ(text, reading.farmName());
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

// Encodings

namespace {

struct Encoding {
    std::string name;
    std::size_t unit; ///< bytes
    bool bigEndian;
    std::string mark;
};

const std::vector<Encoding> encodings = {
    {"UTF-8", 1, false, "\xEF\xBB\xBF"},    {"UTF-16LE", 2, false, "\xFF\xFE"},
    {"UTF-16BE", 2, true, "\xFE\xFF"},      {"UTF-32LE", 4, false, "\xFF\xFE\0\0"s},
    {"UTF-32BE", 4, true, "\0\0\xFE\xFF"s},
};

/// Writes units as they are, whether they are characters or not.
std::string encoded(const std::u32string& units, const Encoding& encoding) {
    std::string result;
    for (const char32_t unit : units) {
        for (std::size_t i = 0; i < encoding.unit; ++i) {
            const std::size_t byte = encoding.bigEndian ? encoding.unit - 1 - i : i;
            result += static_cast<char>(static_cast<unsigned char>(unit >> (8 * byte)));
        }
    }
    return result;
}

std::u32string units(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

} // namespace

TEST_F(HostileFile, InEveryEncodingWithAndWithoutAMarkIsReadAlike) {
    const std::string whole = completePackage();
    const std::string expected = test::describe(read(whole).growers);
    for (const Encoding& encoding : encodings) {
        SCOPED_TRACE(encoding.name);
        for (const std::string& mark : {encoding.mark, ""s}) {
            const Reading reading = read(mark + encoded(units(whole), encoding));
            EXPECT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ(expected, test::describe(reading.growers));
        }
    }
}

TEST_F(HostileFile, InEveryEncodingCutAnywhereIsRefused) {
    const std::string whole = test::package(test::grower(1));
    for (const Encoding& encoding : encodings) {
        for (const std::string& mark : {encoding.mark, ""s}) {
            const std::string bytes = mark + encoded(units(whole), encoding);
            for (std::size_t length = 0; length < bytes.size(); ++length) {
                SCOPED_TRACE(encoding.name + " cut after " + std::to_string(length));
                expectRefused(std::string_view(bytes).substr(0, length));
                if (HasFailure())
                    return;
            }
            EXPECT_EQ(outcome::read, read(bytes).outcome);
        }
    }
}

TEST_F(HostileFile, OfAMarkOnlyOrOfSeveralMarksIsRefused) {
    for (const Encoding& first : encodings) {
        expectRefused(first.mark);
        for (const Encoding& second : encodings)
            expectRefused(first.mark + second.mark);
    }
}

TEST_F(HostileFile, WithAMarkOfAnotherEncodingEndsInADocumentedWay) {
    for (const Encoding& encoding : encodings) {
        for (const Encoding& other : encodings) {
            SCOPED_TRACE(encoding.name + " marked as " + other.name);
            const std::string content = other.mark + encoded(units(completePackage()), encoding);
            const Reading reading = read(content);
            EXPECT_EQ(holdsPackage(content) ? outcome::read : outcome::refused, reading.outcome);
            EXPECT_EQ(&encoding == &other, reading.outcome == outcome::read);
        }
    }
}

TEST_F(HostileFile, WithLoneSurrogatesInUtf16IsReadWithoutThem) {
    const std::vector<std::u32string> texts = {
        {'A', 0xD800, 'B'},         // the first half of a pair only
        {'A', 0xDBFF, 'B'},         //
        {'A', 0xDC00, 'B'},         // the second half only
        {'A', 0xDFFF, 'B'},         //
        {'A', 0xDC00, 0xD800, 'B'}, // the wrong way round
        {'A', 0xD800, 0xD800, 'B'}, //
    };
    const std::string beginning = "<RecPackage><Grower GrowerID=\"" + test::uuidText(1) +
                                  "\"><Farm FarmID=\"" + test::uuidText(11) + "\"><FarmName>";
    for (const Encoding& encoding : encodings) {
        if (encoding.unit != 2)
            continue;
        SCOPED_TRACE(encoding.name);
        for (const std::u32string& text : texts) {
            Reading reading =
                read(encoding.mark + encoded(units(beginning) + text +
                                                 units("</FarmName></Farm></Grower></RecPackage>"),
                                             encoding));
            ASSERT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ("AB", reading.farmName());
        }
        // A pair, for comparison.
        Reading pair =
            read(encoding.mark + encoded(units(beginning) + std::u32string{0xD83D, 0xDE9C} +
                                             units("</FarmName></Farm></Grower></RecPackage>"),
                                         encoding));
        ASSERT_EQ(outcome::read, pair.outcome);
        EXPECT_EQ("\xF0\x9F\x9A\x9C", pair.farmName());
        // A half at the very end of the file, and half of that half.
        const std::string end = encoding.mark + encoded(units(beginning) + U"x", encoding);
        for (const std::string half : {"\xD8", "\xDC", "\xD8\xD8", "\xDC\xDC"})
            expectRefused(end + half);
        const std::string whole =
            encoding.mark + encoded(units(packageWithFarm("x")) + std::u32string{0xD800}, encoding);
        EXPECT_EQ(outcome::read, read(whole).outcome);
    }
}

TEST_F(HostileFile, WithUnitsBeyondUnicodeInUtf32EndsInADocumentedWay) {
    for (const Encoding& encoding : encodings) {
        if (encoding.unit != 4)
            continue;
        for (const char32_t unit : {0x110000U, 0xD800U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
            SCOPED_TRACE(encoding.name + " " + std::to_string(unit));
            std::u32string content = units(packageWithFarm("AB"));
            content.insert(content.find(U"AB") + 1, 1, unit);
            Reading reading = read(encoding.mark + encoded(content, encoding));
            ASSERT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ('A', reading.farmName().front());
            EXPECT_EQ('B', reading.farmName().back());
            EXPECT_GE(6U, reading.farmName().size());
        }
    }
}

// Document types

TEST_F(HostileFile, WithEntitiesThatMultiplyLeavesThemUnexpanded) {
    std::string type = "<!DOCTYPE RecPackage [\n<!ENTITY e0 \"ten times ten times ten\">\n";
    for (int i = 1; i < 50; ++i)
        type += "<!ENTITY e" + std::to_string(i) + " \"" +
                repeated("&e" + std::to_string(i - 1) + ";", 10) + "\">\n";
    type += "]>\n";
    Reading reading = read(type + packageWithFarm("&e49;"));
    EXPECT_EQ(outcome::read, reading.outcome);
    EXPECT_EQ("&e49;", reading.farmName());
}

TEST_F(HostileFile, WithEntitiesFromOutsideLeavesThemUnread) {
    const std::string secret = folder_.write("secret", "secret");
    for (const std::string& entity :
         {"<!ENTITY e SYSTEM \"file://" + secret + "\">", "<!ENTITY e SYSTEM \"" + secret + "\">",
          "<!ENTITY % p SYSTEM \"" + secret + "\"> %p; <!ENTITY e \"%p;\">",
          "<!ENTITY e SYSTEM \"/dev/zero\">"s}) {
        Reading reading = read("<!DOCTYPE RecPackage [" + entity + "]>" + packageWithFarm("&e;"));
        EXPECT_EQ(outcome::read, reading.outcome);
        EXPECT_EQ("&e;", reading.farmName());
    }
    Reading external =
        read("<!DOCTYPE RecPackage SYSTEM \"" + secret + "\">" + packageWithFarm("&e;"));
    EXPECT_EQ(outcome::read, external.outcome);
    EXPECT_EQ("&e;", external.farmName());
}

TEST_F(HostileFile, WithAnEntityThatNamesItselfLeavesItUnexpanded) {
    Reading reading = read("<!DOCTYPE RecPackage [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>" +
                           packageWithFarm("&a;&b;"));
    EXPECT_EQ(outcome::read, reading.outcome);
    EXPECT_EQ("&a;&b;", reading.farmName());
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

// What is no ordinary file

TEST_F(HostileFile, ThatDoesNotExistIsRefused) {
    const Reading reading = readFrom(path());
    EXPECT_EQ(outcome::refused, reading.outcome);
    EXPECT_EQ(0U, reading.growers.size());
}

TEST_F(HostileFile, ThatIsADirectoryIsRefused) {
    fs::create_directory(path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    folder_.write(packageUuid + ".xml/inside", completePackage());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

TEST_F(HostileFile, ThatMayNotBeReadIsRefused) {
    folder_.writePackage(completePackage(), packageUuid);
    const std::string readable = "11112233-4455-6677-8899-aabbccddeeff";
    fs::permissions(folder_.writePackage(completePackage(), readable), fs::perms::all);
    test::openToEverybody(folder_.path(""));
    fs::permissions(path(), fs::perms::none);
    const auto outcomeHere = [](const std::string& uuid) {
        QenXmlParser parser;
        return test::outcomeOf(parser, uuid + ".xml");
    };
    // Superusers may read everything.
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""),
                                     [&] { return outcomeHere(packageUuid) == outcome::refused; }));
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""),
                                     [&] { return outcomeHere(readable) == outcome::read; }));
}

TEST_F(HostileFile, ThatIsAPipeIsRefusedWithoutWaitingForMore) {
    ASSERT_EQ(0, mkfifo(path().c_str(), 0600));
    // Open for both, so that nobody waits for the other end.
    const int pipe = open(path().c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_LE(0, pipe);
    const std::string content = completePackage();
    ASSERT_GT(65536U, content.size()); // fits in without a reader
    ASSERT_EQ(static_cast<ssize_t>(content.size()), write(pipe, content.data(), content.size()));
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    close(pipe);
}

TEST_F(HostileFile, ThatIsADeviceIsRefused) {
    for (const char* device : {"/dev/null", "/dev/zero", "/dev/full", "/dev/urandom"}) {
        SCOPED_TRACE(device);
        ASSERT_TRUE(fs::exists(device));
        fs::remove(path());
        fs::create_symlink(device, path());
        EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    }
}

TEST_F(HostileFile, ThatIsALinkToItselfIsRefused) {
    fs::create_symlink(path(), path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

TEST_F(HostileFile, ThatHoldsMoreThanItsSizeSaysIsRefused) {
    fs::create_symlink("/proc/self/status", path());
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
}

namespace {

constexpr std::size_t largestBlock = 100 * million;
pugi::allocation_function allocateXml = nullptr;

void* allocateXmlUpToALimit(std::size_t size) {
    return size > largestBlock ? nullptr : allocateXml(size);
}

} // namespace

TEST_F(HostileFile, ThatIsLargerThanTheMemoryIsRefused) {
    folder_.writePackage(completePackage(), packageUuid);
    fs::resize_file(path(), 8'000'000'000); // takes no room on the disk
    allocateXml = pugi::get_memory_allocation_function();
    const pugi::deallocation_function release = pugi::get_memory_deallocation_function();
    pugi::set_memory_management_functions(allocateXmlUpToALimit, release);
    EXPECT_EQ(outcome::refused, readFrom(path()).outcome);
    pugi::set_memory_management_functions(allocateXml, release);
}

TEST_F(HostileFile, ThatShrinksAndGrowsWhileItIsReadIsReadInFullOrRefused) {
    const std::string whole =
        test::package(repeated(test::grower(1, test::farmWithNumbers("12.75")), 200)); // a megabyte
    const std::string described = test::describe(read(whole).growers);
    std::atomic<bool> done{false};
    std::thread writer([&] {
        const int file = open(path().c_str(), O_WRONLY | O_CLOEXEC);
        for (std::size_t turn = 0; !done; ++turn) {
            // Sometimes to nothing, sometimes in the middle.
            const std::size_t kept = turn % 3 == 0 ? 0 : whole.size() * (turn % 10) / 10;
            if (ftruncate(file, static_cast<off_t>(kept)) != 0)
                break;
            std::this_thread::yield();
            if (pwrite(file, whole.data() + kept, whole.size() - kept, static_cast<off_t>(kept)) <
                0)
                break;
            std::this_thread::yield();
        }
        close(file);
    });
    std::size_t readInFull = 0;
    const int readings = test::builtWithSanitizers ? 30 : 150;
    for (int i = 0; i < readings && !HasFailure(); ++i) {
        const Reading reading = readFrom(path());
        if (reading.outcome == outcome::read) {
            ++readInFull;
            EXPECT_TRUE(described == test::describe(reading.growers));
        } else {
            EXPECT_EQ(outcome::refused, reading.outcome);
            EXPECT_EQ(0U, reading.growers.size());
        }
    }
    done = true;
    writer.join();
    RecordProperty("readInFull", static_cast<int>(readInFull));
}

// Paths

TEST_F(HostileFile, WithOddBytesInItsPathIsRead) {
    const std::string content = completePackage();
    const std::string described = test::describe(read(content).growers);
    std::string odd = "odd ";
    for (unsigned byte = 1; byte < 256; ++byte) {
        if (byte != '/')
            odd += static_cast<char>(byte);
    }
    for (const std::string& folder : {odd.substr(0, 130), odd.substr(130), "%s%n"s}) {
        SCOPED_TRACE(folder);
        fs::create_directory(folder_.path(folder));
        for (const std::string extension : {".xml", "\xFF\n'\"", "....", "%n%n", "    "}) {
            const std::string name = folder + "/" + packageUuid + extension;
            folder_.write(name, content);
            const Reading reading = readFrom(folder_.path(name));
            EXPECT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ(described, test::describe(reading.growers));
        }
    }
}

TEST_F(HostileFile, WithANulInItsPathIsTheFileBeforeIt) {
    const std::string path = folder_.write("short", completePackage()) + '\0';
    EXPECT_EQ(outcome::read, readFrom(path + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::refused,
              readFrom(folder_.path("none") + '\0' + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::refused, readFrom('\0' + packageUuid + ".xml").outcome);
    EXPECT_EQ(outcome::invalid, readFrom(path + std::string(40, '{')).outcome);
}

TEST_F(HostileFile, WithAPathOfAnyLengthEndsInADocumentedWay) {
    for (std::size_t length = 0; length < 40; ++length)
        EXPECT_EQ(outcome::tooShort, readFrom(std::string(length, 'f')).outcome) << length;
    for (const std::size_t length : {std::size_t{40}, std::size_t{4096}, million})
        EXPECT_EQ(outcome::refused, readFrom(std::string(length, 'f')).outcome) << length;
}

TEST_F(HostileFile, WithAnyByteInTheUuidOfItsNameEndsInADocumentedWay) {
    const std::string content = completePackage();
    for (std::size_t at = 0; at < packageUuid.size(); ++at) {
        for (unsigned byte = 1; byte < 256; ++byte) {
            if (byte == '/')
                continue;
            std::string name = packageUuid;
            name[at] = static_cast<char>(byte);
            QenXmlParser parser;
            const std::string path = folder_.path(name + ".xml"); // of no file
            // A hyphen that must be there decides; so does a brace at the front, as it needs a
            // second one.
            const bool hyphen = packageUuid[at] == '-' && byte != '-' && at != 8;
            const bool brace = at == 0 && byte == '{';
            const bool invalid = hyphen || brace;
            EXPECT_EQ(invalid ? outcome::invalid : outcome::refused, test::outcomeOf(parser, path))
                << "byte " << byte << " at " << at;
        }
    }
}
