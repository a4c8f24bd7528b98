// What remains when memory runs out while a package is read.

#include "parser/QenXmlParser.h"

#include <cstddef>
#include <cstdlib>
#include <new>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

namespace {

/// How many allocations succeed before one fails; none fails while it is negative.
long allocationsLeft = -1;

/// Lets one allocation fail during its lifetime.
class FailingAllocation {
public:
    explicit FailingAllocation(long after) { allocationsLeft = after; }
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation() { allocationsLeft = -1; }
};

} // namespace

// The shared library uses those of the program.
void* operator new(std::size_t size) {
    if (allocationsLeft >= 0 && allocationsLeft-- == 0)
        throw std::bad_alloc();
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

TEST(ExhaustedMemory, KeepsTheGrowersThatWereReadBefore) {
    const auto growerWithProduct = [](unsigned number) {
        const std::string product = "<CommercialFertilizer><ProductID>5</ProductID>"
                                    "<ProductName>A name that needs memory</ProductName>"
                                    "<UOMID>6</UOMID><UOM>kg</UOM></CommercialFertilizer>";
        const std::string rec = test::rec(31, test::element("RecData", product));
        // The same rec and farm twice, so that some are replaced.
        return test::grower(number,
                            "<GrowerName>A name that is too long to be held in place</GrowerName>" +
                                test::farm(11, test::field(21, test::recommendations(rec + rec))) +
                                test::farm(11, test::field(21, test::recommendations(rec + rec))));
    };
    const std::string name = "00112233-4455-6677-8899-aabbccddeeff";
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(
        test::package(growerWithProduct(1) + growerWithProduct(2) + growerWithProduct(3)), name);
    const test::Xml recElement(test::rec(31));

    QenXmlParser complete;
    ASSERT_TRUE(complete.parseFile(path));
    const std::vector<QenGrower> growers = complete.getGrowers();

    std::set<std::size_t> remaining;
    bool failed = true;
    for (long after = 0; failed; ++after) {
        SCOPED_TRACE(after);
        ASSERT_LT(after, 100000);
        QenXmlParser parser;
        std::string argument = path;
        try {
            const FailingAllocation failing(after);
            EXPECT_TRUE(parser.parseFile(std::move(argument)));
            failed = allocationsLeft < 0; // It fails only once, and that is not caught inside.
        } catch (const std::bad_alloc&) {
        }
        const std::vector<QenGrower> kept = parser.getGrowers();
        ASSERT_LE(kept.size(), growers.size());
        const auto count = static_cast<std::ptrdiff_t>(kept.size());
        EXPECT_EQ(test::describe({growers.begin(), growers.begin() + count}), test::describe(kept));
        EXPECT_EQ(
            test::uuid(name),
            parser.parseRecNode(test::uuid(21), test::uuid(71), recElement.root()).xmlFileName());
        remaining.insert(kept.size());
        EXPECT_TRUE(failed || kept.size() == growers.size());
    }
    // Memory ran out in each of the growers.
    EXPECT_EQ((std::set<std::size_t>{0, 1, 2, 3}), remaining);
}
