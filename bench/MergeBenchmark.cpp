// Merging the growers of two packages that share half of their fields. The time of copying both is
// the yardstick.

#include <cstddef>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Operations.h"
#include "bench/PackageGenerator.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// Done anew for each iteration, because merging changes what it merges into.
void measure(benchmark::State& state, const std::string& operationName) {
    bench::PackageShape shape;
    shape.bytes = static_cast<std::size_t>(state.range(0));
    const std::string otherUuid = "11112233-4455-6677-8899-aabbccddeeff";
    const test::TemporaryFolder folder;
    std::vector<std::string> files = {folder.writePackage(bench::generatePackage(shape))};
    shape.firstField = shape.fieldsPerFarm / 2;
    files.push_back(folder.writePackage(bench::generatePackage(shape), otherUuid));
    for (auto _ : state)
        state.SetIterationTime(bench::secondsOf(bench::operationNamed(operationName, files)));
}

void copyBoth(benchmark::State& state) {
    measure(state, "copy");
}

void merge(benchmark::State& state) {
    measure(state, "merge");
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1'000'000)->Arg(20'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(copyBoth)->Apply(sizes);
BENCHMARK(merge)->Apply(sizes);

} // namespace
