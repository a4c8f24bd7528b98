// Reading a file takes memory in proportion to its size, whatever it holds: the limit below is the
// one that hosts may rely on. Bytes are counted as they are asked for, so that the figures are the
// same in every run; what the allocator adds for its own use is not among them.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/Outcome.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Texts.h"
#include "tests/support/WatchedMemory.h"

namespace {

using test::inUtf16;
using test::repeated;

// The limit: so many bytes per byte of the file, and so many for any file. The first is what the
// XML library takes for the smallest nodes; the second is room reserved for the children that a
// list seems to have, before any of them is read. Nodes are mostly pointers.
static_assert(sizeof(void*) == 8 || sizeof(void*) == 4, "the figures are those of such machines");
constexpr std::size_t bytesPerByte = sizeof(void*) == 8 ? 27 : 14;
constexpr std::size_t bytesForAnyFile = 1'000'000;

/// 32 digits, the shortest identifier.
std::string digits(std::size_t number) {
    char text[33];
    std::snprintf(text, sizeof text, "%032zx", number);
    return text;
}

/// The shortest elements and texts that take a node each: the first text of an element has none.
/// What is never closed cannot be read, but is loaded.
std::string worst(std::size_t count) {
    return "<a>" + repeated("<a/>x", count);
}

/// Many items one after the other, each made from its place, 0 being the first.
std::string listOf(std::size_t count, const std::function<std::string(std::size_t)>& item) {
    std::string result;
    for (std::size_t place = 0; place < count; ++place)
        result += item(place);
    return result;
}

std::string inGrower(const std::string& content) {
    return test::package(test::grower(1, content));
}

std::string inFarm(const std::string& content) {
    return inGrower(test::farm(2, content));
}

std::string inField(const std::string& recs) {
    return inFarm(test::field(3, test::recommendations(recs)));
}

// The shortest items that can be read. After the first of a list, an item may have any name.

std::string shortestGrower(std::size_t id) {
    return "<Grower GrowerID=\"" + digits(id) + "\"/>";
}

std::string shortestFarm(std::size_t id) {
    return "<Farm FarmID=\"" + digits(id) + "\"/>";
}

std::string shortestField(std::size_t id) {
    return "<Field FieldID=\"" + digits(id) + "\">" + test::element("FieldGeometryID", digits(id)) +
           test::element("FieldGeometry", digits(id)) + "</Field>";
}

std::string shortestRec(std::size_t id, const std::string& content = "") {
    return "<Rec RecID=\"" + digits(id) + "\">" + test::element("RecGeometry", digits(id)) +
           content + "</Rec>";
}

/// The second item has the identifier of the first: the whole list is put together anew.
std::size_t oneTwice(std::size_t place) {
    return std::max<std::size_t>(place, 1);
}

const std::string latin1 = "<?xml version=\"1.0\" encoding=\"latin1\"?>";
const std::string shortestProduct =
    "<RecData><CommercialFertilizer><ProductID/><ProductName/><UOMID/><UOM/>"
    "</CommercialFertilizer></RecData>";
/// Two children of a list that fail for lack of an identifier.
const std::string twoItems = "x<a/>";

using Count = std::size_t;

struct Shape {
    std::string name;
    std::function<std::string(Count)> content;
};

const std::vector<Shape> shapes = {
    {"nested <a>", [](Count n) { return repeated("<a>", n); }},
    {"<a/>x", worst},
    {"<a/>x in UTF-16", [](Count n) { return inUtf16(worst(n)); }},
    {"nested <a>x", [](Count n) { return repeated("<a>x", n); }},
    {"nested <a>x in UTF-16", [](Count n) { return inUtf16(repeated("<a>x", n)); }},
    {"<a/>", [](Count n) { return test::package(repeated("<a/>", n)); }},
    {"<a/>x", [](Count n) { return test::package(repeated("<a/>x", n)); }},
    {"<a/>x in UTF-16", [](Count n) { return inUtf16(test::package(repeated("<a/>x", n))); }},
    {"attributes", [](Count n) { return "<RecPackage" + repeated(" a=\"\"", n) + "/>"; }},
    {"one text", [](Count n) { return test::package(test::element("a", std::string(n, 'x'))); }},
    {"one name",
     [](Count n) { return inGrower(test::element("GrowerName", std::string(n, 'x'))); }},
    {"one name in Latin-1",
     [](Count n) {
         return latin1 + inGrower(test::element("GrowerName", std::string(n, '\xE4')));
     }},
    {"one name in UTF-16",
     [](Count n) { return inUtf16(inGrower(test::element("GrowerName", std::string(n, 'x')))); }},
    {"growers", [](Count n) { return test::package(listOf(n, shortestGrower)); }},
    {"farms", [](Count n) { return inGrower(listOf(n, shortestFarm)); }},
    {"farms, one twice",
     [](Count n) {
         return inGrower(listOf(n, [](Count k) { return shortestFarm(oneTwice(k)); }));
     }},
    {"fields", [](Count n) { return inFarm(listOf(n, shortestField)); }},
    {"fields, one twice",
     [](Count n) { return inFarm(listOf(n, [](Count k) { return shortestField(oneTwice(k)); })); }},
    {"recs", [](Count n) { return inField(listOf(n, [](Count k) { return shortestRec(k); })); }},
    {"recs, one twice",
     [](Count n) { return inField(listOf(n, [](Count k) { return shortestRec(oneTwice(k)); })); }},
    {"recs, all the same", [](Count n) { return inField(repeated(shortestRec(1), n)); }},
    {"recs with products",
     [](Count n) {
         return inField(listOf(n, [](Count k) { return shortestRec(k, shortestProduct); }));
     }},
    {"recs with products in UTF-16",
     [](Count n) {
         return inUtf16(
             inField(listOf(n, [](Count k) { return shortestRec(k, shortestProduct); })));
     }},
    {"recs with names beyond the small-string size",
     [](Count n) {
         return inField(listOf(n, [](Count k) {
             return shortestRec(k, test::element("RecName", "0123456789abcdef"));
         }));
     }},
    {"recs before items that fail",
     [](Count n) {
         return inField(listOf(n, [](Count k) { return shortestRec(k); }) +
                        repeated(twoItems, 2 * n));
     }},
    {"recs that fail", [](Count n) { return inField("<Rec/>" + repeated(twoItems, n)); }},
    {"fields that fail", [](Count n) { return inFarm("<Field/>" + repeated(twoItems, n)); }},
    {"farms that fail", [](Count n) { return inGrower("<Farm/>" + repeated(twoItems, n)); }},
    {"lists that fail on all levels",
     [](Count n) {
         const std::string items = repeated(twoItems, n);
         return inGrower(
             test::farm(2, test::field(3, test::recommendations("<Rec/>" + items)) + items) +
             items);
     }},
};

void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.name;
}

