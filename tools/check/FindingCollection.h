#ifndef QENXML_TOOLS_CHECK_FINDINGCOLLECTION_H
#define QENXML_TOOLS_CHECK_FINDINGCOLLECTION_H

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

#include "tools/check/Finding.h"

/// How many findings there are of each code.
class FindingCounts {
public:
    void add(FindingCode code) { ++counts_[static_cast<std::size_t>(code)]; }
    FindingCounts& operator+=(const FindingCounts& other);

    std::size_t of(FindingCode code) const { return counts_[static_cast<std::size_t>(code)]; }
    std::size_t of(Severity severity) const;
    std::size_t sum() const;

private:
    std::array<std::size_t, findingKinds.size()> counts_{};
};

/// Counts findings and keeps the first ones of each code.
class FindingCollection : public FindingSink {
public:
    /// @param limit  how many of a code are kept
    /// @param before those that count for the limit, too
    explicit FindingCollection(std::size_t limit = std::numeric_limits<std::size_t>::max(),
                               const FindingCounts& before = {})
        : limit_(limit), before_(before) {}

    bool wants(FindingCode code) const override {
        return before_.of(code) + counts_.of(code) < limit_;
    }
    void add(const Finding& finding) override;
    void addCode(FindingCode code) override { counts_.add(code); }

    const FindingCounts& counts() const { return counts_; }

    /// Those that are kept, in the order in which they were found.
    const std::vector<Finding>& kept() const { return kept_; }

private:
    std::size_t limit_;
    FindingCounts before_;
    FindingCounts counts_;
    std::vector<Finding> kept_;
};

#endif
