#include "tools/commands/Check.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "tools/findings/Baseline.h"
#include "tools/findings/CheckJson.h"
#include "tools/findings/CheckSarif.h"
#include "tools/findings/CheckText.h"
#include "tools/findings/Explanation.h"
#include "tools/findings/NewFindings.h"
#include "tools/findings/WantedFindings.h"
#include "tools/input/InputCheck.h"
#include "tools/input/PackageNames.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/ProgressLine.h"
#include "tools/text/Words.h"
#include "tools/together/TogetherCheck.h"

namespace {

constexpr const char* examples =
    "  qenxml check 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml check --strict outgoing/            all packages in a folder; warnings fail, too\n"
    "  qenxml check --ignore empty-name *.xml     leave a kind of findings out\n"
    "  qenxml check --together stick/             what a terminal shows of two versions of a rec\n"
    "  qenxml check --format json *.xml           for other programs\n"
    "  unzip -p all.zip a.xml | qenxml check --uuid 00112233-4455-6677-8899-aabbccddeeff -\n";

struct Format {
    const char* name;
    std::unique_ptr<CheckWriter> (*make)(Console&, const CheckScope&);
};

/// All formats. The manual, the completions and the help follow.
constexpr std::array formats = {Format{"text", makeCheckText}, Format{"json", makeCheckJson},
                                Format{"sarif", makeCheckSarif}};

constexpr std::chrono::seconds untilProgress{2};

/// The gravest first.
constexpr std::array severities = {Severity::Error, Severity::Warning, Severity::Note};

constexpr const char* never = "never";

std::vector<std::string> formatNames() {
    std::vector<std::string> names;
    names.reserve(formats.size());
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
    Detail detail = Detail::Findings;
    bool together = false;
    std::string failOn = "error";
    std::vector<std::string> ignored;
    std::string baseline; ///< A file; empty for none.
    PackageOptions packages;
};

/// The codes of all findings, a line each.
std::string codeList() {
    std::string list;
    for (const FindingKind& kind : findingKinds)
        list += fmt::format("{}{}", list.empty() ? "" : "\n", kind.code);
    return list;
}

/// What is wrong with an argument that shall name a file.
std::string describeNoName(const std::string& name) {
    return unguarded(name).empty() ? "the name of the file is empty" : "";
}

Baseline baselineIn(const std::string& path) {
    try {
        return path.empty() ? Baseline() : Baseline(path);
    } catch (const std::invalid_argument& error) {
        throw CLI::ValidationError("--baseline", error.what());
    }
}

/// Writes what is found of one file after the other.
class FileChecks {
public:
    FileChecks(const WantedCodes& wanted, Baseline& baseline, CheckWriter& writer,
               ProgressLine& progress)
        : wanted_(wanted), baseline_(baseline), writer_(writer), progress_(progress) {
        writer_.begin();
    }

    /// @param find gives what is found to a sink
    void add(const std::string& name, const std::function<void(FindingSink&)>& find) {
        WantedFindings findings(wanted_, progress_, writer_.beginFile(name));
        NewFindings unknown(baseline_, wanted_, name, findings);
        if (baseline_.isEmpty())
            find(findings);
        else
            find(unknown);
        writer_.endFile();
        sum_ += findings.counts();
        known_ += unknown.known();
    }

