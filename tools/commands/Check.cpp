#include "tools/commands/Check.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingJson.h"
#include "tools/findings/FindingSummary.h"
#include "tools/findings/FindingText.h"
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

/// Hands on what is wanted of one file, and shows how far the check is.
class WantedFindings : public FindingSink {
public:
    WantedFindings(const Wanted& wanted, ProgressLine& progress, FindingSink& sink)
        : wanted_(wanted), progress_(progress), sink_(sink) {}

    bool wants(FindingCode code) const override { return isWanted(code) && sink_.wants(code); }
    void add(const Finding& finding) override { sink_.add(finding); }
    void addCode(FindingCode code) override {
        if (isWanted(code))
            sink_.addCode(code);
    }
    void progress(double part) override { progress_.advance(part); }

private:
    bool isWanted(FindingCode code) const { return wanted_[static_cast<std::size_t>(code)]; }

    const Wanted& wanted_;
    ProgressLine& progress_;
    FindingSink& sink_;
};

/// Writes the findings of one file as JSON, as they come.
class JsonFindings : public FindingSink {
public:
    explicit JsonFindings(Console& console) : console_(console) {}

    const FindingCounts& counts() const { return counts_; }

    bool wants(FindingCode) const override { return true; }
    void add(const Finding& finding) override {
        console_.print(fmt::format("{}\n    {}", counts_.sum() == 0 ? "" : ",", toJson(finding)));
        counts_.add(finding.code);
    }

private:
    Console& console_;
    FindingCounts counts_;
};

/// Checks the files one by one.
class FileChecks {
public:
    FileChecks(const PackageOptions& packages, const Wanted& wanted, Console& console)
        : packages_(packages),
          wanted_(wanted),
          console_(console),
          progress_(console, packages.files.size(), untilProgress) {}

    FindingCounts writeText() {
        for (const std::string& path : packages_.files) {
            FindingCollection findings(shownPerCode);
            checkFile(path, findings);
            const FindingCounts& counts = findings.counts();
            console_.print(summaryText(findings, escape(path), console_.style()));
            console_.print(fmt::format("{}: {}\n", escape(path), countsText(counts)));
            if (counts.sum() > 0 && &path != &packages_.files.back())
                console_.print("\n");
            sum_ += counts;
        }
        if (packages_.files.size() > 1)
            console_.print(fmt::format("{} files: {}\n", packages_.files.size(), countsText(sum_)));
        return sum_;
    }

    FindingCounts writeJson() {
        console_.print("{\"files\": [");
        for (const std::string& path : packages_.files) {
            console_.print(fmt::format("{}\n  {{\"file\": {}, \"findings\": [",
                                       &path == &packages_.files.front() ? "" : ",",
                                       toJson(escape(path))));
            JsonFindings findings(console_);
            checkFile(path, findings);
            console_.print(fmt::format("],\n   {}}}", countsJson(findings.counts())));
            sum_ += findings.counts();
        }
        console_.print(fmt::format("],\n {}}}\n", countsJson(sum_)));
        return sum_;
    }

private:
    static constexpr std::chrono::seconds untilProgress{2};
    static constexpr std::size_t shownPerCode = 10;

    void checkFile(const std::string& path, FindingSink& findings) {
        progress_.beginFile(path);
        WantedFindings sink(wanted_, progress_, findings);
        checkInput(PackageInput(path, packages_), sink);
    }

    static std::string countsJson(const FindingCounts& counts) {
        return fmt::format(R"("errors": {}, "warnings": {}, "notes": {})",
                           counts.of(Severity::Error), counts.of(Severity::Warning),
                           counts.of(Severity::Note));
    }

    const PackageOptions& packages_;
    const Wanted& wanted_;
    Console& console_;
    ProgressLine progress_;
    FindingCounts sum_;
};

ExitCode check(const CheckOptions& options, Console& console) {
    requireUsable(options.packages);
    const PackageFiles files = packageFiles(options.packages.files);
    for (const std::string& complaint : files.complaints)
        console.complain(complaint);
    const Wanted wanted = wantedCodes(options);
    const PackageOptions packages{files.paths, options.packages.uuid};
    FileChecks checks(packages, wanted, console);
    const FindingCounts counts = options.json ? checks.writeJson() : checks.writeText();
    console.clearProgress();
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
