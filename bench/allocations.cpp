// Counts the memory of each operation per rec: how many allocations, how many bytes. The counts are
// those that were asked for, so that they are the same in every run.

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "bench/Operations.h"
#include "tests/support/WatchedMemory.h"

namespace {

void count(const char* name, const std::vector<std::string>& files) {
    std::size_t recs = 0;
    for (const std::string& file : files) {
        std::vector<QenGrower> growers = bench::growersOf(file);
        recs += bench::recsIn(growers);
    }
    const bench::Operation operation = bench::operationNamed(name, files);
    const test::MemoryCounts before = test::memoryCounts();
    test::restartPeak();
    const bench::Result result = operation();
    const test::MemoryCounts after = test::memoryCounts();
    const auto perRec = [recs](std::size_t from, std::size_t to) {
        return (static_cast<double>(to) - static_cast<double>(from)) / static_cast<double>(recs);
    };
    std::printf("\"%s\": {\"allocations\": %.4f, \"bytes\": %.1f, \"living\": %.1f, \"peak\": "
                "%.1f}",
                name, perRec(before.allocations, after.allocations),
                perRec(before.allocated, after.allocated), perRec(before.living, after.living),
                perRec(before.living, after.peak));
}

} // namespace

// Usage: allocations FILE SECOND-FILE
int main(int argc, char** argv) {
    try {
        const std::vector<std::string> both(argv + 1, argv + argc);
        const std::vector<std::string> first = {both.at(0)};
        const test::WatchedXmlMemory xml;
        std::printf("{");
        for (const char* operation : {"load", "parse", "copy"}) {
            count(operation, first);
            std::printf(", ");
        }
        count("merge", both);
        std::printf("}\n");
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "allocations: " << error.what() << '\n';
        return 1;
    }
}
