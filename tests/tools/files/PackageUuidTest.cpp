#include "tools/files/PackageUuid.h"

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"

namespace {

constexpr const char* name = "00112233-4455-6677-8899-aabbccddeeff";

TEST(PackageUuid, IsTheUuidBeforeAnExtensionOfFourCharacters) {
    EXPECT_EQ(packageUuid(std::string(name) + ".xml"), test::uuid(name));
    EXPECT_EQ(packageUuid(std::string("/some/folder/") + name + ".dat"), test::uuid(name));
}

TEST(PackageUuid, IsMissingInAShortPath) {
    EXPECT_EQ(packageUuid(""), std::nullopt);
    EXPECT_EQ(packageUuid("a.xml"), std::nullopt);
    EXPECT_EQ(packageUuid(name), std::nullopt);
}

TEST(PackageUuid, IsMissingWhereNoUuidStands) {
    EXPECT_EQ(packageUuid("00112233-4455-6677-8899aabbccddeeff0.xml"), std::nullopt);
    EXPECT_EQ(packageUuid("00112233-44556677-8899-aabbccddeeff_.xml"), std::nullopt);
}

TEST(PackageUuid, FollowsTheLibraryInReadingIdentifiers) {
    EXPECT_EQ(uuidOf("{00112233445566778899AABBCCDDEEFF}"), test::uuid(name));
    EXPECT_EQ(uuidOf("g0112233-4455-6677-8899-aabbccddeeff"),
              test::uuid("f0112233-4455-6677-8899-aabbccddeeff"));
    // One character of the extension too many shifts all others, which the library puts up with.
    EXPECT_EQ(packageUuid(std::string(name) + ".xml~"),
              test::uuid("011223ff-4455-f667-ff88-99faabbccdde"));
    EXPECT_EQ(uuidOf(""), std::nullopt);
    EXPECT_EQ(uuidOf("0011"), std::nullopt);
}

TEST(PackageUuid, StandsInANameInItsProperFormOnly) {
    EXPECT_TRUE(isNamedByUuid(std::string(name) + ".xml"));
    EXPECT_TRUE(isNamedByUuid("folder/00112233-4455-6677-8899-AABBCCDDEEFF.XML"));
    EXPECT_FALSE(isNamedByUuid(std::string(name) + ".xml~"));
    EXPECT_FALSE(isNamedByUuid("g0112233-4455-6677-8899-aabbccddeeff.xml"));
    EXPECT_FALSE(isNamedByUuid("examples/packages/broken/path-too-short/a.xml"));
    EXPECT_FALSE(isNamedByUuid("a.xml"));
}

} // namespace
