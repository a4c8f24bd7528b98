/// @file
/// Runs an operation over and over, and lets another of its allocations fail each time.

#ifndef QENXML_TESTS_ROBUSTNESS_ALLOCATIONPOINTS_H
#define QENXML_TESTS_ROBUSTNESS_ALLOCATIONPOINTS_H

#include <cstddef>
#include <functional>
#include <string>

#include "tests/support/WatchedMemory.h"

namespace test {

/// One attempt at an operation.
class Attempt {
public:
    Attempt(std::size_t point, Failing failing) : point_(point), failing_(failing) {}

    /// Runs the operation, for which the allocation of this attempt fails. Everything else of a
    /// scenario, assertions above all, stays outside, where allocations succeed.
    ///
    /// Expects that a failing allocation of C++ comes out as std::bad_alloc and that nothing else
    /// comes out.
    void run(const std::function<void()>& operation);

    /// Which allocation fails, counted from 1.
    std::size_t point() const { return point_; }

    /// True when the operation ended with std::bad_alloc.
    bool outOfMemory() const { return outOfMemory_; }

    /// True when the operation went on after the XML library had been refused memory.
    bool xmlOutOfMemory() const { return counts_.failedXml > 0 && !outOfMemory_; }

    const AllocationCounts& counts() const { return counts_; }

private:
    std::size_t point_;
    Failing failing_;
    AllocationCounts counts_;
    bool outOfMemory_ = false;
};

/// Sets up what the operation works on, calls Attempt::run() once, and expects what must hold after
/// a success or a failure of it.
using Scenario = std::function<void(Attempt&)>;

/// Runs a scenario with the first, second, third... allocation of its operation failing until none
/// is left to fail, both with one failing allocation and with all that follow failing too. Expects
/// that nothing is left behind in memory whenever a scenario is over.
///
/// The number of points is recorded as a property of the test and printed when the program ends.
///
/// @param operation name of the operation, for the messages
/// @param minimum   how many allocations the operation must at least make, lest nothing is tried
/// @return the number of allocations of the operation
std::size_t tryEveryAllocation(const std::string& operation, std::size_t minimum,
                               const Scenario& scenario);

} // namespace test

#endif