struct Peak {
    std::size_t file;
    std::size_t peak;

    double multiple() const { return static_cast<double>(peak) / static_cast<double>(file); }
};

/// Reads a file with a parser of its own and expects that nothing is left of it in memory.
Peak peakOf(const std::string& content) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(content);
    const test::WatchedXmlMemory xml;
    const std::size_t before = test::memoryCounts().living;
    test::restartPeak();
    std::size_t peak = 0;
    {
        QenXmlParser parser;
        test::outcomeOf(parser, path);
        peak = test::memoryCounts().peak;
    }
    EXPECT_EQ(before, test::memoryCounts().living);
    return {content.size(), peak - before};
}

class Memory : public testing::TestWithParam<Shape> {};

} // namespace

TEST_P(Memory, OfReadingStaysBelowTheLimitAtEverySize) {
    // Among them sizes at which a list has just grown, and at which the room reserved for children
    // is largest in relation to the file.
    for (const std::size_t count :
         {1U, 100U, 1'000U, 1'025U, 2'047U, 4'096U, 4'097U, 8'193U, 131'073U}) {
        const Peak peak = peakOf(GetParam().content(count));
        std::printf("%-45s x %7zu: file %9zu, peak %10zu, multiple %8.2f\n",
                    GetParam().name.c_str(), count, peak.file, peak.peak, peak.multiple());
        EXPECT_GE(bytesForAnyFile + bytesPerByte * peak.file, peak.peak) << count;
    }
}

INSTANTIATE_TEST_SUITE_P(Shape, Memory, testing::ValuesIn(shapes));

TEST(MemoryLimit, IsReachedByTheWorstShape) {
    const Peak peak = peakOf(worst(1'000'000));
    EXPECT_GE(bytesPerByte * peak.file, peak.peak);
    EXPECT_LT((bytesPerByte - 1) * peak.file, peak.peak);
}

TEST(MemoryLimit, HoldsForEachOfManyFilesThatOneParserReads) {
    const test::TemporaryFolder folder;
    const std::string content = worst(100'000);
    const std::string path = folder.writePackage(content);
    const test::WatchedXmlMemory xml;
    const std::size_t before = test::memoryCounts().living;
    test::restartPeak();
    QenXmlParser parser;
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(test::outcome::refused, test::outcomeOf(parser, path));
    EXPECT_GE(bytesPerByte * content.size(), test::memoryCounts().peak - before);
}

TEST(MemoryLimit, GrantsRoomForAFewItemsBeforeAnyIsReadHoweverManyThereSeemToBe) {
    // The items fail at the first one; only the room for them is reserved before.
    const auto reserved = [](std::size_t count) {
        const std::string items = repeated(twoItems, count);
        return peakOf(inField("<Rec/>" + items)).peak - peakOf(inField("<No/>" + items)).peak;
    };
    EXPECT_LT(0U, reserved(100'000));
    EXPECT_GE(bytesForAnyFile, reserved(100'000));
    EXPECT_EQ(reserved(100'000), reserved(1'000'000));
}
