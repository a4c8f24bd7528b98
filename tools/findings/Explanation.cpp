#include "tools/findings/Explanation.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "tools/text/NameSuggestion.h"

namespace {

/// docs/findings.md: what stands before the entries, and then the entries in the order of their
/// codes.
constexpr std::array document = {
#include "FindingEntries.inc"
};
static_assert(document.size() == findingKinds.size() + 1, "each code has an entry");

/// The text of the point "- **Name.** " of an entry, its lines joined.
std::string point(std::string_view entry, std::string_view name) {
    const std::string opening = fmt::format("\n- **{}.** ", name);
    entry.remove_prefix(entry.find(opening) + opening.size());
    entry = entry.substr(0, entry.find("\n- **"));
    std::string text(entry.substr(0, entry.find("\n\n")));
    for (std::size_t end = text.find("\n  "); end != std::string::npos; end = text.find("\n  "))
        text.replace(end, 3, " ");
    text.erase(text.find_last_not_of('\n') + 1);
    return text;
}

/// Puts the words of each link in its place.
std::string withoutLinks(std::string text) {
    for (std::size_t middle = text.find("]("); middle != std::string::npos;
         middle = text.find("](")) {
        text.erase(middle, text.find(')', middle) + 1 - middle);
        text.erase(text.rfind('[', middle), 1);
    }
    return text;
}

/// What is between the first two "`".
std::string firstCode(const std::string& text) {
    const std::size_t begin = text.find('`') + 1;
    return text.substr(begin, text.find('`', begin) - begin);
}

} // namespace

Explanation explanationOf(FindingCode code) {
    const std::string_view entry = document[static_cast<std::size_t>(code) + 1];
    return {withoutLinks(point(entry, "Cause")), firstCode(point(entry, "Example")),
            withoutLinks(point(entry, "Cure"))};
}

std::optional<FindingCode> codeNamed(std::string_view name) {
    for (std::size_t code = 0; code < findingKinds.size(); ++code) {
        if (name == findingKinds[code].code)
            return static_cast<FindingCode>(code);
    }
    return std::nullopt;
}

std::string describeWrongCode(const std::string& name) {
    if (codeNamed(name))
        return "";
    std::vector<const char*> codes;
    codes.reserve(findingKinds.size());
    for (const FindingKind& kind : findingKinds)
        codes.push_back(kind.code);
    const std::string_view nearest = nearestName(name, codes);
    return fmt::format("\"{}\" is no code of a finding{}", name,
                       nearest.empty() ? "" : fmt::format("; is {} meant?", nearest));
}