    /// @return what was found in all of them, beyond what the baseline has
    FindingCounts end(Console& console) {
        writer_.end();
        console.clearProgress();
        if (known_ > 0)
            console.complain(
                fmt::format("{} left out, which the baseline has", quantity(known_, "finding")));
        return sum_;
    }

private:
    const WantedCodes& wanted_;
    Baseline& baseline_;
    CheckWriter& writer_;
    ProgressLine& progress_;
    FindingCounts sum_;
    std::size_t known_ = 0;
};

void checkOneByOne(PackageNames& names, ProgressLine& progress, FileChecks& checks) {
    names.forEach([&](const PackageInput& input) {
        progress.beginFile(input.name());
        checks.add(input.name(), [&](FindingSink& sink) { checkInput(input, sink); });
        return true; // What cannot be read is among the findings.
    });
}

void checkTogether(PackageNames& names, ProgressLine& progress, FileChecks& checks) {
    TogetherCheck together;
    names.forEach([&](const PackageInput& input) {
        progress.beginFile(input.name());
        together.add(input);
        return true;
    });
    for (std::size_t package = 0; package < together.size(); ++package)
        checks.add(together.name(package),
                   [&](FindingSink& sink) { together.check(package, sink); });
}

/// Whether anything was found that is as grave as @p least.
bool isFailure(const FindingCounts& counts, const std::string& least) {
    if (least == never)
        return false;
    for (const Severity severity : severities) {
        if (counts.of(severity) > 0)
            return true;
        if (wordFor(severity) == least)
            return false;
    }
    return false;
}

ExitCode check(const CheckOptions& options, Console& console) {
    PackageNames names(options.packages, console);
    if (options.detail != Detail::Findings && options.format != formats.front().name)
        throw CLI::ValidationError("--quiet, --statistics and --verbose are for the format text");
    Baseline baseline = baselineIn(options.baseline);
    const auto writer = formatNamed(options.format).make(console, {names.isOne(), options.detail});
    const WantedCodes wanted = wantedCodes(options.ignored);
    ProgressLine progress(console, untilProgress);
    FileChecks checks(wanted, baseline, *writer, progress);
    if (options.together)
        checkTogether(names, progress, checks);
    else
        checkOneByOne(names, progress, checks);
    const FindingCounts counts = checks.end(console);
    const bool failed = !names.finish() || isFailure(counts, options.failOn);
    return failed ? ExitCode::Failure : ExitCode::Success;
}

void addFormatOptions(CLI::App& parser, CheckOptions& options) {
    const std::vector<std::string> names = formatNames();
    CLI::Option* format =
        addChoice(parser, "--format", options.format, names, joined(names, " or "))
            ->option_text("FORMAT");
    parser
        .add_flag_callback(
            "--json", [&options] { options.format = "json"; }, "As --format json")
        ->excludes(format)
        ->option_text(" ");
}

/// Adds the options that say how much text there is, of which there may be one.
void addDetailOptions(CLI::App& parser, CheckOptions& options) {
    struct Flag {
        const char* name;
        Detail detail;
        const char* description;
    };
    constexpr std::array flags = {
        Flag{"--verbose", Detail::AllFiles, "List the files without findings, too"},
        Flag{"--statistics", Detail::Statistics,
             "Print only which files cannot be read, and how often each code was found"},
        Flag{"--quiet", Detail::Sum, "Print only the last line, which says how much was found"}};
    std::vector<CLI::Option*> added;
    for (const Flag& flag : flags) {
        CLI::Option* option = parser.add_flag_callback(
            flag.name, [&options, detail = flag.detail] { options.detail = detail; },
            flag.description);
        option->option_text(" ");
        for (CLI::Option* other : added)
            option->excludes(other);
        added.push_back(option);
    }
}

/// Adds the options that say what makes the command fail.
void addFailureOptions(CLI::App& parser, CheckOptions& options) {
    std::vector<std::string> choices;
    choices.reserve(severities.size() + 1);
    for (const Severity severity : severities)
        choices.emplace_back(wordFor(severity));
    choices.emplace_back(never);
    CLI::Option* failOn =
        addChoice(parser, "--fail-on", options.failOn, choices,
                  "The least severity to fail on: " + joined(choices, " or ") + "; by itself error")
            ->option_text("SEVERITY");
    parser
        .add_flag_callback(
            "--strict", [&options] { options.failOn = wordFor(Severity::Warning); },
            "As --fail-on warning")
        ->excludes(failOn)
        ->option_text(" ");
}

} // namespace

Command addCheck(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("check", "Find what is wrong with packages")->group("Commands");
    const auto options = std::make_shared<CheckOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(checkExitCodeHelp);
    parser->add_flag("--together", options->together,
                     "Find what merging the packages in this order loses or changes");
    addFormatOptions(*parser, *options);
    addDetailOptions(*parser, *options);
    addFailureOptions(*parser, *options);
    asGiven(parser->add_option(
                "--ignore", options->ignored,
                "Leave out the findings of a code, such as \"empty-name\"; may be repeated"))
        ->option_text("CODE")
        ->allow_extra_args(false)
        ->check(CLI::Validator(describeWrongCode, ""));
    addName(*parser, "--baseline", options->baseline,
            "Leave out what FILE, an earlier output in the format sarif, has")
        ->option_text("FILE")
        ->check(CLI::Validator(describeNoName, ""));
    parser->set_version_flag("--codes", codeList, "Print the codes of all findings");
    addPackageOptions(*parser, options->packages);
    return {parser, [options](Console& console) { return check(*options, console); }};
}
