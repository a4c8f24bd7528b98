#include "tools/findings/FindingSummary.h"

#include <fmt/format.h>

namespace {

constexpr std::size_t shownPerCode = 10;

/// A number with a comma between thousands.
std::string grouped(std::size_t number) {
    std::string text = fmt::format("{}", number);
    constexpr std::size_t groupSize = 3;
    for (std::size_t end = text.size(); end > groupSize; end -= groupSize)
        text.insert(end - groupSize, ",");
    return text;
}

std::string quantity(std::size_t number, const char* what) {
    return fmt::format("{} {}{}", grouped(number), what, number == 1 ? "" : "s");
}

const char* word(Severity severity) {
    return severity == Severity::Error     ? "error"
           : severity == Severity::Warning ? "warning"
                                           : "note";
}

std::string dressed(Severity severity, const Style& style) {
    return severity == Severity::Error     ? style.error(word(severity))
           : severity == Severity::Warning ? style.remark(word(severity))
                                           : style.kind(word(severity));
}

/// The line of the file with a caret below the place.
std::string excerptText(const Finding& finding, const Style& style) {
    const std::string number = fmt::format("{:>6}", finding.position->line);
    return fmt::format("{} | {}\n{:>6} | {:{}}{}\n", style.label(number), finding.excerpt.line, "",
                       "", finding.excerpt.caret, style.error("^"));
}

std::string findingText(const Finding& finding, const std::string& file, const Style& style) {
    std::string place = file;
    if (finding.position)
        place += fmt::format(":{}:{}", finding.position->line, finding.position->column);
    std::string text =
        fmt::format("{}: {}: {} {}\n", place, dressed(finding.severity, style),
                    style.name(finding.found), style.label(fmt::format("[{}]", finding.code)));
    if (finding.position)
        text += excerptText(finding, style);
    if (!finding.path.empty())
        text += fmt::format("  where: {}\n", finding.path);
    if (!finding.records.empty())
        text += fmt::format("  of:    {}\n", finding.records);
    text += fmt::format("  so:    {}\n\n", finding.consequence);
    return text;
}

} // namespace

void FindingCounts::add(Severity severity) {
    ++(severity == Severity::Error ? errors : severity == Severity::Warning ? warnings : notes);
}

FindingCounts& FindingCounts::operator+=(const FindingCounts& other) {
    errors += other.errors;
    warnings += other.warnings;
    notes += other.notes;
    return *this;
}

std::string describe(const FindingCounts& counts) {
    std::string text;
    const auto add = [&](std::size_t number, const char* what) {
        if (number > 0)
            text += (text.empty() ? "" : ", ") + quantity(number, what);
    };
    add(counts.errors, "error");
    add(counts.warnings, "warning");
    add(counts.notes, "note");
    return text.empty() ? "no problems found" : text;
}

void FindingSummary::count(FindingCode code) {
    ++groups_[static_cast<std::size_t>(code)].count;
    counts_.add(kindOf(code).severity);
}

bool FindingSummary::hasRoom(FindingCode code) const {
    return groups_[static_cast<std::size_t>(code)].first.size() < shownPerCode;
}

void FindingSummary::keep(const Finding& finding) {
    for (std::size_t code = 0; code < groups_.size(); ++code) {
        if (finding.code == findingKinds[code].code)
            groups_[code].first.push_back(finding);
    }
}

std::string FindingSummary::text(const std::string& file, const Style& style) const {
    std::string text;
    for (const Severity severity : {Severity::Note, Severity::Warning, Severity::Error}) {
        // The table has the gravest first.
        for (std::size_t code = groups_.size(); code-- > 0;) {
            if (findingKinds[code].severity == severity)
                text += groupText(file, style, code);
        }
    }
    return text;
}

std::string FindingSummary::groupText(const std::string& file, const Style& style,
                                      std::size_t code) const {
    const Group& group = groups_[code];
    std::string text;
    for (const Finding& finding : group.first)
        text += findingText(finding, file, style);
    if (group.count > group.first.size())
        text += fmt::format("{}: {}: and {} more of these {}; --json gives all of them\n\n", file,
                            dressed(findingKinds[code].severity, style),
                            grouped(group.count - group.first.size()),
                            style.label(fmt::format("[{}]", findingKinds[code].code)));
    return text;
}
