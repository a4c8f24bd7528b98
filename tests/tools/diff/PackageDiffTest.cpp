/// @file
/// A comparison names exactly what was changed.
///
/// QENXML_DIFF_PAIRS sets how many pairs are compared, QENXML_DIFF_SEED makes others.

#include "tools/diff/PackageDiff.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/diff/PlantedPackage.h"
#include "tools/compare/RecordNames.h"

namespace {

unsigned fromEnvironment(const char* name, unsigned usual) {
    const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return text == nullptr ? usual : static_cast<unsigned>(std::stoul(text));
}

/// Takes the differences as words.
class Words : public DiffWriter {
public:
    void add(const RecordDifference& difference) override {
        const std::string id = to_string(difference.record.id());
        const std::string record = std::string(kindWord(difference.record.owner)) + " " +
                                   std::to_string(std::stoul(id.substr(28), nullptr, 16));
        if (difference.kind != DifferenceKind::Changed)
            insert((difference.kind == DifferenceKind::Added ? "added " : "removed ") + record);
        for (const ValueChange& change : difference.changes)
            insert(record + " " + change.from.name);
        files.push_back(difference.from + ">" + difference.to);
    }
    void end(std::size_t /*unread*/) override {}

    std::set<std::string> words;
    std::vector<std::string> files;

private:
    void insert(const std::string& word) { EXPECT_TRUE(words.insert(word).second) << word; }
};

/// Some packages as files, and what they hold.
class Packages {
public:
    explicit Packages(const std::vector<std::string>& texts,
                      RecordVersions::Keep keep = RecordVersions::Keep::Contents)
        : versions_(keep) {
        for (const std::string& text : texts) {
            const std::size_t package = store_.add(PackageInput(
                folder_.writePackage(text, test::uuidText(static_cast<unsigned>(store_.size())))));
            versions_.add(versionsOf(store_.records(package), package));
        }
    }

    DiffSide side() { return {store_, versions_}; }
    const test::TemporaryFolder& folder() const { return folder_; }

private:
    const test::TemporaryFolder folder_ = test::TemporaryFolder::inMemory();
    PackageStore store_;
    RecordVersions versions_;
};

std::set<std::string> differences(Packages& from, Packages& to) {
    Words words;
    comparePackages(from.side(), to.side(), words);
    return words.words;
}

std::vector<std::string> textsOf(const test::PlantedPackages& packages) {
    std::vector<std::string> texts;
    for (const auto& package : packages)
        texts.push_back(test::textOf(package));
    return texts;
}

TEST(PackageDiff, NamesExactlyThePlantedChanges) {
    const unsigned pairs = fromEnvironment("QENXML_DIFF_PAIRS", 60);
    const unsigned first = fromEnvironment("QENXML_DIFF_SEED", 1);
    for (unsigned seed = first; seed < first + pairs && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        test::PlantedPackages packages = test::plantedPackages(random);
        const std::vector<std::string> before = textsOf(packages);
        const std::set<std::string> planted = test::plantChanges(packages, random);
        std::vector<std::string> after = textsOf(packages);
        std::reverse(after.begin(), after.end());
        for (const auto keep : {RecordVersions::Keep::Contents, RecordVersions::Keep::Merged}) {
            Packages from(before, keep);
            Packages same(before, keep);
            Packages to(after, keep);
            EXPECT_EQ(differences(from, to), planted);
            EXPECT_EQ(differences(from, same), std::set<std::string>());
        }
    }
}

std::string packageWithTotal(const std::string& total) {
    return test::packageWithRecs(
        test::rec(31, test::element("RecStats", test::element("Total", total))));
}

TEST(PackageDiff, ComparesVersionByVersionWhatIsThereSeveralTimes) {
    Packages from({packageWithTotal("1"), packageWithTotal("2"), packageWithTotal("2")});
    Packages to({packageWithTotal("2"), packageWithTotal("1")});
    EXPECT_EQ(differences(from, to), std::set<std::string>());
    Packages one({packageWithTotal("2")});
    EXPECT_EQ(differences(from, one), std::set<std::string>{"removed rec 31"});
    Packages other({packageWithTotal("2"), packageWithTotal("3")});
    EXPECT_EQ(differences(from, other), std::set<std::string>{"rec 31 total"});
}

TEST(PackageDiff, ComparesWhatMergingMakesWhenThatIsAskedFor) {
    const auto merged = RecordVersions::Keep::Merged;
    Packages from({packageWithTotal("1"), packageWithTotal("2")}, merged);
    Packages same({packageWithTotal("1"), packageWithTotal("3")}, merged);
    Packages swapped({packageWithTotal("2"), packageWithTotal("1")}, merged);
    EXPECT_EQ(differences(from, same), std::set<std::string>());
    EXPECT_EQ(differences(from, swapped), std::set<std::string>{"rec 31 total"});
}

TEST(PackageDiff, SaysOfARecordThatMovedWhereItWas) {
    Packages from({test::package(
        test::grower(1, test::farm(2, test::field(3, test::recommendations(test::rec(31))))))});
    Packages to({test::package(
        test::grower(1, test::farm(4, test::field(3, test::recommendations(test::rec(31))))))});
    EXPECT_EQ(differences(from, to),
              (std::set<std::string>{"removed farm 2", "field 3 farmId", "added farm 4"}));
}

TEST(PackageDiff, TellsAMissingNumberFromZero) {
    Packages from({packageWithTotal("")});
    Packages to({packageWithTotal("0")});
    EXPECT_EQ(differences(from, to), std::set<std::string>{"rec 31 total"});
}

TEST(PackageDiff, NamesTheFilesOfBothSides) {
    Packages from({packageWithTotal("1")});
    Packages to({packageWithTotal("2")});
    Words words;
    EXPECT_EQ(comparePackages(from.side(), to.side(), words), 1U);
    const std::string name = test::uuidText(0) + ".xml";
    EXPECT_EQ(words.files,
              std::vector<std::string>{from.folder().path(name) + ">" + to.folder().path(name)});
}

TEST(PackageDiff, RefusesAPackageThatIsNotWhatItWas) {
    Packages from({packageWithTotal("1"), packageWithTotal("1"), packageWithTotal("1"),
                   packageWithTotal("1"), packageWithTotal("1"), packageWithTotal("1"),
                   packageWithTotal("1"), packageWithTotal("1"), packageWithTotal("1")});
    Packages to({packageWithTotal("2")});
    from.folder().writePackage(packageWithTotal("3"), test::uuidText(0));
    Words words;
    EXPECT_THROW(comparePackages(from.side(), to.side(), words), std::runtime_error);
}

} // namespace
