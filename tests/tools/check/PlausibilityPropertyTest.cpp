/// @file
/// Slips in packages made at random are found, and nothing is found in packages without a slip.
///
/// QENXML_PLAUSIBILITY_PACKAGES sets how many packages there are with a slip; there is a tenth as
/// many without one. QENXML_PLAUSIBILITY_SEED makes others.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/tools/check/PlausiblePackage.h"
#include "tools/check/PackageCheck.h"

namespace {

using test::PlantedSlip;

std::size_t fromEnvironment(const char* name, std::size_t otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::stoul(text);
}

std::size_t packages() {
    return fromEnvironment("QENXML_PLAUSIBILITY_PACKAGES", 250);
}

std::mt19937 generator(std::size_t number) {
    const std::size_t seed = fromEnvironment("QENXML_PLAUSIBILITY_SEED", 1);
    return std::mt19937(static_cast<std::mt19937::result_type>(seed * 1'000'003 + number));
}

/// Takes the codes of findings, and the first finding as a text.
class Codes : public FindingSink {
public:
    bool wants(FindingCode /*code*/) const override { return first.empty(); }
    void add(const Finding& finding) override {
        first = std::string(kindOf(finding.code).code) + ": " + finding.found;
        addCode(finding.code);
    }
    void addCode(FindingCode code) override { all.insert(code); }

    std::set<FindingCode> all;
    std::string first;
};

Codes codesIn(const test::PlausiblePackage& package) {
    Codes codes;
    checkPackage("00112233-4455-6677-8899-aabbccddeeff.xml", {package.text(), ""}, codes);
    return codes;
}

struct Kind {
    const char* name;
    PlantedSlip slip;
    std::set<FindingCode> codes; ///< One of which is found.
    double expected;             ///< What part of them at least.
    std::size_t planted = 0;
    std::size_t found = 0;
    std::size_t near = 0; ///< Those that move a field by less than the width of a farm.
    std::size_t foundNear = 0;
};

/// A field that a slip moves by less than the width of a farm is where a field may be.
constexpr double widthOfFarms = 300;

bool isOneOf(const std::set<FindingCode>& some, const std::set<FindingCode>& codes) {
    return std::any_of(some.begin(), some.end(),
                       [&](FindingCode code) { return codes.count(code) > 0; });
}

TEST(Plausibility, IsDoubtedInPackagesWithASlip) {
    std::array kinds = {
        Kind{"total",
             PlantedSlip::Total,
             {FindingCode::TotalMismatch, FindingCode::UnitsDisagree},
             0.95},
        Kind{"rate", PlantedSlip::Rate, {FindingCode::TotalMismatch, FindingCode::RateOrder}, 0.95},
        Kind{"sign", PlantedSlip::Sign, {FindingCode::CentroidFar}, 0.95},
        Kind{"swap",
             PlantedSlip::Swap,
             {FindingCode::CentroidFar, FindingCode::CentroidRange},
             0.95},
        Kind{"unit",
             PlantedSlip::Unit,
             {FindingCode::UnitsDisagree, FindingCode::TotalMismatch},
             0.85}};
    for (std::size_t i = 0; i < packages(); ++i) {
        std::mt19937 random = generator(i);
        test::PlausiblePackage package = test::plausiblePackage(random);
        Kind& kind = kinds.at(i % kinds.size());
        const double moved = test::plant(kind.slip, package, random);
        const Codes codes = codesIn(package);
        const bool movesField = kind.slip == PlantedSlip::Sign || kind.slip == PlantedSlip::Swap;
        const bool isFound = isOneOf(kind.codes, codes.all);
        if (movesField && moved < widthOfFarms) {
            ++kind.near;
            kind.foundNear += isFound ? 1 : 0;
        } else {
            ++kind.planted;
            kind.found += isFound ? 1 : 0;
        }
    }
    std::size_t far = 0;
    std::size_t foundFar = 0;
    std::size_t planted = 0;
    std::size_t found = 0;
    for (const Kind& kind : kinds) {
        far += kind.planted;
        foundFar += kind.found;
        planted += kind.planted + kind.near;
        found += kind.found + kind.foundNear;
        std::cout << kind.name << ": " << kind.found << " of " << kind.planted << ", and "
                  << kind.foundNear << " of " << kind.near << " that move a field a little\n";
        EXPECT_GE(static_cast<double>(kind.found),
                  kind.expected * static_cast<double>(kind.planted))
            << kind.name;
    }
    std::cout << "all: " << found << " of " << planted << "\n";
    EXPECT_GE(static_cast<double>(foundFar), 0.95 * static_cast<double>(far));
    const double expected = packages() < 4000 ? 0.93 : 0.945;
    EXPECT_GE(static_cast<double>(found), expected * static_cast<double>(planted));
}

TEST(Plausibility, IsNotDoubtedInPackagesWithoutASlip) {
    for (std::size_t i = 0; i < packages() / 10; ++i) {
        std::mt19937 random = generator(1'000'000 + i);
        const test::PlausiblePackage package = test::plausiblePackage(random);
        const Codes codes = codesIn(package);
        ASSERT_TRUE(codes.all.empty()) << "package " << i << ": " << codes.first;
    }
}

} // namespace
