/// @file
/// Watches over the memory of this test program, the library's included: counts the living blocks
/// and lets allocations fail.

#ifndef QENXML_TESTS_MODEL_ALLOCATIONS_H
#define QENXML_TESTS_MODEL_ALLOCATIONS_H

#include <new>

namespace test {

/// How many blocks from operator new have not been deleted.
long livingBlocks();

/// While it exists, operator new throws std::bad_alloc after a number of successful allocations.
class FailingAllocations {
public:
    explicit FailingAllocations(long successes);
    FailingAllocations(const FailingAllocations&) = delete;
    FailingAllocations& operator=(const FailingAllocations&) = delete;
    ~FailingAllocations();
};

/// Tells whether an operation runs out of memory when that many allocations succeed. Assertions
/// stay out of the operation: they allocate too.
template <class Operation>
bool runsOutOfMemory(long successes, Operation operation) {
    const FailingAllocations failing(successes);
    try {
        operation();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

} // namespace test

#endif
