#include "tools/report/Html.h"

#include <algorithm>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/report/MapLettering.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

/// Code points that are reserved as no characters, which HTML forbids.
bool isForbidden(char32_t c) {
    return (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFEU) == 0xFFFEU;
}

} // namespace

std::string htmlOfEscaped(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        if (isForbidden(character.codePoint))
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

std::string html(std::string_view text) {
    return htmlOfEscaped(escape(text));
}

std::string htmlName(std::string_view text) {
    return text.empty() ? "" : "<bdi>" + html(text) + "</bdi>";
}

std::string htmlRecordName(std::string_view name, const char* otherwise) {
    return name.empty() ? otherwise : htmlName(shortName(name));
}

std::string shortName(std::string_view name) {
    constexpr std::size_t mostCharacters = 200;
    return shortened(name, mostCharacters);
}

std::string htmlIdentifier(const boost::uuids::uuid& id) {
    return fmt::format("<span class=\"id\">{}</span>", to_string(id));
}

std::string htmlWithCode(std::string_view text) {
    std::string result;
    for (bool isCode = false; !text.empty(); isCode = !isCode) {
        const std::string part = html(text.substr(0, text.find('`')));
        result += isCode ? "<code>" + part + "</code>" : part;
        text.remove_prefix(std::min(text.find('`'), text.size() - 1) + 1);
    }
    return result;
}
