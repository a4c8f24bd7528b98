#include "tools/commands/Show.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/input/PackageInput.h"
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

ExitCode showOneByOne(const PackageOptions& packages, Console& console) {
    constexpr std::size_t indent = 2;
    const TreeLayout layout{console.style(), indent, false};
    ExitCode result = ExitCode::Success;
    bool first = true;
    for (const std::string& file : packages.files) {
        PackageReading reading = readAndComplain(PackageInput(file, packages), "shown", console);
        if (reading.failure)
            result = ExitCode::Failure;
        if (isLost(reading))
            continue;
        if (!std::exchange(first, false))
            console.print("\n");
        printHeading(reading, console);
        printGrowers(reading.growers, reading.gaps, layout, console);
    }
    return result;
}

ExitCode showMerged(const PackageOptions& packages, Console& console) {
    const TreeLayout layout{console.style(), 0, true};
    ExitCode result = ExitCode::Success;
    bool any = false;
    MergedGrowers merged;
    for (const std::string& file : packages.files) {
        PackageReading reading = readAndComplain(PackageInput(file, packages), "shown", console);
        if (reading.failure)
            result = ExitCode::Failure;
        if (isLost(reading))
            continue;
        any = true;
        printHeading(reading, console);
        merged.add(std::move(reading.growers), std::move(reading.gaps));
    }
    if (any) {
        console.print("\n");
        printGrowers(merged.growers(), merged.gaps(), layout, console);
    }
    return result;
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
    return {parser, [options](Console& console) {
                requireUsable(options->packages);
                return options->merge ? showMerged(options->packages, console)
                                      : showOneByOne(options->packages, console);
            }};
}
