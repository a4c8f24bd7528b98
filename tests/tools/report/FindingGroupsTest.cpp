#include "tools/report/FindingGroups.h"

#include <string>

#include <gtest/gtest.h>

namespace {

Finding finding(FindingCode code, const std::string& found = "") {
    return {code, found, Kept{}};
}

TEST(FindingGroups, KeepTheFirstTenOfEachCodeAndCountTheOthersByPackage) {
    FindingGroups groups;
    for (std::size_t i = 0; i < 13; ++i)
        groups.add(0, finding(FindingCode::EmptyName, std::to_string(i)));
    groups.addCode(4, FindingCode::EmptyName);
    groups.addCode(4, FindingCode::EmptyName);
    groups.addCode(7, FindingCode::EmptyName);
    groups.add(7, finding(FindingCode::RecId, "other"));
    const FindingGroup& names = groups.of(FindingCode::EmptyName);
    ASSERT_EQ(names.kept.size(), 10U);
    EXPECT_EQ(names.kept.front().finding.found, "0");
    EXPECT_EQ(names.kept.back().finding.found, "9");
    EXPECT_EQ(names.more, 6U);
    EXPECT_EQ(names.packagesOfMore, 3U);
    EXPECT_EQ(names.sum(), 16U);
    EXPECT_EQ(groups.of(FindingCode::RecId).kept.at(0).package, 7U);
    EXPECT_FALSE(groups.wants(FindingCode::EmptyName));
    EXPECT_TRUE(groups.wants(FindingCode::RecId));
}

TEST(FindingGroups, CountBySeverity) {
    FindingGroups groups;
    groups.add(0, finding(FindingCode::RecId));
    groups.add(0, finding(FindingCode::GrowerId));
    groups.add(1, finding(FindingCode::NotANumber));
    EXPECT_EQ(groups.of(Severity::Error), 2U);
    EXPECT_EQ(groups.of(Severity::Warning), 1U);
    EXPECT_EQ(groups.of(Severity::Note), 0U);
}

} // namespace
