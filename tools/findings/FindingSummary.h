#ifndef QENXML_TOOLS_FINDINGS_FINDINGSUMMARY_H
#define QENXML_TOOLS_FINDINGS_FINDINGSUMMARY_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/check/Finding.h"
#include "tools/output/Style.h"

/// How many findings there are of each severity.
struct FindingCounts {
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t notes = 0;

    /// Counts one more.
    void add(Severity severity);

    FindingCounts& operator+=(const FindingCounts& other);
};

/// In words: "1 error, 2,000 warnings", or "no problems found".
std::string describe(const FindingCounts& counts);

/// The findings of one file as people want to see them: of each code the first ones, all counted.
class FindingSummary {
public:
    void count(FindingCode code);

    /// Whether there is room for one more of a code that was counted.
    bool hasRoom(FindingCode code) const;

    /// Keeps a finding that was counted.
    void keep(const Finding& finding);

    const FindingCounts& counts() const { return counts_; }

    /// Everything, grouped by code, the gravest last.
    ///
    /// @param file how the file is called, safe to print
    std::string text(const std::string& file, const Style& style) const;

private:
    struct Group {
        std::size_t count = 0;
        std::vector<Finding> first;
    };

    std::string groupText(const std::string& file, const Style& style, std::size_t code) const;

    std::array<Group, findingKinds.size()> groups_;
    FindingCounts counts_;
};

#endif
