#include "tools/check/FindingCollection.h"

#include <gtest/gtest.h>

namespace {

/// Offers some findings of a code as the check does.
void offer(FindingSink& sink, FindingCode code, int number) {
    for (int i = 0; i < number; ++i) {
        if (sink.wants(code))
            sink.add({code, std::to_string(i), Kept{}});
        else
            sink.addCode(code);
    }
}

TEST(FindingCollection, KeepsTheFirstOnesOfEachCodeAndCountsAll) {
    FindingCollection findings(10);
    offer(findings, FindingCode::EmptyName, 12);
    offer(findings, FindingCode::RecId, 11);
    ASSERT_EQ(findings.kept().size(), 20U);
    EXPECT_EQ(findings.kept()[9].found, "9");
    EXPECT_EQ(findings.kept()[10].code, FindingCode::RecId);
    EXPECT_EQ(findings.counts().of(FindingCode::EmptyName), 12U);
    EXPECT_EQ(findings.counts().of(Severity::Error), 11U);
    EXPECT_EQ(findings.counts().of(Severity::Warning), 0U);
    EXPECT_EQ(findings.counts().of(Severity::Note), 12U);
    EXPECT_EQ(findings.counts().sum(), 23U);
}

TEST(FindingCollection, CountsThoseBeforeForTheLimitOnly) {
    FindingCounts before;
    for (int i = 0; i < 8; ++i)
        before.add(FindingCode::EmptyName);
    FindingCollection findings(10, before);
    offer(findings, FindingCode::EmptyName, 5);
    offer(findings, FindingCode::RecId, 5);
    EXPECT_EQ(findings.kept().size(), 7U);
    EXPECT_EQ(findings.counts().of(FindingCode::EmptyName), 5U);
}

TEST(FindingCollection, KeepsEverythingWithoutALimit) {
    FindingCollection findings;
    offer(findings, FindingCode::EmptyName, 100);
    EXPECT_EQ(findings.kept().size(), 100U);
}

TEST(FindingCollection, CountsNothingWhenItIsAsked) {
    FindingCollection findings(1);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(findings.wants(FindingCode::EmptyName));
    EXPECT_EQ(findings.counts().sum(), 0U);
    offer(findings, FindingCode::EmptyName, 1);
    EXPECT_FALSE(findings.wants(FindingCode::EmptyName));
    EXPECT_TRUE(findings.wants(FindingCode::RecId));
}

TEST(FindingCounts, AreAddedUp) {
    FindingCounts sum;
    FindingCounts other;
    other.add(FindingCode::RecId);
    sum.add(FindingCode::RecId);
    sum += other;
    sum += other;
    EXPECT_EQ(sum.of(FindingCode::RecId), 3U);
}

} // namespace
