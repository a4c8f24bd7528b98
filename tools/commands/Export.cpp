#include "tools/commands/Export.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "tools/export/ExportCsv.h"
#include "tools/export/ExportFormat.h"
#include "tools/export/ExportGeoJson.h"
#include "tools/export/ExportJson.h"
#include "tools/input/PackageNames.h"
#include "tools/input/PackageReading.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/Output.h"
#include "tools/records/MergedGrowers.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace {

constexpr const char* examples =
    "  qenxml export --format csv -o recs.csv season/*.xml           for a spreadsheet\n"
    "  qenxml export --format geojson --merge -o map.geojson *.xml   for a map\n"
    "  qenxml export --format json 00112233-4455-6677-8899-aabbccddeeff.xml | jq .packages[0]\n";

struct Format {
    const char* name;
    const char* title;
    std::unique_ptr<ExportFormat> (*make)(TextSink);
};

/// All formats. The manual, the completions and the help follow.
constexpr std::array formats = {Format{"json", "JSON", makeJsonExport},
                                Format{"csv", "CSV", makeCsvExport},
                                Format{"geojson", "GeoJSON", makeGeoJsonExport}};

std::vector<std::string> namesOf(const char* Format::*name) {
    std::vector<std::string> names;
    names.reserve(formats.size());
    for (const Format& format : formats)
        names.emplace_back(format.*name);
    return names;
}

const Format& formatNamed(const std::string& name) {
    return *std::find_if(formats.begin(), formats.end(),
                         [&name](const Format& format) { return name == format.name; });
}

struct ExportOptions {
    std::string format;
    bool merge = false;
    PackageOptions packages;
};

/// Hands a package on, and complains where there is something to say about it.
void exportPackage(PackageReading& reading, bool merge, ExportFormat& format, MergedGrowers& merged,
                   Console& console) {
    if (merge)
        merged.add(std::exchange(reading.growers, {}), std::exchange(reading.gaps, {}));
    const std::string remark = format.package(reading);
    if (!remark.empty())
        console.complain(fmt::format("{}: {}", escape(reading.name), remark));
}

ExitCode exportPackages(const ExportOptions& options, Console& console) {
    PackageNames names(options.packages, console);
    Output output(options.packages.output, console);
    const auto format =
        formatNamed(options.format).make([&output](std::string_view text) { output.write(text); });
    MergedGrowers merged;
    bool anyRead = false;
    format->begin(options.merge);
    names.forEach([&](const PackageInput& input) {
        PackageReading reading = readAndComplain(input, "exported", console);
        anyRead = anyRead || !isLost(reading);
        exportPackage(reading, options.merge, *format, merged, console);
        return !reading.failure;
    });
    if (options.merge) {
        const std::string remark = format->merged(merged);
        if (!remark.empty())
            console.complain(remark);
    }
    format->end();
    const bool areWhole = names.finish();
    output.finish(anyRead);
    return areWhole ? ExitCode::Success : ExitCode::Failure;
}

} // namespace

std::vector<ExportFormatName> exportFormats() {
    std::vector<ExportFormatName> names;
    names.reserve(formats.size());
    for (const Format& format : formats)
        names.push_back({format.name, format.title});
    return names;
}

Command addExport(CLI::App& application) {
    CLI::App* parser = application
                           .add_subcommand("export", "Write what packages hold as " +
                                                         joined(namesOf(&Format::title), " or "))
                           ->group("Commands");
    const auto options = std::make_shared<ExportOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(exitCodeHelp);
    const std::vector<std::string> names = namesOf(&Format::name);
    addChoice(*parser, "--format", options->format, names, joined(names, " or "))
        ->required()
        ->option_text("FORMAT");
    parser->add_flag("--merge", options->merge, "Merge the growers of all packages into one tree");
    addOutputOption(*parser, options->packages);
    addPackageOptions(*parser, options->packages);
    return {parser, [options](Console& console) { return exportPackages(*options, console); }};
}
