#include "tools/findings/FindingSummary.h"

#include <fmt/format.h>

#include "tools/findings/FindingText.h"
#include "tools/text/Words.h"

namespace {

std::string styledWord(Severity severity, const Style& style) {
    const std::string_view word = wordFor(severity);
    return severity == Severity::Error     ? style.error(word)
           : severity == Severity::Warning ? style.remark(word)
                                           : style.kind(word);
}

std::string styledCode(FindingCode code, const Style& style) {
    return style.label(fmt::format("[{}]", kindOf(code).code));
}

/// The line of the file with a caret below the place.
std::string excerptText(const Location& location, const Style& style) {
    const std::string number = fmt::format("{:>6}", location.begin.line);
    return fmt::format("{} | {}\n{:>6} | {:{}}{}\n", style.label(number), location.excerpt.line, "",
                       "", location.excerpt.caret, style.error("^"));
}

std::string findingText(const Finding& finding, const std::string& file, const Style& style) {
    std::string place = file;
    if (finding.location)
        place +=
            fmt::format(":{}:{}", finding.location->begin.line, finding.location->begin.column);
    std::string text = fmt::format("{}: {}: {} {}\n", place, styledWord(finding.severity(), style),
                                   style.name(finding.found), styledCode(finding.code, style));
    if (finding.location)
        text += excerptText(*finding.location, style);
    if (!finding.path.empty())
        text += fmt::format("  where: {}\n", finding.path);
    if (const std::string records = recordsText(finding); !records.empty())
        text += fmt::format("  of:    {}\n", records);
    text += fmt::format("  so:    {}\n\n", consequenceText(finding));
    return text;
}

std::string groupText(const FindingCollection& findings, FindingCode code, const std::string& file,
                      const Style& style) {
    std::string text;
    std::size_t more = findings.counts().of(code);
    for (const Finding& finding : findings.kept()) {
        if (finding.code != code)
            continue;
        text += findingText(finding, file, style);
        --more;
    }
    if (more > 0)
        text += fmt::format("{}: {}: and {} more of these {}; --json gives all of them\n\n", file,
                            styledWord(kindOf(code).severity, style),
                            grouped(std::to_string(more), ","), styledCode(code, style));
    return text;
}

} // namespace

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
