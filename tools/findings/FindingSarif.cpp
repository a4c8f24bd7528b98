#include "tools/findings/FindingSarif.h"

#include <cctype>
#include <string_view>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/findings/Explanation.h"
#include "tools/findings/FindingJson.h"
#include "tools/findings/FindingText.h"
#include "tools/findings/Fingerprint.h"

// Put together by hand, as in FindingJson.cpp.

namespace {

/// The member "name", such as "NotWellFormed" for "not-well-formed". It has to be another word than
/// the identifier, so a code of one word has none.
std::string nameMember(std::string_view code) {
    std::string name;
    bool begins = true;
    for (const char c : code) {
        if (c != '-')
            name += begins ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        begins = c == '-';
    }
    return name.size() == code.size() ? "" : fmt::format(R"("name":"{}",)", name);
}

/// A sentence out of words: "The file cannot be read."
std::string sentence(std::string words) {
    words.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(words.front())));
    return words + (words.back() == '.' ? "" : ".");
}

std::string textJson(const std::string& text) {
    return fmt::format(R"({{"text":{}}})", toJson(text));
}

std::string regionJson(const Finding& finding) {
    if (!finding.location)
        return R"({"startLine":1,"startColumn":1})";
    const Location& place = *finding.location;
    std::string json =
        fmt::format(R"({{"startLine":{},"startColumn":{},"endLine":{},"endColumn":{})",
                    place.begin.line, place.begin.column, place.end.line, place.end.column);
    if (place.isInFile)
        json += fmt::format(R"(,"byteOffset":{},"byteLength":{})", place.extent.offset,
                            place.extent.length);
    return json + "}";
}

/// What stands at the end of a path: "element", "attribute" or "text".
std::string_view kindOfPath(std::string_view path) {
    const std::string_view step = path.substr(path.rfind('/') + 1);
    return step.substr(0, 1) == "@"      ? "attribute"
           : step.substr(0, 4) == "text" ? "text"
                                         : "element";
}

/// The path, and the records from the outermost to the innermost.
std::string logicalLocationsJson(const Finding& finding) {
    std::string json;
    if (!finding.path.empty())
        json += fmt::format(R"({{"fullyQualifiedName":{},"kind":"{}"}})", toJson(finding.path),
                            kindOfPath(finding.path));
    std::string within;
    for (const RecordName& record : finding.records) {
        const std::string id = record.id ? to_string(*record.id) : record.name;
        within += fmt::format("{}{} {}", within.empty() ? "" : ", ", record.kind, id);
        json +=
            fmt::format(R"({}{{"name":{},"fullyQualifiedName":{},"kind":"{}"}})",
                        json.empty() ? "" : ",", toJson(record.name), toJson(within), record.kind);
    }
    return json.empty() ? "" : fmt::format(R"(,"logicalLocations":[{}])", json);
}

} // namespace

std::string toSarifRule(FindingCode code) {
    const FindingKind& kind = kindOf(code);
    const Explanation explanation = explanationOf(code);
    return fmt::format(R"({{"id":"{}",{}"shortDescription":{},"fullDescription":{},"help":{},)"
                       R"("defaultConfiguration":{{"level":"{}"}}}})",
                       kind.code, nameMember(kind.code), textJson(sentence(kind.title)),
                       textJson(sentence(explanation.cause)),
                       textJson(fmt::format("Cause: {}\nExample: {}\nCure: {}", explanation.cause,
                                            explanation.example, explanation.cure)),
                       wordFor(kind.severity));
}

std::string toSarif(const Finding& finding, const SarifPlace& place) {
    return fmt::format(R"({{"ruleId":"{}","ruleIndex":{},"level":"{}","message":{},"locations":[{{)"
                       R"("physicalLocation":{{"artifactLocation":{{"uri":{}}},"region":{}}}{}}}],)"
                       R"("partialFingerprints":{{"{}":"{}"}}}})",
                       kindOf(finding.code).code, place.rule, wordFor(finding.severity()),
                       textJson(sentence(finding.found + "; so: " + consequenceText(finding))),
                       toJson(place.uri), regionJson(finding), logicalLocationsJson(finding),
                       fingerprintName, place.fingerprint);
}
