#include "tools/compare/RecordList.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/compare/RecordNames.h"

namespace {

TEST(RecordList, GivesASecondFarmNoFieldOfTheFirst) {
    const test::TemporaryFolder folder;
    const RecordList list(readPackage(folder.writePackage(
        test::package(test::grower(1, test::farm(2, test::field(3)) + test::farm(4))))));
    const std::vector<RecordView>& records = list.records();
    ASSERT_EQ(records.size(), 5U); // grower, farm, field, boundary, farm
    const std::vector<RecordName> names = namesOf(records.back());
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0].id, test::uuid(1));
    EXPECT_EQ(names[1].id, test::uuid(4));
    EXPECT_EQ(names[1].kind, std::string("farm"));
}

} // namespace
