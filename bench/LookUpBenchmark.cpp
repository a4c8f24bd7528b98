// Look-ups in fields with few and with many recs: finding a rec is a search from the front.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/LookUps.h"
#include "bench/Operations.h"
#include "bench/PackageGenerator.h"
#include "tests/support/TemporaryFolder.h"

namespace {

void lookUp(benchmark::State& state, const bench::LookUp& lookUp) {
    bench::PackageShape shape;
    shape.recsPerField = static_cast<std::size_t>(state.range(0));
    shape.bytes = 2500 * shape.recsPerField; // More than a field takes: it has all its recs.
    const test::TemporaryFolder folder;
    const std::string file = folder.writePackage(bench::generatePackage(shape));
    std::vector<QenGrower> growers = bench::growersOf(file);
    QenField& field = growers.at(0).farms().at(0).fields().at(0);
    std::vector<QenRec>& recs = field.recs();
    if (recs.size() != shape.recsPerField)
        throw std::logic_error("the field lacks recs");
    std::size_t next = 0;
    for (auto _ : state) {
        lookUp.run(field, recs[next]);
        next = next + 1 == recs.size() ? 0 : next + 1;
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const bench::LookUp& each : bench::lookUps())
        benchmark::RegisterBenchmark(each.name, lookUp, each)->Arg(6)->Arg(100)->Arg(1000);
    return true;
}();

} // namespace
