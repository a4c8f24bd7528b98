#include "tools/commands/Diff.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include <CLI/CLI.hpp>

#include "tools/diff/DiffJson.h"
#include "tools/diff/DiffText.h"
#include "tools/diff/PackageDiff.h"
#include "tools/input/PackageNames.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/ProgressLine.h"

namespace {

constexpr const char* examples =
    "  qenxml diff old/00112233-4455-6677-8899-aabbccddeeff.xml new/\n"
    "  qenxml diff --merge stick/ outgoing/       what a terminal shows after reading all of them\n"
    "  qenxml diff --json yesterday/ today/       for other programs\n";

constexpr std::chrono::seconds untilProgress{2};

struct DiffOptions {
    bool merge = false;
    bool json = false;
    std::string from;
    std::string to;
    PackageOptions packages;
};

/// What one of the two names stands for.
struct Side {
    explicit Side(RecordVersions::Keep keep) : versions(keep) {}

    PackageStore packages;
    RecordVersions versions;
    std::size_t unread = 0; ///< Packages.
    bool isComplete = true; ///< All that it stands for was found and read.
};

/// Reads all packages of a side.
void readAll(const std::string& name, const std::string& uuid, Side& side, Console& console) {
    PackageOptions options;
    options.files = {name};
    options.uuid = isStandardInput(name) ? uuid : "";
    PackageNames names(options, console);
    ProgressLine progress(console, untilProgress);
    names.forEach([&](const PackageInput& input) {
        progress.beginFile(input.name());
        const std::size_t package = side.packages.add(input);
        const RecordList& records = side.packages.records(package);
        side.versions.add(versionsOf(records, package));
        if (!records.reading().failure)
            return true;
        console.complain(failureMessage(records.reading(), "compared"));
        ++side.unread;
        return false;
    });
    console.clearProgress();
    side.isComplete = names.finish();
}

ExitCode diff(DiffOptions& options, Console& console) {
    options.packages.files = {options.from, options.to};
    requireUsable(options.packages);
    const auto keep = options.merge ? RecordVersions::Keep::Merged : RecordVersions::Keep::Contents;
    Side from(keep);
    Side to(keep);
    readAll(options.from, options.packages.uuid, from, console);
    readAll(options.to, options.packages.uuid, to, console);
    const auto writer = options.json ? makeDiffJson(console) : makeDiffText(console);
    const std::size_t differences =
        comparePackages({from.packages, from.versions}, {to.packages, to.versions}, *writer);
    writer->end(from.unread + to.unread);
    if (!from.isComplete || !to.isComplete)
        return ExitCode::NotCompared;
    return differences > 0 ? ExitCode::Different : ExitCode::Success;
}

} // namespace

Command addDiff(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("diff", "Compare packages by their records")->group("Commands");
    const auto options = std::make_shared<DiffOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(diffExitCodeHelp);
    parser->add_flag("--merge", options->merge,
                     "Compare what merging the packages of each side makes of them");
    parser->add_flag("--json", options->json, "Write one JSON document");
    addName(*parser, "A", options->from,
            "A package file, named UUID.xml, or a folder with such; \"-\" is the standard input")
        ->required()
        ->option_text(" ");
    addName(*parser, "B", options->to, "What to compare it with; the same may be given")
        ->required()
        ->option_text(" ");
    addUuidOption(*parser, options->packages);
    return {parser, [options](Console& console) { return diff(*options, console); },
            ExitCode::NotCompared};
}
