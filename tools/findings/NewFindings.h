#ifndef QENXML_TOOLS_FINDINGS_NEWFINDINGS_H
#define QENXML_TOOLS_FINDINGS_NEWFINDINGS_H

#include <cstddef>
#include <string>

#include "tools/check/Finding.h"
#include "tools/findings/Baseline.h"
#include "tools/findings/WantedFindings.h"

/// Hands on the findings of one file that a baseline does not have.
class NewFindings : public FindingSink {
public:
    /// @param wanted what is not counted as known either
    NewFindings(Baseline& baseline, const WantedCodes& wanted, const std::string& path,
                FindingSink& sink)
        : baseline_(baseline), wanted_(wanted), path_(path), sink_(sink) {}

    /// How many were known.
    std::size_t known() const { return known_; }

    bool wants(FindingCode code) const override { return wanted_[static_cast<std::size_t>(code)]; }
    void add(const Finding& finding) override;
    void progress(double part) override { sink_.progress(part); }

private:
    Baseline& baseline_;
    const WantedCodes& wanted_;
    const std::string& path_;
    FindingSink& sink_;
    std::size_t known_ = 0;
};

#endif
