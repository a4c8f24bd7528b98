#include "tools/commands/Check.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "tools/findings/CheckJson.h"
#include "tools/findings/CheckText.h"
#include "tools/findings/Explanation.h"
#include "tools/findings/WantedFindings.h"
#include "tools/input/InputCheck.h"
#include "tools/input/PackageFiles.h"
#include "tools/input/PackageInput.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/FormatOption.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/ProgressLine.h"

namespace {

constexpr const char* examples =
    "  qenxml check 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml check --strict outgoing/            all packages in a folder; warnings fail, too\n"
    "  qenxml check --ignore empty-name *.xml     leave a kind of findings out\n"
    "  qenxml check --format json *.xml           for other programs\n"
    "  unzip -p all.zip a.xml | qenxml check --uuid 00112233-4455-6677-8899-aabbccddeeff -\n";

struct Format {
    const char* name;
    std::unique_ptr<CheckWriter> (*make)(Console&, std::size_t files);
};

/// All formats. The manual, the completions and the help follow.
constexpr std::array formats = {Format{"text", makeCheckText}, Format{"json", makeCheckJson}};

constexpr std::chrono::seconds untilProgress{2};

std::vector<std::string> formatNames() {
    std::vector<std::string> names;
    for (const Format& format : formats)
        names.emplace_back(format.name);
    return names;
}

const Format& formatNamed(const std::string& name) {
    return *std::find_if(formats.begin(), formats.end(),
                         [&name](const Format& format) { return name == format.name; });
}

struct CheckOptions {
    std::string format = formats.front().name;
    bool strict = false;
    std::vector<std::string> ignored;
    PackageOptions packages;
};

/// The codes of all findings, a line each.
std::string codeList() {
    std::string list;
    for (const FindingKind& kind : findingKinds)
        list += fmt::format("{}{}", list.empty() ? "" : "\n", kind.code);
    return list;
}

/// Checks the files one by one.
///
/// @return what was found in all of them
FindingCounts checkFiles(const PackageOptions& packages, const WantedCodes& wanted,
                         CheckWriter& writer, Console& console) {
    FindingCounts sum;
    ProgressLine progress(console, packages.files.size(), untilProgress);
    writer.begin();
    for (const std::string& path : packages.files) {
        WantedFindings findings(wanted, progress, writer.beginFile(path));
        progress.beginFile(path);
        checkInput(PackageInput(path, packages), findings);
        writer.endFile();
        sum += findings.counts();
    }
    writer.end();
    console.clearProgress();
    return sum;
}

ExitCode check(const CheckOptions& options, Console& console) {
    requireUsable(options.packages);
    const PackageFiles files = packageFiles(options.packages.files);
    for (const std::string& complaint : files.complaints)
        console.complain(complaint);
    const auto writer = formatNamed(options.format).make(console, files.paths.size());
    const FindingCounts counts = checkFiles({files.paths, options.packages.uuid},
                                            wantedCodes(options.ignored), *writer, console);
    const bool failed =
        counts.of(Severity::Error) > 0 || (options.strict && counts.of(Severity::Warning) > 0);
    return failed || !files.complaints.empty() ? ExitCode::Failure : ExitCode::Success;
}

} // namespace

Command addCheck(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("check", "Find what is wrong with packages")->group("Commands");
    const auto options = std::make_shared<CheckOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(checkExitCodeHelp);
    CLI::Option* format = addFormatOption(*parser, options->format, formatNames());
    parser
        ->add_flag_callback(
            "--json", [options] { options->format = "json"; }, "As --format json")
        ->excludes(format)
        ->option_text(" ");
    parser->add_flag("--strict", options->strict, "Fail on warnings, too");
    asGiven(parser->add_option(
                "--ignore", options->ignored,
                "Leave out the findings of a code, such as \"empty-name\"; may be repeated"))
        ->option_text("CODE")
        ->allow_extra_args(false)
        ->check(CLI::Validator(describeWrongCode, ""));
    parser->set_version_flag("--codes", codeList, "Print the codes of all findings");
    addPackageOptions(*parser, options->packages,
                      "Package files, named UUID.xml, and folders with such");
    return {parser, [options](Console& console) { return check(*options, console); }};
}
