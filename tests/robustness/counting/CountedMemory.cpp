#include "tests/robustness/counting/CountedMemory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

// The programs that count have one thread.
test::MemoryCounts counts;

/// In front of each block stands its size.
constexpr std::size_t headerSize = alignof(std::max_align_t);

void* allocate(std::size_t size) noexcept {
    void* const memory = std::malloc(headerSize + size);
    if (memory == nullptr)
        return nullptr;
    std::memcpy(memory, &size, sizeof size);
    ++counts.allocations;
    counts.allocated += size;
    counts.living += size;
    counts.peak = std::max(counts.peak, counts.living);
    return static_cast<char*>(memory) + headerSize;
}

void release(void* block) noexcept {
    if (block == nullptr)
        return;
    void* const memory = static_cast<char*>(block) - headerSize;
    std::size_t size = 0;
    std::memcpy(&size, memory, sizeof size);
    counts.living -= size;
    std::free(memory);
}

} // namespace

#include "tests/support/ReplacedOperators.h"

namespace test {

MemoryCounts memoryCounts() {
    return counts;
}

void restartPeak() {
    counts.peak = counts.living;
}

CountedXmlMemory::CountedXmlMemory()
    : earlierAllocate_(pugi::get_memory_allocation_function()),
      earlierRelease_(pugi::get_memory_deallocation_function()) {
    pugi::set_memory_management_functions(allocate, release);
}

CountedXmlMemory::~CountedXmlMemory() {
    pugi::set_memory_management_functions(earlierAllocate_, earlierRelease_);
}

} // namespace test
