#include "parser/internal/DuplicateIdentifiers.h"

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/QenFarm.h"
#include "tests/support/Uuids.h"

namespace {

std::vector<std::string> names(std::vector<QenFarm>& farms) {
    std::vector<std::string> result;
    result.reserve(farms.size());
    for (QenFarm& farm : farms)
        result.push_back(farm.name());
    return result;
}

} // namespace

TEST(DuplicateIdentifiers, AreFoundAmongManyOthers) {
    constexpr unsigned count = 3000;
    std::vector<QenFarm> farms;
    std::vector<std::string> expected;
    for (unsigned i = 0; i < count; ++i) {
        farms.emplace_back(std::to_string(i), test::uuid(i * 2654435761U), boost::uuids::uuid{});
        expected.push_back(std::to_string(i));
    }
    for (const unsigned again : {7U, 2999U, 7U, 0U}) {
        const std::string name = std::to_string(again) + " again " + std::to_string(farms.size());
        farms.emplace_back(name, test::uuid(again * 2654435761U), boost::uuids::uuid{});
        expected[again] = name;
    }
    qenxml::keepLastOfEachIdentifier(farms);
    EXPECT_EQ(expected, names(farms));
}

TEST(DuplicateIdentifiers, ThatAlternateAreFoundWhicheverOfTheirBytesDiffers) {
    for (std::size_t byte = 0; byte < 16; ++byte) {
        SCOPED_TRACE(byte);
        boost::uuids::uuid other{};
        other.begin()[byte] = 1;
        std::vector<QenFarm> farms;
        for (const char* name : {"first", "second"}) {
            farms.emplace_back(name, boost::uuids::uuid{}, boost::uuids::uuid{});
            farms.emplace_back(std::string("other ") + name, other, boost::uuids::uuid{});
        }
        qenxml::keepLastOfEachIdentifier(farms);
        EXPECT_EQ((std::vector<std::string>{"second", "other second"}), names(farms));
    }
}
