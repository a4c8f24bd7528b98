// One measurement per process, so that each finds new memory. scripts/bench calls it and makes a
// table of the results, which go to stdout as JSON.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/LookUps.h"
#include "bench/Operations.h"
#include "bench/PackageFile.h"
#include "bench/PackageGenerator.h"
#include "bench/Readers.h"

/// Callgrind counts what happens in here (--toggle-collect), not the start of the process, the
/// preparation and the release.
extern "C" [[gnu::noinline]] void measured_operation(const bench::Operation& operation,
                                                     bench::Result& result) {
    result = operation();
}

namespace {

using Arguments = std::vector<std::string>;

/// The largest amount of memory that this process has had. Not that of getrusage(), which may be
/// inherited from the process that started this one.
long long peakMemory() {
    std::ifstream status("/proc/self/status");
    const std::string field = "VmHWM:";
    for (std::string line; std::getline(status, line);) {
        if (line.compare(0, field.size(), field) == 0)
            return 1024 * std::stoll(line.substr(field.size()));
    }
    throw std::runtime_error("no VmHWM in /proc/self/status");
}

void generate(const Arguments& arguments) {
    bench::PackageShape shape;
    shape.bytes = std::stoul(arguments.at(1));
    if (arguments.size() > 2)
        shape.firstField = std::stoul(arguments[2]);
    bench::writeFile(arguments[0], bench::generatePackage(shape));
}

void timeRepeatedly(const Arguments& arguments) {
    const Arguments files(arguments.begin() + 2, arguments.end());
    const bench::Operation operation = bench::operationNamed(arguments.at(0), files);
    std::vector<double> seconds(std::stoul(arguments.at(1)));
    std::generate(seconds.begin(), seconds.end(), [&] { return bench::secondsOf(operation); });
    std::sort(seconds.begin(), seconds.end());
    std::printf("{\"seconds\": %.9f, \"peak\": %lld}\n", seconds.at(seconds.size() / 2),
                peakMemory());
}

void once(const Arguments& arguments) {
    const Arguments files(arguments.begin() + 1, arguments.end());
    const bench::Operation operation = bench::operationNamed(arguments.at(0), files);
    bench::Result result;
    measured_operation(operation, result);
}

void lookUps(const Arguments& arguments) {
    std::printf("{");
    const char* separator = "";
    for (const bench::LookUp& lookUp : bench::lookUps()) {
        std::printf("%s\"%s\": %.9f", separator, lookUp.name,
                    bench::secondsOfLookUp(lookUp, arguments.at(0)));
        separator = ", ";
    }
    std::printf("}\n");
}

void listReaders(const Arguments& /*arguments*/) {
    for (const bench::Reader& reader : bench::readers())
        std::cout << reader.name << '\n';
}

/// Every reader has to read what the library reads.
void verify(const Arguments& arguments) {
    const std::string& path = arguments.at(0);
    const std::vector<bench::plain::Grower> expected =
        bench::plain::fromLibrary(bench::growersOf(path));
    if (expected.empty())
        throw std::runtime_error("nothing was read");
    for (const bench::Reader& reader : bench::readers()) {
        if (*reader.read(path) != expected)
            throw std::runtime_error(std::string(reader.name) + " reads other values from " + path +
                                     " than the library");
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::map<std::string, void (*)(const Arguments&)> commands = {
        {"generate", generate},                       // FILE BYTES [FIRST-FIELD]
        {"time", timeRepeatedly},                     // OPERATION REPETITIONS FILE...
        {"once", once},                               // OPERATION FILE...
        {"look-ups", lookUps},                        // FILE
        {"readers", listReaders}, {"verify", verify}, // FILE
    };
    try {
        commands.at(argv[std::min(argc - 1, 1)])(Arguments(argv + std::min(argc, 2), argv + argc));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "measure: " << error.what() << '\n';
        return 1;
    }
}
