#include "tools/commands/Explain.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "tools/findings/ExplanationText.h"
#include "tools/options/Arguments.h"
#include "tools/options/HelpFormatter.h"

namespace {

constexpr const char* examples = "  qenxml explain number-cut-off\n"
                                 "  qenxml explain --all | less\n"
                                 "  qenxml explain --json --all        for other programs\n";

struct ExplainOptions {
    std::vector<std::string> names;
    bool all = false;
    bool json = false;
};

/// The codes to explain: those that are named, or all.
std::vector<FindingCode> chosenCodes(const ExplainOptions& options) {
    if (options.all == !options.names.empty())
        throw CLI::ValidationError(options.all ? "--all and CODE exclude each other"
                                               : "CODE or --all is required");
    std::vector<FindingCode> codes;
    for (const std::string& name : options.names)
        codes.push_back(codeNamed(name).value());
    for (std::size_t code = 0; options.all && code < findingKinds.size(); ++code)
        codes.push_back(static_cast<FindingCode>(code));
    return codes;
}

ExitCode explain(const ExplainOptions& options, Console& console) {
    const std::vector<FindingCode> codes = chosenCodes(options);
    for (const FindingCode& code : codes) {
        const bool isFirst = &code == &codes.front();
        if (options.json)
            console.print((isFirst ? "{\"findings\": [\n  " : ",\n  ") + explanationJson(code));
        else
            console.print((isFirst ? "" : "\n") + explanationText(code, console.style()));
    }
    if (options.json)
        console.print("]}\n");
    return ExitCode::Success;
}

} // namespace

Command addExplain(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("explain", "Say what a finding means and what to do")
            ->group("Commands");
    const auto options = std::make_shared<ExplainOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(explainExitCodeHelp);
    asGiven(addNames(*parser, "CODE", options->names, "Codes of findings, such as number-cut-off"))
        ->option_text(" ")
        ->check(CLI::Validator(describeWrongCode, ""));
    parser->add_flag("--all", options->all, "Explain all codes");
    parser->add_flag("--json", options->json, "Write one JSON document");
    return {parser, [options](Console& console) { return explain(*options, console); }};
}
