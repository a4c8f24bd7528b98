/// @file
/// Watches over the memory of this program, the library and the XML library included: knows every
/// living block, counts, lets chosen allocations fail, and ends the program when something is
/// released that is not allocated.
///
/// The operators new and delete are replaced for the whole program. The XML library has allocation
/// functions of its own, which a WatchedXmlMemory replaces. What is counted are the sizes that were
/// asked for, so that the counts are the same on every machine and in every run.

#ifndef QENXML_TESTS_SUPPORT_WATCHEDMEMORY_H
#define QENXML_TESTS_SUPPORT_WATCHEDMEMORY_H

#include <cstddef>
#include <iosfwd>
#include <new>

#include <pugixml.hpp>

namespace test {

/// How many blocks have not been released, and their bytes, per source of memory.
struct LivingMemory {
    std::size_t cppBlocks = 0;
    std::size_t cppBytes = 0;
    std::size_t xmlBlocks = 0;
    std::size_t xmlBytes = 0;

    bool operator==(const LivingMemory& other) const;
};

std::ostream& operator<<(std::ostream& out, const LivingMemory& memory);

LivingMemory livingMemory();

/// Of all sources together.
struct MemoryCounts {
    std::size_t allocations = 0; ///< how many there ever were
    std::size_t allocated = 0;   ///< bytes of all that there ever were
    std::size_t living = 0;      ///< bytes that have not been released
    std::size_t peak = 0;        ///< most bytes living at a time since restartPeak()
};

MemoryCounts memoryCounts();

/// Forgets the peak: it is what lives now.
void restartPeak();

/// While it exists, the XML library allocates under watch. No document may outlive it.
class WatchedXmlMemory {
public:
    WatchedXmlMemory();
    WatchedXmlMemory(const WatchedXmlMemory&) = delete;
    WatchedXmlMemory& operator=(const WatchedXmlMemory&) = delete;
    ~WatchedXmlMemory();

private:
    pugi::allocation_function earlierAllocate_;
    pugi::deallocation_function earlierRelease_;
};

enum class Failing { Once, FromThenOn };

/// Allocations since a FailingAllocations was made.
struct AllocationCounts {
    std::size_t all = 0;
    std::size_t failedCpp = 0;
    std::size_t failedXml = 0;
};

/// While it exists, the allocation with the number @p first, counted from 1 over both sources,
/// fails; with Failing::FromThenOn all that follow it fail too.
class FailingAllocations {
public:
    /// @param counts kept up to date as long as this object exists
    FailingAllocations(std::size_t first, Failing failing, AllocationCounts& counts);
    FailingAllocations(const FailingAllocations&) = delete;
    FailingAllocations& operator=(const FailingAllocations&) = delete;
    ~FailingAllocations();
};

/// Tells whether an operation runs out of memory when that many allocations succeed. Assertions
/// stay out of the operation: they allocate too.
template <class Operation>
bool runsOutOfMemory(std::size_t successes, Operation operation) {
    AllocationCounts counts;
    const FailingAllocations failing(successes + 1, Failing::FromThenOn, counts);
    try {
        operation();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

} // namespace test

#endif
