#include "tests/tools/compare/RandomSets.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "tests/tools/records/RandomGrowers.h"

namespace test {

unsigned fromEnvironment(const char* name, unsigned usual) {
    const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return text == nullptr ? usual : static_cast<unsigned>(std::stoul(text));
}

std::vector<Growers> randomSet(unsigned seed) {
    const GrowerSizes sizes = {2, 2, 2, 2, 2, 3};
    RandomGrowers random(seed, sizes);
    std::vector<Growers> packages(2 + random.below(3));
    for (Growers& package : packages) {
        package = random.growers();
        if (random.below(4) == 0) {
            for (const QenGrower& again : random.growers())
                package.push_back(again);
        }
    }
    return packages;
}

Growers mergedByTheLibrary(const std::vector<Growers>& packages,
                           const std::vector<std::size_t>& order) {
    Growers merged;
    for (const std::size_t package : order) {
        for (const QenGrower& grower : packages[package]) {
            const auto present = std::find(merged.begin(), merged.end(), grower);
            if (present == merged.end())
                merged.push_back(grower);
            else
                present->merge(grower);
        }
    }
    return merged;
}

std::vector<RecordVersion> versionsOf(const Growers& growers, std::size_t package) {
    PackageReading reading;
    reading.growers = growers;
    return versionsOf(RecordList(std::move(reading)), package);
}

} // namespace test
