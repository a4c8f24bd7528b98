#include "tools/output/Style.h"

#include <fmt/format.h>

bool wantsColour(bool terminal, const char* noColor, const char* term) {
    const bool refused = noColor != nullptr && *noColor != '\0';
    const bool unable = term != nullptr && std::string_view(term) == "dumb";
    return terminal && !refused && !unable;
}

// The attributes are those that any colour terminal knows and that read well on dark and on light
// backgrounds.

std::string Style::kind(std::string_view text) const {
    return styled("36", text); // cyan
}

std::string Style::name(std::string_view text) const {
    return styled("1", text); // bold
}

std::string Style::label(std::string_view text) const {
    return styled("2", text); // dim
}

std::string Style::identifier(std::string_view text) const {
    return styled("2", text); // dim
}

std::string Style::error(std::string_view text) const {
    return styled("1;31", text); // bold red
}

std::string Style::remark(std::string_view text) const {
    return styled("33", text); // yellow
}

std::string Style::styled(const char* attributes, std::string_view text) const {
    if (!coloured_)
        return std::string(text);
    return fmt::format("\x1b[{}m{}\x1b[0m", attributes, text);
}
