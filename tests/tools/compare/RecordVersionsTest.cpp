/// @file
/// What versions say of merging is what the library makes of the same packages.
///
/// QENXML_MEETING_SETS sets how many sets of packages are tried, QENXML_MEETING_SEED makes others.

#include "tools/compare/RecordVersions.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/records/RandomGrowers.h"

namespace {

using Growers = std::vector<QenGrower>;
/// The contents of the records, by their places.
using Shown = std::map<std::uint64_t, std::uint64_t>;

unsigned fromEnvironment(const char* name, unsigned usual) {
    const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return text == nullptr ? usual : static_cast<unsigned>(std::stoul(text));
}

std::vector<RecordVersion> versions(const Growers& growers, std::size_t package) {
    PackageReading reading;
    reading.growers = growers;
    return versionsOf(RecordList(std::move(reading)), package);
}

/// What a host shows that merges growers as the library does, in the order of the packages.
Shown shownByTheLibrary(const std::vector<Growers>& packages,
                        const std::vector<std::size_t>& order) {
    Growers merged;
    for (const std::size_t package : order) {
        for (const QenGrower& grower : packages[package]) {
            const auto present = std::find(merged.begin(), merged.end(), grower);
            if (present == merged.end())
                merged.push_back(grower);
            else
                present->merge(grower);
        }
    }
    Shown shown;
    for (const RecordVersion& version : versions(merged, 0))
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

/// Packages of few records with few contents, up to four; in some a grower comes twice.
std::vector<Growers> randomSet(unsigned seed) {
    const test::GrowerSizes sizes = {2, 2, 2, 1, 2, 3};
    test::RandomGrowers random(seed, sizes);
    std::vector<Growers> packages(2 + random.below(3));
    for (Growers& package : packages) {
        package = random.growers();
        if (random.below(4) == 0) {
            for (const QenGrower& again : random.growers())
                package.push_back(again);
        }
    }
    return packages;
}

/// Compares all orders of a set.
void expectWhatTheLibraryMakes(const std::vector<Growers>& packages) {
    std::vector<std::vector<RecordVersion>> all;
    RecordVersions different(RecordVersions::Keep::Contents);
    for (std::size_t package = 0; package < packages.size(); ++package) {
        all.push_back(versions(packages[package], package));
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
    const unsigned sets = fromEnvironment("QENXML_MEETING_SETS", 150);
    const unsigned first = fromEnvironment("QENXML_MEETING_SEED", 1);
    for (unsigned seed = first; seed < first + sets && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectWhatTheLibraryMakes(randomSet(seed));
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
        different.add(versions(growerOfFarm(package == 3 ? "other" : "farm"), package));
    std::multiset<std::uint32_t> counts;
    for (const RecordVersion& version : different.all())
        counts.insert(version.count);
    EXPECT_EQ(counts, (std::multiset<std::uint32_t>{1, 39'999, 40'000}));
}

TEST(RecordVersions, OutrankOthersInTheFirstPackageButFarmsInTheLast) {
    const std::vector<RecordVersion> first = versions(growerOfFarm("a"), 0);
    const std::vector<RecordVersion> second = versions(growerOfFarm("b"), 1);
    EXPECT_TRUE(outranks(first.at(0), second.at(0)));
    EXPECT_FALSE(outranks(second.at(0), first.at(0)));
    EXPECT_TRUE(outranks(second.at(1), first.at(1)));
    EXPECT_FALSE(outranks(first.at(1), second.at(1)));
}

} // namespace
