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

void* allocateOrThrow(std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
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

// All forms but the aligned ones, so that none of them meets a counterpart from elsewhere (the
// sanitizers bring their own).

void* operator new(std::size_t size) {
    return allocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete[](void* block) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block);
}

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
