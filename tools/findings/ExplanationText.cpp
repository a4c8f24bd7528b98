#include "tools/findings/ExplanationText.h"

#include <string_view>

#include <fmt/format.h>

#include "tools/findings/FindingJson.h"
#include "tools/text/WrappedText.h"

namespace {

std::string pointText(std::string_view label, const std::string& text, const Style& style) {
    constexpr std::size_t indent = 11;
    const std::string blanks(indent - 2 - label.size(), ' ');
    return fmt::format("  {}{}{}\n", style.label(label), blanks, wrapped(text, indent));
}

} // namespace

std::string explanationText(FindingCode code, const Style& style) {
    const FindingKind& kind = kindOf(code);
    const Explanation explanation = explanationOf(code);
    return fmt::format("{} ({}): {}\n", style.name(kind.code), wordFor(kind.severity), kind.title) +
           pointText("cause", explanation.cause, style) +
           pointText("example", explanation.example, style) +
           pointText("cure", explanation.cure, style);
}

std::string explanationJson(FindingCode code) {
    const FindingKind& kind = kindOf(code);
    const Explanation explanation = explanationOf(code);
    return fmt::format(
        R"({{"code":"{}","severity":"{}","title":{},"cause":{},"example":{},"cure":{}}})",
        kind.code, wordFor(kind.severity), toJson(std::string(kind.title)),
        toJson(explanation.cause), toJson(explanation.example), toJson(explanation.cure));
}
