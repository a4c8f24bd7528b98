// How the time of reading grows with the number of siblings in a list: per child it should be the
// same, however long the list is. Loading the document alone is the yardstick: a large one does not
// fit the caches, and its memory is new each time.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "parser/QenXmlParser.h"

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

/// A package file for the time of a benchmark.
class PackageFile {
public:
    explicit PackageFile(const std::string& content)
        : path_(std::filesystem::temp_directory_path() / (identifier(0) + ".xml")) {
        std::ofstream file(path_, std::ios::binary);
        file << content;
        if (!file.flush())
            throw std::runtime_error("cannot write " + path_.string());
    }
    PackageFile(const PackageFile&) = delete;
    PackageFile& operator=(const PackageFile&) = delete;
    ~PackageFile() { std::filesystem::remove(path_); }

    std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

using Item = std::function<std::string(std::uint64_t)>;
using Around = std::function<std::string(const std::string&)>;

void readPackage(const std::string& path) {
    QenXmlParser parser;
    if (!parser.parseFile(path))
        std::abort();
    benchmark::DoNotOptimize(parser);
}

void loadDocument(const std::string& path) {
    pugi::xml_document document;
    if (!document.load_file(path.c_str()))
        std::abort();
    benchmark::DoNotOptimize(document);
}

template <void (*Measured)(const std::string& path)>
void measure(benchmark::State& state, const Item& item, const Around& around) {
    const auto children = static_cast<std::uint64_t>(state.range(0));
    std::string items;
    for (std::uint64_t i = 1; i <= children; ++i)
        items += item(i);
    const PackageFile file(around(items));
    for (auto _ : state) {
        // Otherwise short lists would find memory that the reading before them had left, long ones
        // not: the allocator gives large amounts back. A host reads a package once, in new memory.
        state.PauseTiming();
        malloc_trim(0);
        state.ResumeTiming();
        Measured(file.path());
    }
    state.counters["per_child"] = benchmark::Counter(static_cast<double>(children),
                                                     benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

template <void (*Measured)(const std::string& path)>
void recs(benchmark::State& state) {
    measure<Measured>(state, rec,
                      [](const std::string& items) { return package(farm(1, field(1, items))); });
}

template <void (*Measured)(const std::string& path)>
void fields(benchmark::State& state) {
    measure<Measured>(
        state, [](std::uint64_t number) { return field(number); },
        [](const std::string& items) { return package(farm(1, items)); });
}

template <void (*Measured)(const std::string& path)>
void farms(benchmark::State& state) {
    measure<Measured>(
        state, [](std::uint64_t number) { return farm(number); },
        [](const std::string& items) { return package(items); });
}

void lengths(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1000)->Arg(10'000)->Arg(200'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(recs<loadDocument>)->Apply(lengths);
BENCHMARK(recs<readPackage>)->Apply(lengths);
BENCHMARK(fields<loadDocument>)->Apply(lengths);
BENCHMARK(fields<readPackage>)->Apply(lengths);
BENCHMARK(farms<loadDocument>)->Apply(lengths);
BENCHMARK(farms<readPackage>)->Apply(lengths);

} // namespace
