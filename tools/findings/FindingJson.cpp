#include "tools/findings/FindingJson.h"

#include <array>
#include <string_view>
#include <variant>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "tools/findings/FindingText.h"

// Put together by hand: an object of the JSON library needs memory to go away, and ends the process
// where there is none left.

namespace {

/// The kind of a consequence, and its values as further members of its object.
struct Members {
    std::string operator()(const Kept&) const { return R"("kept")"; }
    std::string operator()(const Dropped& dropped) const {
        return fmt::format(R"("dropped","what":{})", toJson(dropped.what));
    }
    std::string operator()(const ReadAs& read) const {
        return fmt::format(R"("read-as","value":{},"onceComplete":{})", toJson(read.value),
                           read.onceComplete);
    }
    std::string operator()(const Replaces& other) const {
        return fmt::format(R"("replaces","record":"{}","line":{},"fields":{},"recs":{})",
                           other.record, other.line, other.fields, other.recs);
    }
    std::string operator()(const Without& without) const {
        constexpr std::array<std::string_view, 3> parts = {"product", "operation", "season"};
        std::string json = fmt::format(R"("without","part":"{}")",
                                       parts.at(static_cast<std::size_t>(without.part)));
        if (!without.name.empty())
            json += fmt::format(R"(,"name":{})", toJson(without.name));
        if (!without.nextError.empty())
            json += fmt::format(R"(,"nextError":{})", toJson(without.nextError));
        return json;
    }
    std::string operator()(const NothingRead&) const { return R"("nothing-read")"; }
    std::string operator()(const ReadingEnds& end) const {
        return fmt::format(R"("reading-ends","growers":{})", end.growers);
    }
    std::string operator()(const NotReached& end) const {
        return fmt::format(R"("not-reached","line":{},"errors":{},"sameGrower":{})", end.line,
                           end.errors, end.sameGrower);
    }
    std::string operator()(const CheckEnds&) const { return R"("check-ends")"; }
    std::string operator()(const Merges& merges) const {
        std::string versions;
        for (const MergedVersion& version : merges.versions)
            versions += (versions.empty() ? "" : ",") + versionJson(version);
        return fmt::format(
            R"("merges","versions":[{}],"more":{}{})", versions, merges.more,
            merges.editedLast ? fmt::format(R"(,"editedLast":{})", *merges.editedLast) : "");
    }

private:
    static std::string versionJson(const MergedVersion& version) {
        std::string values;
        for (const auto& [name, text] : version.values)
            values += fmt::format(R"({}{{"name":{},"text":{}}})", values.empty() ? "" : ",",
                                  toJson(name), toJson(text));
        return fmt::format(R"({{"file":{},"packages":{},"canCount":{},"values":[{}]}})",
                           toJson(version.file), version.packages, version.canCount, values);
    }
};

std::string locationMembers(const Location& location) {
    return fmt::format(
        R"(,"line":{},"column":{},"endLine":{},"endColumn":{},"offset":{},"length":{},)"
        R"("excerpt":{{"text":{},"caret":{}}})",
        location.begin.line, location.begin.column, location.end.line, location.end.column,
        location.extent.offset, location.extent.length, toJson(location.excerpt.line),
        location.excerpt.caret);
}

std::string recordJson(const RecordName& record) {
    return fmt::format(R"({{"kind":"{}","name":{}{}}})", record.kind, toJson(record.name),
                       record.id ? fmt::format(R"(,"id":"{}")", to_string(*record.id)) : "");
}

} // namespace

std::string toJson(const Finding& finding, const std::string& fingerprint) {
    std::string json = fmt::format(R"({{"code":"{}","severity":"{}")", kindOf(finding.code).code,
                                   wordFor(finding.severity()));
    if (finding.location)
        json += locationMembers(*finding.location);
    json += fmt::format(R"(,"path":{},"records":[)", toJson(finding.path));
    for (const RecordName& record : finding.records)
        json += (&record == &finding.records.front() ? "" : ",") + recordJson(record);
    json +=
        fmt::format(R"(],"found":{},"consequence":{{"kind":{},"text":{}}},"fingerprint":"{}"}})",
                    toJson(finding.found), std::visit(Members(), finding.consequence),
                    toJson(consequenceText(finding)), fingerprint);
    return json;
}

std::string toJson(const std::string& text) {
    return nlohmann::json(text).dump();
}
