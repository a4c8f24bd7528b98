#include "tools/check/FindingJson.h"

#include <nlohmann/json.hpp>

namespace {

const char* word(Severity severity) {
    return severity == Severity::Error     ? "error"
           : severity == Severity::Warning ? "warning"
                                           : "note";
}

} // namespace

std::string toJson(const Finding& finding) {
    nlohmann::ordered_json json = {{"code", finding.code}, {"severity", word(finding.severity)}};
    if (finding.position) {
        json["line"] = finding.position->line;
        json["column"] = finding.position->column;
    }
    json["path"] = finding.path;
    json["records"] = finding.records;
    json["found"] = finding.found;
    json["consequence"] = finding.consequence;
    return json.dump();
}

std::string toJson(const std::string& text) {
    return nlohmann::json(text).dump();
}
