#include "parser/internal/DuplicateIdentifiers.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/QenFarm.h"

namespace {

boost::uuids::uuid uuidOf(std::uint64_t first, std::uint64_t second) {
    boost::uuids::uuid id{};
    std::memcpy(id.begin(), &first, sizeof first);
    std::memcpy(id.begin() + sizeof first, &second, sizeof second);
    return id;
}

/// The number that gives 1 when it is multiplied by an odd @p number.
std::uint64_t inverseOf(std::uint64_t number) {
    std::uint64_t inverse = number;
    for (int i = 0; i < 6; ++i)
        inverse *= 2 - number * inverse;
    return inverse;
}

/// Identifiers that all have the same hash, as a hostile file could hold them.
boost::uuids::uuid collidingId(std::uint64_t number) {
    constexpr std::uint64_t factorOfFirst = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t factorOfSecond = 0xC2B2AE3D27D4EB4F;
    return uuidOf(0 - number * factorOfSecond * inverseOf(factorOfFirst), number);
}

std::vector<std::string> names(std::vector<QenFarm>& farms) {
    std::vector<std::string> result;
    result.reserve(farms.size());
    for (QenFarm& farm : farms)
        result.push_back(farm.name());
    return result;
}

} // namespace

TEST(DuplicateIdentifiers, HashDependsOnEveryByte) {
    const qenxml::IdentifierPlace none(boost::uuids::uuid{}, 0);
    for (std::size_t byte = 0; byte < 16; ++byte) {
        boost::uuids::uuid id{};
        id.begin()[byte] = 1;
        EXPECT_NE(none.hash(32), qenxml::IdentifierPlace(id, 0).hash(32)) << byte;
    }
}

TEST(DuplicateIdentifiers, AreFoundAmongIdentifiersThatAllShareASlot) {
    constexpr unsigned count = 3000;
    constexpr unsigned bits = 32; // as many as a size has on every machine
    const std::size_t hash = qenxml::IdentifierPlace(collidingId(0), 0).hash(bits);
    std::vector<QenFarm> farms;
    std::vector<std::string> expected;
    for (unsigned i = 0; i < count; ++i) {
        ASSERT_EQ(hash, qenxml::IdentifierPlace(collidingId(i), 0).hash(bits));
        farms.emplace_back(std::to_string(i), collidingId(i), boost::uuids::uuid{});
        expected.push_back(std::to_string(i));
    }
    for (const unsigned again : {7U, 2999U, 7U, 0U}) {
        const std::string name = std::to_string(again) + " again " + std::to_string(farms.size());
        farms.emplace_back(name, collidingId(again), boost::uuids::uuid{});
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

TEST(DuplicateIdentifiers, AreNotSuspectedAmongAFewOrdinaryOnes) {
    std::vector<QenFarm> farms;
    for (std::uint64_t i = 0; i < 5; ++i)
        farms.emplace_back("", uuidOf(0, i), boost::uuids::uuid{});
    EXPECT_TRUE(qenxml::suspectedDuplicates(farms).empty());
}

TEST(DuplicateIdentifiers, AreSuspectedOfBothChildrenThatShareOne) {
    std::vector<QenFarm> farms;
    for (const std::uint64_t number : {4U, 9U, 4U, 6U})
        farms.emplace_back("", uuidOf(number, number), boost::uuids::uuid{});
    std::vector<std::size_t> places;
    for (const qenxml::IdentifierPlace& suspect : qenxml::suspectedDuplicates(farms))
        places.push_back(suspect.place);
    EXPECT_EQ((std::vector<std::size_t>{0, 2}), places);
}
