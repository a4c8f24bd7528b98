#include "tools/findings/CheckText.h"

#include <fmt/format.h>

#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingSummary.h"
#include "tools/findings/FindingText.h"
#include "tools/text/Escape.h"

namespace {

class CheckText : public CheckWriter {
public:
    CheckText(Console& console, std::size_t files) : console_(console), files_(files) {}

    FindingSink& beginFile(const std::string& path) override {
        ++file_;
        path_ = escape(path);
        findings_ = FindingCollection(shownPerCode);
        return findings_;
    }

    void endFile() override {
        const FindingCounts& counts = findings_.counts();
        console_.print(summaryText(findings_, path_, console_.style()));
        console_.print(fmt::format("{}: {}\n", path_, countsText(counts)));
        if (counts.sum() > 0 && file_ < files_)
            console_.print("\n");
        sum_ += counts;
    }

    void end() override {
        if (files_ > 1)
            console_.print(fmt::format("{} files: {}\n", files_, countsText(sum_)));
    }

private:
    static constexpr std::size_t shownPerCode = 10;

    Console& console_;
    std::size_t files_;
    std::size_t file_ = 0; ///< The number of the present one, from 1.
    std::string path_;
    FindingCollection findings_;
    FindingCounts sum_;
};

} // namespace

std::unique_ptr<CheckWriter> makeCheckText(Console& console, std::size_t files) {
    return std::make_unique<CheckText>(console, files);
}
