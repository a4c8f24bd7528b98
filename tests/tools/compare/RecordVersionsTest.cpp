/// @file
/// What versions say of merging is what the library makes of the same packages.
///
/// QENXML_MEETING_SETS sets how many sets of packages are tried, QENXML_MEETING_SEED makes others.

#include "tools/compare/RecordVersions.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/compare/RandomSets.h"

namespace {

using test::Growers;
/// The contents of the records, by their places.
using Shown = std::map<std::uint64_t, std::uint64_t>;

Shown shownByTheLibrary(const std::vector<Growers>& packages,
                        const std::vector<std::size_t>& order) {
    Shown shown;
    for (const RecordVersion& version :
         test::versionsOf(test::mergedByTheLibrary(packages, order), 0))
        EXPECT_TRUE(shown.emplace(version.place, version.content).second);
    return shown;
}

Shown shownByVersions(const std::vector<std::vector<RecordVersion>>& packages,
                      const std::vector<std::size_t>& order) {
    RecordVersions merged(RecordVersions::Keep::Merged);
    std::uint32_t number = 0;
    for (const std::size_t package : order) {
        std::vector<RecordVersion> moved = packages[package];
        for (RecordVersion& version : moved)
            version.package = number;
        merged.add(moved);
        ++number;
    }
    Shown shown;
    for (const RecordVersion& version : merged.all())
        shown.emplace(version.place, version.content);
    return shown;
}

/// Compares all orders of a set.
void expectWhatTheLibraryMakes(const std::vector<Growers>& packages) {
    std::vector<std::vector<RecordVersion>> all;
    RecordVersions different(RecordVersions::Keep::Contents);
    for (std::size_t package = 0; package < packages.size(); ++package) {
        all.push_back(test::versionsOf(packages[package], package));
        different.add(all.back());
    }
    std::set<std::pair<std::uint64_t, std::uint64_t>> everShown;
    std::vector<std::size_t> order(packages.size());
    std::iota(order.begin(), order.end(), 0U);
    do {
        const Shown shown = shownByTheLibrary(packages, order);
        ASSERT_EQ(shownByVersions(all, order), shown);
        everShown.insert(shown.begin(), shown.end());
    } while (std::next_permutation(order.begin(), order.end()));
    std::set<std::pair<std::uint64_t, std::uint64_t>> canCount;
    for (const RecordVersion& version : different.all()) {
        if (version.canCount)
            canCount.emplace(version.place, version.content);
    }
    EXPECT_EQ(canCount, everShown);
}

TEST(RecordVersions, SayWhatTheLibraryMakesOfPackagesInEveryOrder) {
    const unsigned sets = test::fromEnvironment("QENXML_MEETING_SETS", 150);
    const unsigned first = test::fromEnvironment("QENXML_MEETING_SEED", 1);
    for (unsigned seed = first; seed < first + sets && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectWhatTheLibraryMakes(test::randomSet(seed));
    }
}

Growers growerOfFarm(const std::string& farm) {
    QenGrower grower("Ana", {});
    grower.addFarm(QenFarm(farm, {}, {}));
    return {grower};
}

TEST(RecordVersions, CountHowManyAreEqual) {
    RecordVersions different(RecordVersions::Keep::Contents);
    for (std::size_t package = 0; package < 40'000; ++package)
        different.add(test::versionsOf(growerOfFarm(package == 3 ? "other" : "farm"), package));
    std::multiset<std::uint32_t> counts;
    for (const RecordVersion& version : different.all())
        counts.insert(version.count);
    EXPECT_EQ(counts, (std::multiset<std::uint32_t>{1, 39'999, 40'000}));
}

TEST(RecordVersions, OutrankOthersInTheFirstPackageButFarmsInTheLast) {
    const std::vector<RecordVersion> first = test::versionsOf(growerOfFarm("a"), 0);
    const std::vector<RecordVersion> second = test::versionsOf(growerOfFarm("b"), 1);
    EXPECT_TRUE(outranks(first.at(0), second.at(0)));
    EXPECT_FALSE(outranks(second.at(0), first.at(0)));
    EXPECT_TRUE(outranks(second.at(1), first.at(1)));
    EXPECT_FALSE(outranks(first.at(1), second.at(1)));
}

} // namespace
