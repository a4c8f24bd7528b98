// How the time of reading grows with the number of siblings in a list: per child it should be the
// same, however long the list is. Loading the document alone is the yardstick: a large one does not
// fit the caches, and its memory is new each time.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "bench/Operations.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// A valid identifier that differs from number to number, in no order.
std::string identifier(std::uint64_t number) {
    char text[37];
    std::snprintf(text, sizeof text, "%08x-0000-4000-8000-%012llx",
                  static_cast<unsigned>(number * 2654435761U),
                  static_cast<unsigned long long>(number));
    return text;
}

std::string rec(std::uint64_t number) {
    return "<Rec RecID='" + identifier(number) + "'><RecName>Zone</RecName><RecGeometry>" +
           identifier(number) + "</RecGeometry></Rec>";
}

std::string field(std::uint64_t number, const std::string& recs = "") {
    return "<Field FieldID='" + identifier(number) + "'><FieldName>Field</FieldName>" +
           "<FieldGeometryID>" + identifier(number) + "</FieldGeometryID><FieldGeometry>" +
           identifier(number) + "</FieldGeometry><Recommendations>" + recs +
           "</Recommendations></Field>";
}

std::string farm(std::uint64_t number, const std::string& fields = "") {
    return "<Farm FarmID='" + identifier(number) + "'><FarmName>Farm</FarmName>" + fields +
           "</Farm>";
}

std::string package(const std::string& farms) {
    return "<RecPackage><Grower GrowerID='" + identifier(1) + "'>" + farms +
           "</Grower></RecPackage>";
}

using Item = std::function<std::string(std::uint64_t)>;
using Around = std::function<std::string(const std::string&)>;

void measure(benchmark::State& state, const char* operationName, const Item& item,
             const Around& around) {
    const auto children = static_cast<std::uint64_t>(state.range(0));
    std::string items;
    for (std::uint64_t i = 1; i <= children; ++i)
        items += item(i);
    const test::TemporaryFolder folder;
    const std::string file = folder.writePackage(around(items));
    const bench::Operation operation = bench::operationNamed(operationName, {file});
    for (auto _ : state) {
        // Otherwise short lists would find memory that the reading before them had left, long ones
        // not: the allocator gives large amounts back. A host reads a package once, in new memory.
        malloc_trim(0);
        state.SetIterationTime(bench::secondsOf(operation));
    }
    state.counters["per_child"] = benchmark::Counter(static_cast<double>(children),
                                                     benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

void recs(benchmark::State& state, const char* operationName) {
    measure(state, operationName, rec,
            [](const std::string& items) { return package(farm(1, field(1, items))); });
}

void fields(benchmark::State& state, const char* operationName) {
    measure(
        state, operationName, [](std::uint64_t number) { return field(number); },
        [](const std::string& items) { return package(farm(1, items)); });
}

void farms(benchmark::State& state, const char* operationName) {
    measure(
        state, operationName, [](std::uint64_t number) { return farm(number); },
        [](const std::string& items) { return package(items); });
}

void lengths(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1000)->Arg(10'000)->Arg(200'000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(recs, load, "load")->Apply(lengths);
BENCHMARK_CAPTURE(recs, parse, "parse")->Apply(lengths);
BENCHMARK_CAPTURE(fields, load, "load")->Apply(lengths);
BENCHMARK_CAPTURE(fields, parse, "parse")->Apply(lengths);
BENCHMARK_CAPTURE(farms, load, "load")->Apply(lengths);
BENCHMARK_CAPTURE(farms, parse, "parse")->Apply(lengths);

} // namespace
