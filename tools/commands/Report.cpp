#include "tools/commands/Report.h"

#include <memory>
#include <string>
#include <string_view>

#include "tools/input/PackageInput.h"
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

struct ReportOptions {
    std::string output;
    PackageOptions packages;
};

ExitCode report(const ReportOptions& options, Console& console) {
    if (options.output.empty() && console.isTerminal())
        throw CLI::ValidationError("the page would fill the terminal; name a file for it, such as "
                                   "\"-o report.html\"");
    requireUsable(options.packages, options.output);
    Output output(options.output, console);
    ExitCode result = ExitCode::Success;
    bool anyRead = false;
    ReportData data;
    for (const std::string& file : options.packages.files) {
        PackageFindings findings = data.nextFindings();
        data.add(
            readAndComplain(PackageInput(file, options.packages), "reported", console, &findings),
            findings);
        if (!isWhole(data.packages().back()))
            result = ExitCode::Failure;
        anyRead = anyRead || isReadable(data.packages().back());
    }
    writeReport(data, [&output](std::string_view text) { output.write(text); });
    output.finish(anyRead);
    return result;
}

} // namespace

Command addReport(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("report", "Write a page about packages for a browser")
            ->group("Commands");
    const auto options = std::make_shared<ReportOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(exitCodeHelp);
    addOutputOption(*parser, options->output);
    addPackageOptions(*parser, options->packages);
    return {parser, [options](Console& console) { return report(*options, console); }};
}
