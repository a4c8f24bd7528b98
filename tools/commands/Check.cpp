#include "tools/commands/Check.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "tools/findings/FindingJson.h"
#include "tools/findings/FindingSummary.h"
#include "tools/input/InputCheck.h"
#include "tools/input/PackageFiles.h"
#include "tools/input/PackageInput.h"
#include "tools/options/Arguments.h"
#include "tools/options/CommonOptions.h"
#include "tools/options/HelpFormatter.h"
#include "tools/output/ProgressLine.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"

namespace {

constexpr const char* examples =
    "  qenxml check 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml check --strict outgoing/            all packages in a folder; warnings fail, too\n"
    "  qenxml check --ignore empty-name *.xml     leave a kind of findings out\n"
    "  qenxml check --json *.xml                  for other programs\n"
    "  unzip -p all.zip a.xml | qenxml check --uuid 00112233-4455-6677-8899-aabbccddeeff -\n";

struct CheckOptions {
    bool json = false;
    bool strict = false;
    std::vector<std::string> ignored;
    PackageOptions packages;
};

/// What is wrong with an argument that shall be a code; empty when nothing is.
std::string describeWrongCode(const std::string& argument) {
    std::vector<const char*> codes;
    for (const FindingKind& kind : findingKinds) {
        if (argument == kind.code)
            return "";
        codes.push_back(kind.code);
    }
    const std::string_view nearest = nearestName(argument, codes);
    return fmt::format("\"{}\" is no code of a finding{}", argument,
                       nearest.empty() ? "" : fmt::format("; is {} meant?", nearest));
}

/// The codes of all findings, a line each.
std::string codeList() {
    std::string list;
    for (const FindingKind& kind : findingKinds)
        list += fmt::format("{}{}", list.empty() ? "" : "\n", kind.code);
    return list;
}

/// Which findings are wanted, by code.
using Wanted = std::array<bool, findingKinds.size()>;

Wanted wantedCodes(const CheckOptions& options) {
    Wanted wanted{};
    wanted.fill(true);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        for (const std::string& code : options.ignored)
            wanted[i] = wanted[i] && code != findingKinds[i].code;
    }
    return wanted;
}

/// Collects the findings of one file for people.
class SummarySink : public FindingSink {
public:
    SummarySink(const Wanted& wanted, ProgressLine& progress)
        : wanted_(wanted), progress_(progress) {}

    const FindingSummary& summary() const { return summary_; }

    bool wants(FindingCode code) override {
        if (!wanted_[static_cast<std::size_t>(code)])
            return false;
        summary_.count(code);
        return summary_.hasRoom(code);
    }
    void add(const Finding& finding) override { summary_.keep(finding); }
    void progress(double part) override { progress_.reach(part); }

private:
    const Wanted& wanted_;
    ProgressLine& progress_;
    FindingSummary summary_;
};

/// Writes the findings of one file as JSON, as they come.
class JsonSink : public FindingSink {
public:
    JsonSink(const Wanted& wanted, ProgressLine& progress, Console& console)
        : wanted_(wanted), progress_(progress), console_(console) {}

    const FindingCounts& counts() const { return counts_; }

    bool wants(FindingCode code) override { return wanted_[static_cast<std::size_t>(code)]; }
    void add(const Finding& finding) override {
        console_.print(fmt::format("{}\n    {}", first_ ? "" : ",", toJson(finding)));
        first_ = false;
        counts_.add(finding.severity);
    }
    void progress(double part) override { progress_.reach(part); }

private:
    const Wanted& wanted_;
    ProgressLine& progress_;
    Console& console_;
    bool first_ = true;
    FindingCounts counts_;
};

FindingCounts writeText(const PackageOptions& packages, const Wanted& wanted,
                        ProgressLine& progress, Console& console) {
    const std::vector<std::string>& files = packages.files;
    FindingCounts sum;
    for (const std::string& path : files) {
        progress.beginFile(path);
        SummarySink sink(wanted, progress);
        checkInput(PackageInput(path, packages), sink);
        const FindingCounts& counts = sink.summary().counts();
        console.print(sink.summary().text(escape(path), console.style()));
        console.print(fmt::format("{}: {}\n", escape(path), describe(counts)));
        sum += counts;
        if (counts.errors + counts.warnings + counts.notes > 0 && &path != &files.back())
            console.print("\n");
    }
    if (files.size() > 1)
        console.print(fmt::format("{} files: {}\n", files.size(), describe(sum)));
    return sum;
}

std::string countsJson(const FindingCounts& counts) {
    return fmt::format(R"("errors": {}, "warnings": {}, "notes": {})", counts.errors,
                       counts.warnings, counts.notes);
}

FindingCounts writeJson(const PackageOptions& packages, const Wanted& wanted,
                        ProgressLine& progress, Console& console) {
    const std::vector<std::string>& files = packages.files;
    FindingCounts sum;
    console.print("{\"files\": [");
    for (const std::string& path : files) {
        progress.beginFile(path);
        console.print(fmt::format("{}\n  {{\"file\": {}, \"findings\": [",
                                  &path == &files.front() ? "" : ",", toJson(escape(path))));
        JsonSink sink(wanted, progress, console);
        checkInput(PackageInput(path, packages), sink);
        console.print(fmt::format("],\n   {}}}", countsJson(sink.counts())));
        sum += sink.counts();
    }
    console.print(fmt::format("],\n {}}}\n", countsJson(sum)));
    return sum;
}

ExitCode check(const CheckOptions& options, Console& console) {
    constexpr std::chrono::seconds untilProgress(2);
    requireUsable(options.packages);
    const PackageFiles files = packageFiles(options.packages.files);
    for (const std::string& complaint : files.complaints)
        console.complain(complaint);
    const Wanted wanted = wantedCodes(options);
    ProgressLine progress(console, files.paths.size(), untilProgress);
    const FindingCounts counts = (options.json ? writeJson : writeText)(
        {files.paths, options.packages.uuid}, wanted, progress, console);
    console.clearProgress();
    const bool failed = counts.errors > 0 || (options.strict && counts.warnings > 0);
    return failed || !files.complaints.empty() ? ExitCode::Failure : ExitCode::Success;
}

} // namespace

Command addCheck(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("check", "Find what is wrong with packages")->group("Commands");
    const auto options = std::make_shared<CheckOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(checkExitCodeHelp);
    parser->add_flag("--json", options->json, "Write all findings as one JSON document");
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
