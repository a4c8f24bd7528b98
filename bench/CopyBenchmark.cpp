// Deep copies of growers, as getGrowers() makes them.

#include <cstddef>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/Operations.h"
#include "bench/PackageGenerator.h"
#include "tests/support/TemporaryFolder.h"

namespace {

void copy(benchmark::State& state) {
    const test::TemporaryFolder folder;
    const std::string file =
        folder.writePackage(bench::generatePackage(static_cast<std::size_t>(state.range(0))));
    const bench::Operation operation = bench::operationNamed("copy", {file});
    for (auto _ : state)
        state.SetIterationTime(bench::secondsOf(operation));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

BENCHMARK(copy)
    ->Arg(43'000)
    ->Arg(1'000'000)
    ->Arg(20'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
