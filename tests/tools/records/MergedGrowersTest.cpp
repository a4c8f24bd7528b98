#include "tools/records/MergedGrowers.h"

#include <algorithm>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"
#include "tests/tools/records/RandomGrowers.h"

namespace {

using Packages = std::vector<std::vector<QenGrower>>;

std::vector<std::string> describeAll(std::vector<QenGrower>& growers) {
    std::vector<std::string> texts;
    for (QenGrower& grower : growers)
        texts.push_back(test::describe(grower));
    return texts;
}

std::vector<std::string> mergedOneByOne(const Packages& packages) {
    std::vector<QenGrower> merged;
    for (const std::vector<QenGrower>& package : packages) {
        for (const QenGrower& grower : package) {
            const auto present = std::find(merged.begin(), merged.end(), grower);
            if (present == merged.end())
                merged.push_back(grower);
            else
                present->merge(grower);
        }
    }
    return describeAll(merged);
}

std::vector<std::string> mergedTogether(const Packages& packages) {
    MergedGrowers merged;
    for (const std::vector<QenGrower>& package : packages)
        merged.add(package, {});
    return describeAll(merged.growers());
}

TEST(MergedGrowers, AreWhatMergingOneByOneMakesInAnyOrder) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        test::RandomGrowers random(seed);
        const Packages packages = {random.growers(), random.growers(), random.growers(),
                                   random.growers()};
        std::vector<std::size_t> order = {0, 1, 2, 3};
        do {
            Packages ordered;
            for (const std::size_t index : order)
                ordered.push_back(packages[index]);
            ASSERT_EQ(mergedTogether(ordered), mergedOneByOne(ordered)) << "seed " << seed;
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

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

/// As timeOfMerging(), of so many packages with recs of one field.
double timeOfMergingRecs(unsigned packages) {
    QenRec rec;
    QenField field("", test::uuid(3), test::uuid(1), test::uuid(2));
    QenFarm farm("", test::uuid(2), test::uuid(1));
    MergedGrowers merged;
    const std::clock_t start = std::clock();
    for (unsigned i = 0; i < packages; ++i) {
        QenGrower grower("", test::uuid(1));
        grower.farms().assign(1, farm);
        grower.farms().front().fields().assign(1, field);
        rec.setId(test::uuid(i));
        grower.farms().front().fields().front().addRec(rec);
        merged.add({grower}, {});
    }
    const auto time = static_cast<double>(std::clock() - start);
    EXPECT_EQ(merged.growers().at(0).farms().at(0).fields().at(0).recs().size(), packages);
    return time;
}

TEST(MergedGrowers, DoNotCopyTheFieldsThatAreThereForEachPackage) {
    // 8 times as many take about 12 times as long, or 64 times when those before are copied.
    double ratio = 0.0;
    for (int attempt = 0; attempt < 3 && (attempt == 0 || ratio > 30.0); ++attempt)
        ratio = timeOfMergingRecs(2'000) / timeOfMergingRecs(250);
    EXPECT_LT(ratio, 30.0);
}

} // namespace
