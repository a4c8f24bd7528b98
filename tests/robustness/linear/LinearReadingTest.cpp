// Reading takes work in proportion to the number of siblings, however many a list has and however
// their identifiers repeat. A reader that searched the list for every child would take hours for
// what takes a second.
//
// Work is counted, not timed: executed basic blocks of the library, allocations and their bytes.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/Instrumented.h"
#include "tests/robustness/linear/ExecutedBlocks.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/WatchedMemory.h"

namespace {

/// A list of a package and what is read of it.
struct List {
    std::string name;
    std::function<std::string(unsigned id, const std::string& name)> item;
    std::function<std::string(const std::string& items)> package;
    std::function<std::vector<std::string>(QenGrower&)> names;
};

template <class Record>
std::vector<std::string> namesOf(std::vector<Record>& records) {
    std::vector<std::string> names;
    names.reserve(records.size());
    for (Record& record : records)
        names.push_back(record.name());
    return names;
}

const std::string commercialFertilizer =
    "<RecData><CommercialFertilizer><ProductID>7</ProductID><ProductName>Calcium ammonium nitrate"
    "</ProductName><UOMID>1</UOMID><UOM>kg</UOM></CommercialFertilizer></RecData>";

const std::vector<List> lists = {
    {"recs",
     [](unsigned id, const std::string& name) {
         return test::rec(id, test::element("RecName", name) + commercialFertilizer);
     },
     [](const std::string& items) { return test::packageWithRecs(items); },
     [](QenGrower& grower) { return namesOf(grower.farms().at(0).fields().at(0).recs()); }},
    {"fields",
     [](unsigned id, const std::string& name) {
         return test::field(id, test::element("FieldName", name));
     },
     [](const std::string& items) { return test::package(test::grower(1, test::farm(11, items))); },
     [](QenGrower& grower) { return namesOf(grower.farms().at(0).fields()); }},
    {"farms",
     [](unsigned id, const std::string& name) {
         return test::farm(id, test::element("FarmName", name));
     },
     [](const std::string& items) { return test::package(test::grower(1, items)); },
     [](QenGrower& grower) { return namesOf(grower.farms()); }},
};

/// Which identifier the child at a place in the list has.
struct Identifiers {
    std::string name;
    std::function<unsigned(unsigned place, unsigned count)> at;
};

const std::vector<Identifiers> identifiers = {
    {"rising", [](unsigned place, unsigned) { return 1 + place; }},
    {"falling", [](unsigned place, unsigned count) { return count - place; }},
    {"scattered", [](unsigned place, unsigned) { return 2654435761U * place; }},
    {"all twice", [](unsigned place, unsigned count) { return 1 + place % (count / 2); }},
    {"in pairs", [](unsigned place, unsigned) { return 1 + place / 2; }},
    {"last one again",
     [](unsigned place, unsigned count) { return place + 1 < count ? 1 + place : count - 1; }},
    {"all the same", [](unsigned, unsigned) { return 7U; }},
};

void PrintTo(const List& list, std::ostream* out) {
    *out << list.name;
}

void PrintTo(const Identifiers& ids, std::ostream* out) {
    *out << ids.name;
}

constexpr unsigned fewChildren = 1'000;
constexpr unsigned manyChildren = test::builtWithSanitizers ? 20'000 : 200'000;

struct Work {
    double blocks;
    double allocations;
    double bytes;
};

/// Names longer than a string holds without an allocation, each with its place in the list.
std::string nameOf(unsigned place) {
    return "Child number " + std::to_string(1'000'000 + place);
}

/// Reads a list of children and expects one per identifier, in the place of the first and with the
/// name of the last.
/// @return the work per child
Work read(const List& list, const Identifiers& ids, unsigned count) {
    std::string items;
    std::map<unsigned, std::size_t> places;
    std::vector<std::string> expected;
    for (unsigned place = 0; place < count; ++place) {
        const unsigned id = ids.at(place, count);
        items += list.item(id, nameOf(place));
        const auto [known, isNew] = places.emplace(id, expected.size());
        if (isNew)
            expected.emplace_back();
        expected[known->second] = nameOf(place);
    }
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(list.package(items));

    const test::WatchedXmlMemory xml;
    QenXmlParser parser;
    const std::size_t blocks = test::executedBlocks();
    const test::MemoryCounts memory = test::memoryCounts();
    const bool read = parser.parseFile(path);
    const test::MemoryCounts memoryAfter = test::memoryCounts();
    const std::size_t blocksAfter = test::executedBlocks();

    EXPECT_TRUE(read);
    EXPECT_TRUE(expected == list.names(parser.getGrowers().at(0)));
    const auto perChild = [&](std::size_t before, std::size_t after) {
        return static_cast<double>(after - before) / count;
    };
    return {perChild(blocks, blocksAfter), perChild(memory.allocations, memoryAfter.allocations),
            perChild(memory.allocated, memoryAfter.allocated)};
}

class LinearReading : public testing::TestWithParam<std::tuple<List, Identifiers>> {};

std::string testName(const testing::TestParamInfo<LinearReading::ParamType>& test) {
    std::string name = std::get<0>(test.param).name + "_" + std::get<1>(test.param).name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

} // namespace

TEST_P(LinearReading, TakesAtMostTwiceTheWorkPerChildAmongManyMoreSiblings) {
    const auto& [list, ids] = GetParam();
    const std::clock_t start = std::clock();
    const Work few = read(list, ids, fewChildren);
    // A reader that searches is found out here, before it takes hours.
    ASSERT_GE(2.0, read(list, ids, 5 * fewChildren).blocks / few.blocks);
    const Work many = read(list, ids, manyChildren);
    std::printf("%-7s %-15s per child at %u and %u: %6.1f %6.1f blocks (x%.2f), "
                "%5.2f %5.2f allocations (x%.2f), %6.1f %6.1f bytes (x%.2f)\n",
                list.name.c_str(), ids.name.c_str(), fewChildren, manyChildren, few.blocks,
                many.blocks, many.blocks / few.blocks, few.allocations, many.allocations,
                many.allocations / few.allocations, few.bytes, many.bytes, many.bytes / few.bytes);
    EXPECT_LT(10.0, few.blocks) << "the library's blocks are not counted";
    EXPECT_GE(2.0, many.blocks / few.blocks);
    EXPECT_GE(2.0, many.allocations / few.allocations);
    EXPECT_GE(2.0, many.bytes / few.bytes);
    // A guard for work that is not counted. It takes a second or two of the processor, which do not
    // depend on what else the machine does, and more under an emulator.
    EXPECT_GT(60 * CLOCKS_PER_SEC, std::clock() - start);
}

INSTANTIATE_TEST_SUITE_P(Of, LinearReading,
                         testing::Combine(testing::ValuesIn(lists), testing::ValuesIn(identifiers)),
                         testName);
