#include "tools/records/MergedGrowers.h"

#include <ctime>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"

namespace {

std::vector<QenGrower> growers(unsigned number) {
    std::vector<QenGrower> result;
    for (unsigned i = 0; i < number; ++i)
        result.emplace_back("", test::uuid(i));
    return result;
}

/// The time of the processor, which does not depend on what else it does, in which two packages of
/// so many growers are merged.
double timeOfMerging(unsigned number) {
    std::vector<QenGrower> first = growers(number);
    std::vector<QenGrower> second = growers(number);
    MergedGrowers merged;
    const std::clock_t start = std::clock();
    merged.add(std::move(first), {});
    merged.add(std::move(second), {});
    const auto time = static_cast<double>(std::clock() - start);
    EXPECT_EQ(merged.growers().size(), number);
    return time;
}

TEST(MergedGrowers, AreNotSearchedForEachOfTheOthers) {
    // 8 times as many take about 10 times as long, or 64 times when all are searched for each.
    double ratio = 0.0;
    for (int attempt = 0; attempt < 3 && (attempt == 0 || ratio > 30.0); ++attempt)
        ratio = timeOfMerging(8'000) / timeOfMerging(1'000);
    EXPECT_LT(ratio, 30.0);
}

} // namespace
