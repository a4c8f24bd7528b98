#include "tools/findings/StatisticsText.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "tools/findings/FindingSummary.h"
#include "tools/findings/FindingText.h"
#include "tools/text/Words.h"

namespace {

std::string number(std::size_t value) {
    return grouped(std::to_string(value), ",");
}

std::string codeNames(const std::vector<FindingCode>& codes) {
    std::vector<std::string> names;
    names.reserve(codes.size());
    for (const FindingCode code : codes)
        names.emplace_back(kindOf(code).code);
    return joined(names, ", ");
}

/// Blanks that bring a text to a width.
std::string padding(std::string_view text, std::size_t width) {
    return fmt::format("{:{}}", "", width - text.size());
}

} // namespace

std::string unreadableText(const FindingStatistics& statistics, const Style& style) {
    if (statistics.unreadable() == 0)
        return "";
    std::string text = fmt::format("{} of {} cannot be read:\n", number(statistics.unreadable()),
                                   quantity(statistics.files(), "file"));
    for (const FindingStatistics::Unreadable& unreadable : statistics.named())
        text += fmt::format("  {} {}\n", unreadable.file,
                            style.label(fmt::format("[{}]", codeNames(unreadable.errors))));
    const std::size_t more = statistics.unreadable() - statistics.named().size();
    if (more > 0)
        text += fmt::format("  and {} more; --json names all\n", number(more));
    return text;
}

std::string codesText(const FindingStatistics& statistics, const Style& style) {
    const std::vector<FindingCode> codes = statistics.codes();
    if (codes.empty())
        return "";
    constexpr std::string_view longestWord = "severity";
    std::size_t longestCode = std::string_view("code").size();
    for (const FindingCode code : codes)
        longestCode = std::max(longestCode, std::string_view(kindOf(code).code).size());
    std::string text = fmt::format("{:>8}  {:>8}  severity  code\n", "findings", "files");
    for (const FindingCode code : codes) {
        const FindingKind& kind = kindOf(code);
        text += fmt::format("{:>8}  {:>8}  {}{}  {}{}  {}\n", number(statistics.counts().of(code)),
                            number(statistics.filesWith(code)), severityText(kind.severity, style),
                            padding(wordFor(kind.severity), longestWord.size()),
                            style.name(kind.code), padding(kind.code, longestCode), kind.title);
    }
    return text;
}

std::string sumText(const FindingStatistics& statistics) {
    std::vector<std::string> files;
    if (statistics.unreadable() > 0)
        files.push_back(number(statistics.unreadable()) + " cannot be read");
    if (statistics.filesWithout() > 0)
        files.push_back(number(statistics.filesWithout()) + " without problems");
    const bool isAllGood = statistics.counts().sum() == 0;
    return fmt::format("{}: {}{}\n", quantity(statistics.files(), "file"),
                       countsText(statistics.counts()),
                       isAllGood || files.empty() ? "" : "; " + joined(files, ", "));
}
