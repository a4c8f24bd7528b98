#include "tools/findings/CheckSarif.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "model/version.h"
#include "tools/findings/FindingSarif.h"
#include "tools/findings/Fingerprint.h"
#include "tools/text/UriPath.h"

namespace {

/// Writes a finding in a line as it comes, and behind all of them the rules that they broke.
class CheckSarif : public CheckWriter, FindingSink {
public:
    explicit CheckSarif(Console& console) : console_(console) {}

    void begin() override {
        // Lines and columns are those of SourceText.
        console_.print(R"({"$schema":"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/)"
                       R"(schemas/sarif-schema-2.1.0.json","version":"2.1.0","runs":[{)"
                       "\n"
                       R"("columnKind":"unicodeCodePoints","newlineSequences":["\r\n","\n","\r"],)"
                       "\n\"results\":[");
    }

    FindingSink& beginFile(const std::string& path) override {
        uri_ = uriOfPath(path);
        fingerprints_ = FingerprintTexts(path);
        return *this;
    }

    void endFile() override {}

    void end() override {
        console_.print("],\n"
                       R"("tool":{"driver":{"name":"qenxml","version":")" QENXML_VERSION
                       R"(","rules":[)");
        for (const FindingCode code : rules_)
            console_.print(
                fmt::format("{}\n  {}", code == rules_.front() ? "" : ",", toSarifRule(code)));
        console_.print(fmt::format("]}}}},\n"
                                   R"("invocations":[{{"executionSuccessful":{}}}]}}]}})"
                                   "\n",
                                   allRead_));
    }

    bool wants(FindingCode) const override { return true; }
    void add(const Finding& finding) override {
        console_.print(rules_.empty() ? "\n  " : ",\n  ");
        const SarifPlace place{ruleOf(finding.code), uri_, fingerprints_.next(finding)};
        console_.print(toSarif(finding, place));
        allRead_ = allRead_ && finding.code != FindingCode::Unreadable;
    }

private:
    std::size_t ruleOf(FindingCode code) {
        const auto rule = std::find(rules_.begin(), rules_.end(), code);
        const auto index = static_cast<std::size_t>(rule - rules_.begin());
        if (rule == rules_.end())
            rules_.push_back(code);
        return index;
    }

    Console& console_;
    std::string uri_;
    FingerprintTexts fingerprints_;
    std::vector<FindingCode> rules_; ///< Those of the findings so far.
    bool allRead_ = true;
};

} // namespace

std::unique_ptr<CheckWriter> makeCheckSarif(Console& console, const CheckScope& /*scope*/) {
    return std::make_unique<CheckSarif>(console);
}
