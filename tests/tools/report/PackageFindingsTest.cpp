#include "tools/report/PackageFindings.h"

#include <string>

#include <gtest/gtest.h>

namespace {

Finding finding(FindingCode code, const std::string& found) {
    return {code, found, Kept{}};
}

TEST(PackageFindings, KeepTheFirstErrorAlsoWhenAllPackagesHaveEnoughOfThem) {
    FindingGroups groups;
    for (std::size_t i = 0; i < FindingGroups::mostOfACode; ++i)
        groups.add(0, finding(FindingCode::RecId, "before"));
    PackageFindings findings(groups, 1);
    findings.offer(finding(FindingCode::NotANumber, "warning"));
    EXPECT_EQ(findings.error(), std::nullopt);
    EXPECT_TRUE(findings.wants(FindingCode::RecId));
    findings.offer(finding(FindingCode::RecId, "first"));
    EXPECT_FALSE(findings.wants(FindingCode::RecId));
    findings.offer(finding(FindingCode::RecId, "second"));
    findings.offer(finding(FindingCode::FarmId, "third"));
    ASSERT_TRUE(findings.error());
    EXPECT_EQ(findings.error()->found, "first");
    EXPECT_EQ(findings.count(), 4U);
    EXPECT_EQ(groups.of(FindingCode::RecId).more, 2U);
    EXPECT_EQ(groups.of(FindingCode::RecId).packagesOfMore, 1U);
}

} // namespace
