#include "tools/files/OriginalName.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace {

constexpr std::string_view form = "00000000-0000-0000-0000-000000000000";

bool isDigit(char c) {
    return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

/// The name of the package whose UUID, with hyphens or without, a text begins with.
std::optional<std::string> nameFrom(std::string_view text, bool hasHyphens) {
    std::string name;
    for (const char place : form) {
        if (place == '-' && !hasHyphens) {
            name += '-';
            continue;
        }
        if (text.empty() || (place == '-' ? text.front() != '-' : !isDigit(text.front())))
            return std::nullopt;
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
        text.remove_prefix(1);
    }
    const bool goesOn = !text.empty() && isDigit(text.front());
    return goesOn ? std::nullopt : std::optional(name + ".xml");
}

} // namespace

std::optional<std::string> originalName(std::string_view path) {
    for (std::string_view rest = path.substr(path.rfind('/') + 1); !rest.empty();
         rest.remove_prefix(1)) {
        const bool isInsideDigits = rest.data() != path.data() && isDigit(*(rest.data() - 1));
        for (const bool hasHyphens : {true, false}) {
            if (auto name = isInsideDigits ? std::nullopt : nameFrom(rest, hasHyphens))
                return name;
        }
    }
    return std::nullopt;
}
