/// @file
/// Counts the memory of this test program, the library and the XML library included.
///
/// The operators new and delete are replaced for the whole program. The XML library has allocation
/// functions of its own, which a CountedXmlMemory replaces. What is counted are the sizes that were
/// asked for, so that the counts are the same on every machine and in every run.

#ifndef QENXML_TESTS_ROBUSTNESS_COUNTING_COUNTEDMEMORY_H
#define QENXML_TESTS_ROBUSTNESS_COUNTING_COUNTEDMEMORY_H

#include <cstddef>

#include <pugixml.hpp>

namespace test {

struct MemoryCounts {
    std::size_t allocations = 0; ///< how many there ever were
    std::size_t allocated = 0;   ///< bytes of all that there ever were
    std::size_t living = 0;      ///< bytes that have not been released
    std::size_t peak = 0;        ///< most bytes living at a time since restartPeak()
};

MemoryCounts memoryCounts();

/// Forgets the peak: it is what lives now.
void restartPeak();

/// While it exists, the memory of the XML library is counted too. No document may outlive it.
class CountedXmlMemory {
public:
    CountedXmlMemory();
    CountedXmlMemory(const CountedXmlMemory&) = delete;
    CountedXmlMemory& operator=(const CountedXmlMemory&) = delete;
    ~CountedXmlMemory();

private:
    pugi::allocation_function earlierAllocate_;
    pugi::deallocation_function earlierRelease_;
};

} // namespace test

#endif
