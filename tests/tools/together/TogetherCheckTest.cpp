#include "tools/together/TogetherCheck.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingText.h"

namespace {

std::string package(const std::string& total, const std::string& edited) {
    return test::packageWithRecs(test::rec(
        31,
        test::element("EditDate", edited) +
            test::element("RecStats", test::element("Total", total) + "<TotalUOM>kg</TotalUOM>")));
}

class Together : public testing::Test {
protected:
    /// Findings of all packages, of each as many as are wanted.
    std::vector<Finding> check(const std::vector<std::string>& texts, std::size_t limit = 100) {
        TogetherCheck together;
        unsigned number = 0;
        for (const std::string& text : texts)
            together.add(PackageInput(folder_.writePackage(text, test::uuidText(++number))));
        FindingCollection findings(limit);
        for (std::size_t i = 0; i < together.size(); ++i)
            together.check(i, findings);
        counts_ = findings.counts();
        return findings.kept();
    }

    std::string name(unsigned number) const {
        return folder_.path(test::uuidText(number) + ".xml");
    }

    FindingCounts counts_;

private:
    const test::TemporaryFolder folder_;
};

TEST_F(Together, ShowsVersionsSideBySideAndWhichIsShown) {
    const std::vector<Finding> found =
        check({package("1", "2026-01-01"), package("1", "2026-01-01"), package("2", "2026-01-09"),
               package("3", "2026-01-05")});
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].code, FindingCode::PackageRenamed);
    const Finding& rec = found[1];
    EXPECT_EQ(rec.code, FindingCode::RecDiffers);
    EXPECT_EQ(rec.found, "the rec differs in editDate and total from that in " + name(1) +
                             " (1 more elsewhere)");
    const Merges& merges = std::get<Merges>(rec.consequence);
    ASSERT_EQ(merges.versions.size(), 3U);
    EXPECT_EQ(merges.versions[0].packages, 2U);
    EXPECT_EQ(merges.versions[0].values, (std::vector<std::pair<std::string, std::string>>{
                                             {"editDate", "\"2026-01-01\""}, {"total", "1 kg"}}));
    EXPECT_EQ(merges.versions[1].values.at(1).second, "2 kg");
    EXPECT_EQ(merges.versions[2].values.at(1).second, "3 kg");
    EXPECT_EQ(merges.editedLast, 1U);
    EXPECT_EQ(consequenceText(rec), "in this order a terminal shows that of " + name(1) +
                                        ", in others that of " + name(3) + " or " + name(4) +
                                        "; that of " + name(3) + " was edited last");
    EXPECT_EQ(rec.records.back().id, test::uuid(31));
}

TEST_F(Together, DoesNotSayWhichWasEditedLastWhenADateIsNoneOfIso8601) {
    for (const std::string other : {"", "5.1.2026", "yesterday", "2026-01-01"}) {
        const std::vector<Finding> found = check({package("1", "2026-01-01"), package("2", other)});
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(std::get<Merges>(found[0].consequence).editedLast, std::nullopt) << other;
    }
}

TEST_F(Together, NamesWhatCannotBeReadAndGoesOn) {
    const std::vector<Finding> found = check({package("1", ""), "<RecPackage>", package("2", "")});
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].code, FindingCode::NotWellFormed);
    EXPECT_EQ(found[1].code, FindingCode::RecDiffers);
}

TEST_F(Together, CountsWhatNobodyWants) {
    EXPECT_EQ(check({package("1", ""), package("2", "")}, 0).size(), 0U);
    EXPECT_EQ(counts_.of(FindingCode::RecDiffers), 1U);
}

TEST_F(Together, SaysNothingOfOnePackageThatIsGivenOnce) {
    EXPECT_EQ(check({package("1", "no date")}).size(), 0U);
}

} // namespace
