/// @file
/// Watches over the memory of this test program, the library and the XML library included: knows
/// every living block, lets chosen allocations fail, and ends the program when something is
/// released that is not allocated.
///
/// The operators new and delete are replaced for the whole program. The XML library has allocation
/// functions of its own, which a WatchedXmlMemory replaces.

#ifndef QENXML_TESTS_ROBUSTNESS_WATCHEDMEMORY_H
#define QENXML_TESTS_ROBUSTNESS_WATCHEDMEMORY_H

#include <cstddef>
#include <iosfwd>

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

} // namespace test

#endif
