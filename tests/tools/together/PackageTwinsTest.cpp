#include "tools/together/PackageTwins.h"

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tests/tools/compare/RandomSets.h"

namespace {

std::vector<RecordVersion> content(const std::string& name) {
    return test::versionsOf(test::Growers{QenGrower(name, test::uuid(1))}, 0);
}

TEST(PackageTwins, AreFoundByUuidAndByContent) {
    PackageTwins twins;
    twins.add(test::uuid(1), content("a"));
    twins.add(test::uuid(2), content("b"));
    twins.add(test::uuid(1), content("a"));
    twins.add(test::uuid(1), content("c"));
    twins.add(test::uuid(3), content("b"));
    EXPECT_FALSE(twins.of(0));
    EXPECT_FALSE(twins.of(1));
    EXPECT_EQ(twins.of(2)->other, 0U);
    EXPECT_TRUE(twins.of(2)->sameUuid);
    EXPECT_TRUE(twins.of(2)->sameContent);
    EXPECT_EQ(twins.of(3)->other, 0U);
    EXPECT_FALSE(twins.of(3)->sameContent);
    EXPECT_EQ(twins.of(4)->other, 1U);
    EXPECT_FALSE(twins.of(4)->sameUuid);
    EXPECT_TRUE(twins.of(4)->sameContent);
}

TEST(PackageTwins, AreNotWithoutUuidsAndRecords) {
    PackageTwins twins;
    twins.add(std::nullopt, {});
    twins.add(std::nullopt, {});
    twins.add(test::uuid(1), {});
    EXPECT_FALSE(twins.of(1));
    EXPECT_FALSE(twins.of(2));
}

} // namespace
