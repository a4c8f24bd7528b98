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

void release(void* block) noexcept {
    if (block != nullptr)
        --living;
    std::free(block);
}

} // namespace

#include "tests/support/ReplacedOperators.h"

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
