#include "tools/commands/Report.h"

#include <memory>
#include <string>
#include <string_view>

#include <CLI/CLI.hpp>

#include "tools/input/PackageNames.h"
#include "tools/input/PackageReading.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/Output.h"
#include "tools/report/ReportData.h"
#include "tools/report/ReportPage.h"

namespace {

constexpr const char* examples =
    "  qenxml report -o report.html 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml report -o season.html season/*.xml      one page about all packages\n";

ExitCode report(const PackageOptions& options, Console& console) {
    if (options.output.empty() && console.isTerminal())
        throw CLI::ValidationError("the page would fill the terminal; name a file for it, such as "
                                   "\"-o report.html\"");
    PackageNames names(options, console);
    Output output(options.output, console);
    bool anyRead = false;
    ReportData data;
    names.forEach([&](const PackageInput& input) {
        PackageFindings findings = data.nextFindings();
        data.add(readAndComplain(input, "reported", console, &findings), findings);
        anyRead = anyRead || isReadable(data.packages().back());
        return isWhole(data.packages().back());
    });
    writeReport(data, [&output](std::string_view text) { output.write(text); });
    const bool areWhole = names.finish();
    output.finish(anyRead);
    return areWhole ? ExitCode::Success : ExitCode::Failure;
}

} // namespace

Command addReport(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("report", "Write a page about packages for a browser")
            ->group("Commands");
    const auto options = std::make_shared<PackageOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(exitCodeHelp);
    addOutputOption(*parser, *options);
    addPackageOptions(*parser, *options);
    return {parser, [options](Console& console) { return report(*options, console); }};
}
