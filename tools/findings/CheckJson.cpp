#include "tools/findings/CheckJson.h"

#include <string>
#include <utility>

#include <fmt/format.h>

#include "tools/findings/FindingJson.h"
#include "tools/findings/FindingStatistics.h"
#include "tools/findings/Fingerprint.h"
#include "tools/text/Escape.h"

namespace {

/// Writes the findings of one file.
class FileJson : public FindingSink {
public:
    explicit FileJson(Console& console) : console_(console) {}

    bool wants(FindingCode) const override { return true; }
    void add(const Finding& finding) override {
        console_.print(fmt::format("{}\n    {}", counts_.sum() == 0 ? "" : ",",
                                   toJson(finding, fingerprints_.next(finding))));
        counts_.add(finding.code);
    }

    void begin(const std::string& path) { fingerprints_ = FingerprintTexts(path); }

    /// Of those since the last call.
    FindingCounts takeCounts() { return std::exchange(counts_, {}); }

private:
    Console& console_;
    FindingCounts counts_;
    FingerprintTexts fingerprints_;
};

std::string countsJson(const FindingCounts& counts) {
    return fmt::format(R"("errors": {}, "warnings": {}, "notes": {})", counts.of(Severity::Error),
                       counts.of(Severity::Warning), counts.of(Severity::Note));
}

/// Each code that was found, the gravest first.
std::string codesJson(const FindingStatistics& statistics) {
    std::string json;
    for (const FindingCode code : statistics.codes())
        json += fmt::format(R"({}{{"code": "{}", "severity": "{}", "findings": {}, "files": {}}})",
                            json.empty() ? "\n  " : ",\n  ", kindOf(code).code,
                            wordFor(kindOf(code).severity), statistics.counts().of(code),
                            statistics.filesWith(code));
    return json;
}

class CheckJson : public CheckWriter {
public:
    explicit CheckJson(Console& console) : console_(console), file_(console) {}

    void begin() override { console_.print("{\"files\": ["); }

    FindingSink& beginFile(const std::string& path) override {
        path_ = escape(path);
        file_.begin(path);
        console_.print(fmt::format("{}\n  {{\"file\": {}, \"findings\": [",
                                   statistics_.files() == 0 ? "" : ",", toJson(path_)));
        return file_;
    }

    void endFile() override {
        const FindingCounts counts = file_.takeCounts();
        console_.print(fmt::format("],\n   {}}}", countsJson(counts)));
        statistics_.addFile(path_, counts);
    }

    void end() override {
        console_.print(fmt::format("],\n \"codes\": [{}],\n \"unreadable\": {}, {}}}\n",
                                   codesJson(statistics_), statistics_.unreadable(),
                                   countsJson(statistics_.counts())));
    }

private:
    Console& console_;
    FileJson file_;
    std::string path_;
    FindingStatistics statistics_;
};

} // namespace

std::unique_ptr<CheckWriter> makeCheckJson(Console& console, const CheckScope& /*scope*/) {
    return std::make_unique<CheckJson>(console);
}
