#include "tools/commands/Show.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/input/PackageNames.h"
#include "tools/input/PackageReading.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/records/MergedGrowers.h"
#include "tools/records/RecordWalk.h"
#include "tools/show/TreeText.h"
#include "tools/text/Escape.h"

namespace {

constexpr const char* examples =
    "  qenxml show 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml show --merge season/*.xml      one tree of all packages in a folder\n"
    "  qenxml show packages/*.xml | less     page by page\n"
    "  unzip -p all.zip a.xml | qenxml show --uuid 00112233-4455-6677-8899-aabbccddeeff -\n";

struct ShowOptions {
    bool merge = false;
    PackageOptions packages;
};

void printHeading(const PackageReading& reading, Console& console) {
    const Style& style = console.style();
    const std::string uuid = reading.uuid ? to_string(*reading.uuid) : "";
    console.print(fmt::format("{} {}  {}{}\n", style.kind("Package"), style.identifier(uuid),
                              style.name(escape(reading.name)),
                              reading.failure ? style.remark("  (incomplete)") : ""));
}

void printGrowers(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
                  const TreeLayout& layout, Console& console) {
    if (growers.empty())
        console.print(fmt::format("{:{}}{}\n", "", layout.indent, "no growers"));
    forEachGrower(growers, gaps, [&](QenGrower& grower, const GrowerGaps& gapsOfGrower) {
        console.print(treeText(grower, gapsOfGrower, layout));
    });
}

void showOneByOne(PackageNames& names, Console& console) {
    constexpr std::size_t indent = 2;
    const TreeLayout layout{console.style(), indent, false};
    bool first = true;
    names.forEach([&](const PackageInput& input) {
        PackageReading reading = readAndComplain(input, "shown", console);
        if (!isLost(reading)) {
            if (!std::exchange(first, false))
                console.print("\n");
            printHeading(reading, console);
            printGrowers(reading.growers, reading.gaps, layout, console);
        }
        return !reading.failure;
    });
}

void showMerged(PackageNames& names, Console& console) {
    bool any = false;
    MergedGrowers merged;
    names.forEach([&](const PackageInput& input) {
        PackageReading reading = readAndComplain(input, "shown", console);
        if (!isLost(reading)) {
            any = true;
            printHeading(reading, console);
            merged.add(std::move(reading.growers), std::move(reading.gaps));
        }
        return !reading.failure;
    });
    if (any) {
        console.print("\n");
        printGrowers(merged.growers(), merged.gaps(), {console.style(), 0, true}, console);
    }
}

ExitCode show(const ShowOptions& options, Console& console) {
    PackageNames names(options.packages, console);
    if (options.merge)
        showMerged(names, console);
    else
        showOneByOne(names, console);
    return names.finish() ? ExitCode::Success : ExitCode::Failure;
}

} // namespace

Command addShow(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("show", "Print what packages hold")->group("Commands");
    const auto options = std::make_shared<ShowOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(exitCodeHelp);
    parser->add_flag("--merge", options->merge,
                     "Print one tree of all packages; each rec names its package");
    addPackageOptions(*parser, options->packages);
    return {parser, [options](Console& console) { return show(*options, console); }};
}
