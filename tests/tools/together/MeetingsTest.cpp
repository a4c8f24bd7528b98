/// @file
/// What is said of packages that meet is what the library makes of them.
///
/// QENXML_MEETING_SETS sets how many sets of packages are tried, QENXML_MEETING_SEED makes others.

#include "tools/together/Meetings.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tests/tools/compare/RandomSets.h"

namespace {

using test::Growers;
using Content = std::pair<std::uint64_t, std::uint64_t>; ///< A place and what is there.

std::vector<Meeting> meetingsIn(const std::vector<Growers>& packages) {
    RecordVersions versions(RecordVersions::Keep::Contents);
    for (std::size_t package = 0; package < packages.size(); ++package)
        versions.add(test::versionsOf(packages[package], package));
    return meetingsOf(versions);
}

bool isOfVersions(const Meeting& meeting) {
    return meeting.code != FindingCode::InTwoPlaces && meeting.code != FindingCode::BoundaryAdded;
}

/// What the library makes of packages in their order and in all.
struct Truth {
    std::set<Content> shown;
    std::set<Content> everShown;
    std::set<std::uint64_t> inTwoPlaces;       ///< Records.
    std::set<std::uint64_t> withTwoBoundaries; ///< Places of fields.
};

Truth truthOf(const std::vector<Growers>& packages) {
    Truth truth;
    std::vector<std::size_t> order(packages.size());
    std::iota(order.begin(), order.end(), 0U);
    std::map<std::uint64_t, std::set<std::uint64_t>> parents;
    std::map<std::uint64_t, std::set<std::uint64_t>> boundaries;
    do {
        const bool isGiven = truth.everShown.empty();
        for (const RecordVersion& version :
             test::versionsOf(test::mergedByTheLibrary(packages, order), 0)) {
            truth.everShown.emplace(version.place, version.content);
            if (isGiven)
                truth.shown.emplace(version.place, version.content);
            parents[version.record].insert(version.parent);
            if (version.owner == Owner::Geometry)
                boundaries[version.outer].insert(version.record);
        }
    } while (std::next_permutation(order.begin(), order.end()));
    for (const auto& [record, places] : parents) {
        if (places.size() > 1)
            truth.inTwoPlaces.insert(record);
    }
    for (const auto& [field, records] : boundaries) {
        if (records.size() > 1)
            truth.withTwoBoundaries.insert(field);
    }
    return truth;
}

/// Places at which packages have more than one content.
std::set<std::uint64_t> contested(const std::vector<Growers>& packages) {
    std::map<std::uint64_t, std::set<std::uint64_t>> contents;
    std::set<std::uint64_t> places;
    for (const Growers& package : packages) {
        for (const RecordVersion& version : test::versionsOf(package, 0)) {
            contents[version.place].insert(version.content);
            if (contents[version.place].size() > 1)
                places.insert(version.place);
        }
    }
    return places;
}

void expectTruth(const std::vector<Growers>& packages) {
    const Truth truth = truthOf(packages);
    std::set<std::uint64_t> different;
    std::set<std::uint64_t> inTwoPlaces;
    std::set<std::uint64_t> withTwoBoundaries;
    for (const Meeting& meeting : meetingsIn(packages)) {
        const RecordVersion& first = meeting.versions.front();
        if (meeting.code == FindingCode::InTwoPlaces) {
            EXPECT_TRUE(inTwoPlaces.insert(first.record).second);
        }
        if (meeting.code == FindingCode::BoundaryAdded) {
            EXPECT_TRUE(withTwoBoundaries.insert(first.outer).second);
        }
        if (!isOfVersions(meeting))
            continue;
        EXPECT_TRUE(different.insert(first.place).second);
        EXPECT_EQ(truth.shown.count({first.place, first.content}), 1U);
        for (const RecordVersion& version : meeting.versions)
            EXPECT_EQ(version.canCount,
                      truth.everShown.count({version.place, version.content}) > 0);
    }
    EXPECT_EQ(different, contested(packages));
    EXPECT_EQ(inTwoPlaces, truth.inTwoPlaces);
    EXPECT_EQ(withTwoBoundaries, truth.withTwoBoundaries);
}

TEST(Meetings, AreWhatTheLibraryMakesOfPackagesInEveryOrder) {
    const unsigned sets = test::fromEnvironment("QENXML_MEETING_SETS", 150);
    const unsigned first = test::fromEnvironment("QENXML_MEETING_SEED", 1);
    for (unsigned seed = first; seed < first + sets && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectTruth(test::randomSet(seed));
    }
}

Growers growerOfFarm(const std::string& farm) {
    QenGrower grower("Ana", test::uuid(1));
    grower.addFarm(QenFarm(farm, test::uuid(2), test::uuid(1)));
    return {grower};
}

TEST(Meetings, AreOneOfARecordThatIsEverywhereWithTenVersions) {
    std::vector<Growers> packages;
    for (unsigned package = 0; package < 1'000; ++package)
        packages.push_back(growerOfFarm("farm " + std::to_string(package / 2)));
    const std::vector<Meeting> meetings = meetingsIn(packages);
    ASSERT_EQ(meetings.size(), 1U);
    EXPECT_EQ(meetings[0].code, FindingCode::NameDiffers);
    EXPECT_EQ(meetings[0].versions.size(), Meeting::mostVersions);
    EXPECT_EQ(meetings[0].more, 490U);
    EXPECT_EQ(meetings[0].versions[0].package, 999U); // the last name of a farm counts
    EXPECT_EQ(meetings[0].versions[0].count, 2U);
    EXPECT_EQ(meetings[0].versions[1].package, 1U); // as of farms the last
}

TEST(Meetings, AreNoneOfPackagesThatAreEqual) {
    EXPECT_EQ(meetingsIn({growerOfFarm("a"), growerOfFarm("a"), growerOfFarm("a")}).size(), 0U);
}

} // namespace
