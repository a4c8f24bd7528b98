#include "tools/report/Html.h"

#include "tools/text/Utf8.h"

namespace {

/// Control characters, and code points that are reserved as no characters.
bool isForbidden(char32_t c) {
    const bool control = (c < 0x20 && c != '\t' && c != '\n') || (c >= 0x7F && c <= 0x9F);
    return control || (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFEU) == 0xFFFEU;
}

} // namespace

std::string html(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        if (!character.valid || isForbidden(character.codePoint))
            appendUtf8(result, 0xFFFD);
        else if (character.codePoint == '&')
            result += "&amp;";
        else if (character.codePoint == '<')
            result += "&lt;";
        else if (character.codePoint == '>')
            result += "&gt;";
        else if (character.codePoint == '"')
            result += "&quot;";
        else if (character.codePoint == '\'')
            result += "&#39;";
        else
            result += text.substr(0, character.length);
        text.remove_prefix(character.length);
    }
    return result;
}

std::string htmlName(std::string_view text) {
    return text.empty() ? "" : "<bdi>" + html(text) + "</bdi>";
}
