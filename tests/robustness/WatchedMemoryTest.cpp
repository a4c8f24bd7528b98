// The watch itself: that it sees the library's allocations, and that it can fail.

#include "tests/support/WatchedMemory.h"

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

void operator delete(void* block, std::size_t size) noexcept; // clang does not declare it by itself

namespace {

constexpr std::size_t never = static_cast<std::size_t>(-1);

const char* const shortPlanting = "<Planting><CropID/><CropName/><CompanyID/><CompanyName/>"
                                  "<VarietyID/><VarietyName/><UOMID/><UOM/></Planting>";

void releaseTwice() {
    void* volatile block = ::operator new(8); // volatile, or the compiler sees what goes on
    ::operator delete(block);
    ::operator delete(block);
}

void releaseAnArrayAsASingleObject() {
    void* volatile block = ::operator new[](8);
    ::operator delete(block);
}

void releaseXmlMemoryByDelete() {
    const test::WatchedXmlMemory watch;
    void* volatile block = pugi::get_memory_allocation_function()(8);
    ::operator delete(block);
}

void releaseAsAnotherSize() {
    void* volatile block = ::operator new(8);
    ::operator delete(block, 4);
}

} // namespace

// With empty texts the product data object itself is the only block. It is allocated and deleted by
// code of the library.
TEST(WatchedMemory, SeesTheAllocationsOfTheLibrary) {
    const test::Xml xml(shortPlanting);
    QenXmlParser parser;
    const test::LivingMemory before = test::livingMemory();
    test::AllocationCounts counts;
    PlantingRec* planting = nullptr;
    {
        const test::FailingAllocations counting(never, test::Failing::Once, counts);
        planting = parser.parsePlantingRecDataNode(test::uuid(1), xml.root());
    }
    EXPECT_EQ(1U, counts.all);
    EXPECT_EQ(before.cppBlocks + 1, test::livingMemory().cppBlocks);
    EXPECT_EQ(before.cppBytes + sizeof(PlantingRec), test::livingMemory().cppBytes);
    delete planting;
    EXPECT_EQ(before, test::livingMemory());
}

TEST(WatchedMemory, LetsAllocationsOfTheLibraryFail) {
    const test::Xml xml(shortPlanting);
    QenXmlParser parser;
    test::AllocationCounts counts;
    bool failed = false;
    try {
        const test::FailingAllocations failing(1, test::Failing::Once, counts);
        delete parser.parsePlantingRecDataNode(test::uuid(1), xml.root());
    } catch (const std::bad_alloc&) {
        failed = true;
    }
    EXPECT_TRUE(failed);
    EXPECT_EQ(1U, counts.failedCpp);
}

TEST(WatchedMemory, SeesTheAllocationsThatTheXmlLibraryMakesForTheLibrary) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(test::package(test::grower(1)));
    const test::WatchedXmlMemory watch;
    const test::LivingMemory before = test::livingMemory();
    {
        QenXmlParser parser;
        EXPECT_TRUE(parser.parseFile(path));
        EXPECT_LT(before.xmlBlocks, test::livingMemory().xmlBlocks);
    }
    EXPECT_EQ(before, test::livingMemory());
}

TEST(WatchedMemory, ALeakShows) {
    const test::LivingMemory before = test::livingMemory();
    const auto leaked = std::make_unique<int>(1);
    EXPECT_FALSE(before == test::livingMemory());
}

TEST(WatchedMemory, FailsOnceOrFromAPointOn) {
    for (const auto& [mode, expected] :
         {std::pair(test::Failing::Once, std::string("1011")),
          std::pair(test::Failing::FromThenOn, std::string("1000"))}) {
        std::string succeeded = "....";
        test::AllocationCounts counts;
        {
            const test::FailingAllocations failing(2, mode, counts);
            for (char& c : succeeded) {
                void* const block = ::operator new(1, std::nothrow);
                c = block != nullptr ? '1' : '0';
                ::operator delete(block);
            }
        }
        EXPECT_EQ(expected, succeeded);
    }
}

TEST(WatchedMemoryDeathTest, ReleasingTwiceEndsTheProgram) {
    EXPECT_DEATH(releaseTwice(), "released what is not allocated");
}

TEST(WatchedMemoryDeathTest, ReleasingByTheWrongFunctionEndsTheProgram) {
    EXPECT_DEATH(releaseAnArrayAsASingleObject(), "released by another function");
    EXPECT_DEATH(releaseXmlMemoryByDelete(), "released by another function");
}

TEST(WatchedMemoryDeathTest, ReleasingAsAnotherSizeEndsTheProgram) {
    EXPECT_DEATH(releaseAsAnotherSize(), "released with a wrong size");
}
