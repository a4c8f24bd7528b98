// One measurement per process, so that each finds new memory. scripts/bench calls it and makes a
// table of the results, which go to stdout as JSON.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/LookUps.h"
#include "bench/Operations.h"
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

/// A field of /proc/self/status in bytes: VmRSS is the memory that this process has now, VmHWM the
/// most that it has had. The latter is not that of getrusage(), which may be inherited from the
/// process that started this one. Read without streams, which would take memory of their own.
long long memory(const std::string& field) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> status(
        std::fopen("/proc/self/status", "r"), std::fclose);
    std::array<char, 256> line{};
    while (status != nullptr && std::fgets(line.data(), line.size(), status.get()) != nullptr) {
        if (field.compare(0, field.size(), line.data(), field.size()) == 0)
            return 1024 * std::strtoll(line.data() + field.size() + 1, nullptr, 10);
    }
    throw std::runtime_error("no " + field + " in /proc/self/status");
}

void generate(const Arguments& arguments) {
    bench::PackageShape shape;
    shape.bytes = std::stoul(arguments.at(1));
    if (arguments.size() > 2)
        shape.firstField = std::stoul(arguments[2]);
    if (arguments.size() > 3)
        shape.seed = std::stoul(arguments[3]);
    std::ofstream file(arguments[0], std::ios::binary);
    file << bench::generatePackage(shape);
    if (!file.flush())
        throw std::runtime_error("cannot write " + arguments[0]);
}

void timeRepeatedly(const Arguments& arguments) {
    const Arguments files(arguments.begin() + 2, arguments.end());
    const bench::Operation operation = bench::operationNamed(arguments.at(0), files);
    const long long before = memory("VmRSS");
    std::vector<double> seconds(std::stoul(arguments.at(1)));
    std::generate(seconds.begin(), seconds.end(), [&] { return bench::secondsOf(operation); });
    std::sort(seconds.begin(), seconds.end());
    const long long peak = memory("VmHWM");
    std::printf("{\"seconds\": %.9f, \"peak\": %lld, \"added\": %lld}\n",
                seconds.at(seconds.size() / 2), peak, peak - before);
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
        std::puts(reader.name);
}

/// Every reader has to read what the library reads.
void verify(const Arguments& arguments) {
    const std::string& path = arguments.at(0);
    std::vector<plain::Grower> expected;
    for (const QenGrower& grower : bench::growersOf(path))
        expected.push_back(plain::fromLibrary(grower));
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
        {"generate", generate},                       // FILE BYTES [FIRST-FIELD [SEED]]
        {"time", timeRepeatedly},                     // OPERATION REPETITIONS FILE...
        {"once", once},                               // OPERATION FILE...
        {"look-ups", lookUps},                        // FILE
        {"readers", listReaders}, {"verify", verify}, // FILE
    };
    try {
        commands.at(argv[std::min(argc - 1, 1)])(Arguments(argv + std::min(argc, 2), argv + argc));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "measure: %s\n", error.what());
        return 1;
    }
}
