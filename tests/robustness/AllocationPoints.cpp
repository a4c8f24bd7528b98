#include "tests/robustness/AllocationPoints.h"

#include <cctype>
#include <cstdio>
#include <exception>
#include <limits>
#include <new>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace test {

namespace {

/// The points of all operations that were tried, printed when the program ends.
class Summary : public ::testing::Environment {
public:
    void add(const std::string& operation, std::size_t points) {
        rows_.emplace_back(operation, points);
    }

    void TearDown() override {
        if (rows_.empty())
            return;
        std::size_t all = 0;
        for (const auto& [operation, points] : rows_) {
            std::printf("allocation points %6zu  %s\n", points, operation.c_str());
            all += points;
        }
        std::printf("allocation points %6zu  in %zu operations, each tried failing once and "
                    "failing from then on\n",
                    all, rows_.size());
    }

private:
    std::vector<std::pair<std::string, std::size_t>> rows_;
};

Summary* const summary = [] {
    auto* const environment = new Summary;
    ::testing::AddGlobalTestEnvironment(environment); // takes ownership
    return environment;
}();

/// Runs one attempt, with nothing left behind. Returns its counts.
AllocationCounts attempt(std::size_t point, Failing failing, const Scenario& scenario) {
    const LivingMemory before = livingMemory();
    AllocationCounts counts;
    {
        Attempt one(point, failing);
        scenario(one);
        counts = one.counts();
    }
    EXPECT_EQ(before, livingMemory());
    return counts;
}

} // namespace

void Attempt::run(const std::function<void()>& operation) {
    std::string other;
    try {
        const FailingAllocations armed(point_, failing_, counts_);
        operation();
    } catch (const std::bad_alloc&) {
        outOfMemory_ = true;
    } catch (const std::exception& error) {
        other = error.what();
    }
    EXPECT_EQ("", other) << "came out of the operation";
    EXPECT_EQ(counts_.failedCpp > 0, outOfMemory_);
}

std::size_t tryEveryAllocation(const std::string& operation, std::size_t minimum,
                               const Scenario& scenario) {
    SCOPED_TRACE(operation);
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    const std::size_t points = attempt(none, Failing::Once, scenario).all;
    EXPECT_GE(points, minimum) << "hardly anything to try";
    for (const Failing failing : {Failing::Once, Failing::FromThenOn}) {
        std::size_t point = 1;
        for (bool failed = true; failed && !::testing::Test::HasFailure(); ++point) {
            SCOPED_TRACE("allocation " + std::to_string(point) +
                         (failing == Failing::Once ? " failed" : " and all later ones failed"));
            const AllocationCounts counts = attempt(point, failing, scenario);
            failed = counts.failedCpp + counts.failedXml > 0;
            EXPECT_EQ(point <= points, failed);
        }
        if (::testing::Test::HasFailure())
            return points;
        EXPECT_EQ(points + 2, point);
    }
    std::string key = operation;
    for (char& c : key) {
        if (std::isalnum(static_cast<unsigned char>(c)) == 0)
            c = '_';
    }
    ::testing::Test::RecordProperty(key + "_allocation_points", std::to_string(points));
    summary->add(operation, points);
    return points;
}

} // namespace test
