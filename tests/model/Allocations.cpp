#include "tests/model/Allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr long unlimited = -1;

std::atomic<long> living{0};
std::atomic<long> successesLeft{unlimited};

void* allocate(std::size_t size) noexcept {
    if (successesLeft == 0)
        return nullptr;
    if (successesLeft != unlimited)
        --successesLeft;
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block != nullptr)
        ++living;
    return block;
}

void* allocateOrThrow(std::size_t size) {
    void* block = allocate(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void release(void* block) noexcept {
    if (block != nullptr)
        --living;
    std::free(block);
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

long livingBlocks() {
    return living;
}

FailingAllocations::FailingAllocations(long successes) {
    successesLeft = successes;
}

FailingAllocations::~FailingAllocations() {
    successesLeft = unlimited;
}

} // namespace test
