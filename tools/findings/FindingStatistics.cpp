#include "tools/findings/FindingStatistics.h"

#include <algorithm>

namespace {

/// The codes of @p severity that were found, in the order of the table, which has the gravest
/// first.
std::vector<FindingCode> codesOf(const FindingCounts& counts, Severity severity) {
    std::vector<FindingCode> codes;
    for (std::size_t i = 0; i < findingKinds.size(); ++i) {
        const auto code = static_cast<FindingCode>(i);
        if (findingKinds.at(i).severity == severity && counts.of(code) > 0)
            codes.push_back(code);
    }
    return codes;
}

} // namespace

void FindingStatistics::addFile(const std::string& file, const FindingCounts& counts) {
    ++files_;
    counts_ += counts;
    if (counts.sum() == 0) {
        ++filesWithout_;
        return;
    }
    for (std::size_t i = 0; i < filesWith_.size(); ++i)
        filesWith_.at(i) += counts.of(static_cast<FindingCode>(i)) > 0 ? 1 : 0;
    if (counts.of(Severity::Error) == 0)
        return;
    ++unreadable_;
    if (named_.size() < mostNamed)
        named_.push_back({file, codesOf(counts, Severity::Error)});
}

std::vector<FindingCode> FindingStatistics::codes() const {
    std::vector<FindingCode> codes;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        const std::vector<FindingCode> found = codesOf(counts_, severity);
        codes.insert(codes.end(), found.begin(), found.end());
    }
    return codes;
}
