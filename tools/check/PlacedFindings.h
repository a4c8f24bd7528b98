#ifndef QENXML_TOOLS_CHECK_PLACEDFINDINGS_H
#define QENXML_TOOLS_CHECK_PLACEDFINDINGS_H

#include <string>
#include <vector>

#include "tools/check/Finding.h"

/// Hands on what is found in a text, and in their places among it a few findings that were known
/// before.
class PlacedFindings : public FindingSink {
public:
    PlacedFindings(const SourceText& source, FindingSink& sink) : source_(source), sink_(sink) {}

    /// Adds a finding of which everything is kept.
    void put(FindingCode code, Extent extent, std::string found);

    bool wants(FindingCode code) const override { return sink_.wants(code); }
    void add(const Finding& other) override;
    void addCode(FindingCode code) override { sink_.addCode(code); }
    void progress(double part) override { sink_.progress(part); }

    /// Nothing else comes.
    void finish();

private:
    struct Placed {
        FindingCode code;
        Extent extent;
        std::string found;
    };

    void handOn(const Placed& placed);

    const SourceText& source_;
    FindingSink& sink_;
    std::vector<Placed> waiting_; ///< In the order of the file.
};

#endif
