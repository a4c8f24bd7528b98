#ifndef QENXML_TOOLS_FINDINGS_WANTEDFINDINGS_H
#define QENXML_TOOLS_FINDINGS_WANTEDFINDINGS_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/check/FindingCollection.h"
#include "tools/output/ProgressLine.h"

/// Which findings are wanted, by code.
using WantedCodes = std::array<bool, findingKinds.size()>;

/// All but those that are named.
WantedCodes wantedCodes(const std::vector<std::string>& ignored);

/// Hands on what is wanted of one file, and counts it; and shows how far the check is.
class WantedFindings : public FindingSink {
public:
    WantedFindings(const WantedCodes& wanted, ProgressLine& progress, FindingSink& sink)
        : wanted_(wanted), progress_(progress), sink_(sink) {}

    const FindingCounts& counts() const { return counts_; }

    bool wants(FindingCode code) const override { return isWanted(code) && sink_.wants(code); }
    void add(const Finding& finding) override;
    void addCode(FindingCode code) override;
    void progress(double part) override { progress_.advance(part); }

private:
    bool isWanted(FindingCode code) const { return wanted_[static_cast<std::size_t>(code)]; }

    const WantedCodes& wanted_;
    ProgressLine& progress_;
    FindingSink& sink_;
    FindingCounts counts_;
};

#endif
