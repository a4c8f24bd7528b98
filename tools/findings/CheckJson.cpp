#include "tools/findings/CheckJson.h"

#include <utility>

#include <fmt/format.h>

#include "tools/check/FindingCollection.h"
#include "tools/findings/FindingJson.h"
#include "tools/text/Escape.h"

namespace {

/// Writes the findings of one file.
class FileJson : public FindingSink {
public:
    explicit FileJson(Console& console) : console_(console) {}

    bool wants(FindingCode) const override { return true; }
    void add(const Finding& finding) override {
        console_.print(fmt::format("{}\n    {}", counts_.sum() == 0 ? "" : ",", toJson(finding)));
        counts_.add(finding.code);
    }

    /// Those since the last call.
    FindingCounts takeCounts() { return std::exchange(counts_, {}); }

private:
    Console& console_;
    FindingCounts counts_;
};

std::string countsJson(const FindingCounts& counts) {
    return fmt::format(R"("errors": {}, "warnings": {}, "notes": {})", counts.of(Severity::Error),
                       counts.of(Severity::Warning), counts.of(Severity::Note));
}

class CheckJson : public CheckWriter {
public:
    explicit CheckJson(Console& console) : console_(console), file_(console) {}

    void begin() override { console_.print("{\"files\": ["); }

    FindingSink& beginFile(const std::string& path) override {
        console_.print(fmt::format("{}\n  {{\"file\": {}, \"findings\": [", isFirst_ ? "" : ",",
                                   toJson(escape(path))));
        isFirst_ = false;
        return file_;
    }

    void endFile() override {
        const FindingCounts counts = file_.takeCounts();
        console_.print(fmt::format("],\n   {}}}", countsJson(counts)));
        sum_ += counts;
    }

    void end() override { console_.print(fmt::format("],\n {}}}\n", countsJson(sum_))); }

private:
    Console& console_;
    FileJson file_;
    bool isFirst_ = true;
    FindingCounts sum_;
};

} // namespace

std::unique_ptr<CheckWriter> makeCheckJson(Console& console, std::size_t /*files*/) {
    return std::make_unique<CheckJson>(console);
}
