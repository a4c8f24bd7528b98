#include "tools/findings/CheckText.h"

#include <fmt/format.h>

#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingStatistics.h"
#include "tools/findings/FindingSummary.h"
#include "tools/findings/FindingText.h"
#include "tools/findings/StatisticsText.h"
#include "tools/text/Escape.h"

namespace {

class CheckText : public CheckWriter {
public:
    CheckText(Console& console, const CheckScope& scope)
        : console_(console),
          detail_(scope.detail),
          isOne_(scope.isOne),
          shownPerCode_(detail_ >= Detail::Findings ? mostShown : 0) {}

    FindingSink& beginFile(const std::string& path) override {
        path_ = escape(path);
        findings_ = FindingCollection(shownPerCode_, statistics_.counts());
        return findings_;
    }

    void endFile() override {
        statistics_.addFile(path_, findings_.counts());
        const std::string findings = summaryText(findings_, path_, console_.style());
        if (findings.empty() && (isOne_ || detail_ < Detail::AllFiles))
            return;
        print(findings + (isOne_ ? "" : countsLine()), endsWithFindings_);
        endsWithFindings_ = !findings.empty();
    }

    void end() override {
        if (statistics_.files() == 0)
            return;
        if (detail_ == Detail::Statistics || (detail_ >= Detail::Findings && !isOne_)) {
            printApart(unreadableText(statistics_, console_.style()));
            printApart(codesText(statistics_, console_.style()) + limitText());
        }
        if (isOne_)
            print(countsLine(), detail_ == Detail::Statistics && hasPrinted_);
        else
            printApart(sumText(statistics_));
    }

private:
    static constexpr std::size_t mostShown = 10;

    std::string countsLine() const {
        return fmt::format("{}: {}\n", path_, countsText(findings_.counts()));
    }

    /// That not all findings are shown, when that is so.
    std::string limitText() const {
        const FindingCounts& counts = statistics_.counts();
        for (const FindingCode code : statistics_.codes()) {
            if (shownPerCode_ > 0 && counts.of(code) > shownPerCode_)
                return fmt::format(
                    "Of each code the first {} findings are shown; --json gives all\n",
                    shownPerCode_);
        }
        return "";
    }

    /// @param apart whether there is an empty line before it
    void print(const std::string& text, bool apart) {
        if (text.empty())
            return;
        console_.print(apart ? "\n" + text : text);
        hasPrinted_ = true;
    }

    void printApart(const std::string& text) { print(text, hasPrinted_); }

    Console& console_;
    Detail detail_;
    bool isOne_; ///< There is only one file.
    std::size_t shownPerCode_;
    std::string path_;
    FindingCollection findings_;
    FindingStatistics statistics_;
    bool hasPrinted_ = false;
    bool endsWithFindings_ = false; ///< What was written last.
};

} // namespace

std::unique_ptr<CheckWriter> makeCheckText(Console& console, const CheckScope& scope) {
    return std::make_unique<CheckText>(console, scope);
}
