#include "tools/commands/Export.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "tools/export/ExportCsv.h"
#include "tools/export/ExportFormat.h"
#include "tools/export/ExportGeoJson.h"
#include "tools/export/ExportJson.h"
#include "tools/export/ExportJsonLines.h"
#include "tools/input/PackageNames.h"
#include "tools/input/PackageReading.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/Output.h"
#include "tools/records/MergedGrowers.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"
#include "tools/workbook/ExportXlsx.h"

namespace {

constexpr const char* examples =
    "  qenxml export --format csv -o recs.csv season/         for a spreadsheet\n"
    "  qenxml export --format geojson --merge -o map.geojson season/   for a map\n"
    "  qenxml export --format json 00112233-4455-6677-8899-aabbccddeeff.xml | jq .packages[0]\n";

constexpr const char* csv = "csv";
constexpr const char* xlsx = "xlsx";

struct Format {
    const char* name;
    const char* title; ///< For the help; null for another form of the format before it.
    std::unique_ptr<ExportFormat> (*make)(TextSink, const TableLayout&);
};

/// A format that has no layout.
template <auto make>
std::unique_ptr<ExportFormat> plain(TextSink sink, const TableLayout& /*layout*/) {
    return make(std::move(sink));
}

/// All formats. The manual, the completions and the help follow.
constexpr std::array formats = {Format{"json", "JSON", plain<makeJsonExport>},
                                Format{"jsonl", nullptr, plain<makeJsonLinesExport>},
                                Format{csv, "CSV", makeCsvExport},
                                Format{"geojson", "GeoJSON", plain<makeGeoJsonExport>},
                                Format{"geojsonl", nullptr, plain<makeGeoJsonSequenceExport>},
                                Format{xlsx, "XLSX", plain<makeXlsxExport>}};

/// The characters between cells that people may want, and what they are called.
constexpr std::array<std::pair<const char*, char>, 4> delimiters = {
    {{",", ','}, {";", ';'}, {"|", '|'}, {"tab", '\t'}}};

std::vector<std::string> namesOf(const char* Format::*name) {
    std::vector<std::string> names;
    names.reserve(formats.size());
    for (const Format& format : formats) {
        if (format.*name != nullptr)
            names.emplace_back(format.*name);
    }
    return names;
}

const Format& formatNamed(const std::string& name) {
    return *std::find_if(formats.begin(), formats.end(),
                         [&name](const Format& format) { return name == format.name; });
}

struct ExportOptions {
    std::string format;
    std::string delimiter = delimiters.front().first;
    std::string decimal = ".";
    bool withoutMark = false;
    bool hasLayout = false; ///< Whether any of these was given.
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

TableLayout layoutOf(const ExportOptions& options) {
    const auto* const delimiter =
        std::find_if(delimiters.begin(), delimiters.end(),
                     [&](const auto& known) { return known.first == options.delimiter; });
    return {delimiter->second, options.decimal.front(), !options.withoutMark};
}

ExitCode exportPackages(const ExportOptions& options, Console& console) {
    if (options.hasLayout && options.format != csv)
        throw CLI::ValidationError("--delimiter, --decimal and --no-bom are for the format csv");
    if (options.format == xlsx && options.packages.output.empty() && console.isTerminal())
        throw CLI::ValidationError("a workbook is nothing for a terminal; name a file for it, such "
                                   "as \"-o recs.xlsx\"");
    PackageNames names(options.packages, console);
    Output output(options.packages.output, console);
    const auto format =
        formatNamed(options.format)
            .make([&output](std::string_view text) { output.write(text); }, layoutOf(options));
    MergedGrowers merged;
    bool anyRead = false;
    format->begin(options.merge);
    names.forEach([&](const PackageInput& input) {
        PackageReading reading =
            readAndComplain(input, "exported", console, format->findings(input.name()));
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

void addLayoutOptions(CLI::App& parser, const std::shared_ptr<ExportOptions>& options) {
    std::vector<std::string> names;
    std::string list;
    for (const auto& delimiter : delimiters) {
        names.emplace_back(delimiter.first);
        list += " " + names.back();
    }
    const std::vector<CLI::Option*> added = {
        addChoice(parser, "--delimiter", options->delimiter, names,
                  "What separates the cells of CSV, one of" + list)
            ->option_text("CHARACTER"),
        addChoice(parser, "--decimal", options->decimal, {".", ","},
                  "What comes before the decimals of numbers in CSV: . or ,")
            ->option_text("CHARACTER"),
        parser.add_flag("--no-bom", options->withoutMark, "Begin CSV without a byte-order mark")
            ->option_text(" ")};
    for (CLI::Option* option : added)
        option->each([options](const std::string&) { options->hasLayout = true; });
}

} // namespace

std::vector<ExportFormatName> exportFormats() {
    std::vector<ExportFormatName> names;
    names.reserve(formats.size());
    for (const Format& format : formats)
        names.push_back({format.name, format.title == nullptr ? format.name : format.title});
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
    addLayoutOptions(*parser, options);
    parser->add_flag("--merge", options->merge, "Merge the growers of all packages into one tree");
    addOutputOption(*parser, options->packages);
    addPackageOptions(*parser, options->packages);
    return {parser, [options](Console& console) { return exportPackages(*options, console); }};
}
