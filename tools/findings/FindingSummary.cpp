#include "tools/findings/FindingSummary.h"

#include <string>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "tools/findings/FindingText.h"
#include "tools/text/Words.h"

namespace {

std::string styledCode(FindingCode code, const Style& style) {
    return style.label(fmt::format("[{}]", kindOf(code).code));
}

/// The line of the file with a caret below the place.
std::string excerptText(const Location& location, const Style& style) {
    const std::string number = fmt::format("{:>6}", location.begin.line);
    return fmt::format("{} | {}\n{:>6} | {:{}}{}\n", style.label(number), location.excerpt.line, "",
                       "", location.excerpt.caret, style.error("^"));
}

/// The versions, and below them side by side the values that differ.
std::string versionsText(const Merges& merges, const Style& style) {
    std::string text;
    for (std::size_t i = 0; i < merges.versions.size(); ++i) {
        const MergedVersion& version = merges.versions[i];
        text +=
            fmt::format("  {}    {}{}{}{}\n", style.label(fmt::format("({})", i + 1)), version.file,
                        version.packages > 1
                            ? fmt::format(" and {}", quantity(version.packages - 1, "more file"))
                            : "",
                        i == 0 ? ", shown" : "", merges.editedLast == i ? ", edited last" : "");
    }
    for (std::size_t value = 0; value < merges.versions.front().values.size(); ++value) {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < merges.versions.size(); ++i)
            texts.push_back(fmt::format("({}) {}", i + 1, merges.versions[i].values[value].second));
        text += fmt::format("         {}: {}\n",
                            style.label(merges.versions.front().values[value].first),
                            joined(texts, ", "));
    }
    return text;
}

/// The form that compilers use, with a place for those too that are about none.
std::string findingText(const Finding& finding, const std::string& file, const Style& style) {
    const Position begin = finding.location ? finding.location->begin : Position{1, 1};
    std::string text = fmt::format("{}:{}:{}: {}: {} {}\n", file, begin.line, begin.column,
                                   severityText(finding.severity(), style),
                                   style.name(finding.found), styledCode(finding.code, style));
    if (finding.location)
        text += excerptText(*finding.location, style);
    if (!finding.path.empty())
        text += fmt::format("  where: {}\n", finding.path);
    if (const std::string records = recordsText(finding); !records.empty())
        text += fmt::format("  of:    {}\n", records);
    text += fmt::format("  so:    {}\n", consequenceText(finding));
    if (const auto* const merges = std::get_if<Merges>(&finding.consequence))
        text += versionsText(*merges, style);
    return text + '\n';
}

std::string groupText(const FindingCollection& findings, FindingCode code, const std::string& file,
                      const Style& style) {
    std::string text;
    std::size_t shown = 0;
    for (const Finding& finding : findings.kept()) {
        if (finding.code != code)
            continue;
        text += findingText(finding, file, style);
        ++shown;
    }
    const std::size_t more = findings.counts().of(code) - shown;
    if (shown > 0 && more > 0)
        text += fmt::format("  and {} more of these in the file {}; --json gives all of them\n\n",
                            grouped(std::to_string(more), ","), styledCode(code, style));
    return text;
}

} // namespace

std::string severityText(Severity severity, const Style& style) {
    const std::string_view word = wordFor(severity);
    return severity == Severity::Error     ? style.error(word)
           : severity == Severity::Warning ? style.remark(word)
                                           : style.kind(word);
}

std::string summaryText(const FindingCollection& findings, const std::string& file,
                        const Style& style) {
    std::string text;
    for (const Severity severity : {Severity::Note, Severity::Warning, Severity::Error}) {
        // The table has the gravest first.
        for (std::size_t code = findingKinds.size(); code-- > 0;) {
            if (findingKinds[code].severity == severity)
                text += groupText(findings, static_cast<FindingCode>(code), file, style);
        }
    }
    return text;
}
