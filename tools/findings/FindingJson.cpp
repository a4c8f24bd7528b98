#include "tools/findings/FindingJson.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace {

const char* word(Severity severity) {
    return severity == Severity::Error     ? "error"
           : severity == Severity::Warning ? "warning"
                                           : "note";
}

} // namespace

// Put together by hand: an object of the JSON library needs memory to go away, and ends the process
// where there is none left.
std::string toJson(const Finding& finding) {
    std::string json =
        fmt::format(R"({{"code":{},"severity":"{}")", toJson(finding.code), word(finding.severity));
    if (finding.position)
        json += fmt::format(R"(,"line":{},"column":{})", finding.position->line,
                            finding.position->column);
    json += fmt::format(R"(,"path":{},"records":{},"found":{},"consequence":{}}})",
                        toJson(finding.path), toJson(finding.records), toJson(finding.found),
                        toJson(finding.consequence));
    return json;
}

std::string toJson(const std::string& text) {
    return nlohmann::json(text).dump();
}
