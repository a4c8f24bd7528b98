// Reading a package: loading the document alone, the library and the readers onto plain structs.
// Growing packages show whether the time per byte stays the same.

#include <cstddef>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "bench/Operations.h"
#include "bench/PackageGenerator.h"
#include "bench/Readers.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr std::size_t small = 43'000;

void read(benchmark::State& state, const std::string& operationName) {
    const auto bytes = static_cast<std::size_t>(state.range(0));
    const test::TemporaryFolder folder;
    const std::string file = folder.writePackage(bench::generatePackage(bytes));
    const bench::Operation operation = bench::operationNamed(operationName, {file});
    for (auto _ : state) {
        // A small package is read again and again in the same memory, a large one once in new
        // memory, as by a host.
        if (bytes > small)
            malloc_trim(0);
        state.SetIterationTime(bench::secondsOf(operation));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

[[maybe_unused]] const bool registered = [] {
    std::vector<std::string> operations = {"load", "parse", "parse+copy"};
    for (const bench::Reader& reader : bench::readers())
        operations.emplace_back(reader.name);
    for (const std::string& operation : operations)
        benchmark::RegisterBenchmark(operation.c_str(), read, operation)
            ->Arg(small)
            ->Arg(1'000'000)
            ->Arg(20'000'000)
            ->Arg(200'000'000)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
