#include "tools/check/OpenElement.h"

#include <algorithm>
#include <array>

#include "tools/text/SourceText.h"
#include "tools/text/Utf8.h"

namespace {

constexpr const char* afterName = " \t\r\n/>";

/// Markup by how it begins and ends.
struct Markup {
    std::string_view begin;
    std::string_view end;
    const char* name;
};

constexpr std::array<Markup, 4> markupOfOtherKinds = {
    Markup{"<!--", "-->", "a comment"}, Markup{"<![CDATA[", "]]>", "a text in CDATA"},
    Markup{"<?", "?>", "a declaration"}, Markup{"<!", ">", "a declaration"}};

/// What begins at an offset.
Markup markupAt(std::string_view text, std::size_t offset) {
    for (const Markup& other : markupOfOtherKinds) {
        if (text.substr(offset, other.begin.size()) == other.begin)
            return other;
    }
    return {"<", ">", "a tag"};
}

/// Where markup ends that begins at an offset; npos when it does not.
std::size_t endOf(const Markup& markup, std::string_view text, std::size_t offset) {
    if (markup.begin == "<")
        return endOfTag(text, offset);
    const std::size_t found = text.find(markup.end, offset + markup.begin.size());
    return found == std::string_view::npos ? found : found + markup.end.size();
}

/// Takes account of a complete tag.
void follow(std::vector<OpenElement>& open, std::string_view tag, std::size_t offset) {
    if (tag[1] == '/') {
        if (!open.empty())
            open.pop_back();
    } else if (tag[tag.size() - 2] != '/') {
        const std::size_t end = tag.find_first_of(afterName);
        open.push_back({std::string(tag.substr(1, end - 1)), offset});
    }
}

} // namespace

OpenMarkup openMarkup(std::string_view text) {
    OpenMarkup open;
    while ((open.end = text.find('<', open.end)) != std::string_view::npos) {
        const Markup markup = markupAt(text, open.end);
        const std::size_t end = endOf(markup, text, open.end);
        if (end == std::string_view::npos) {
            open.unfinished = markup.name;
            return open;
        }
        if (markup.begin == "<")
            follow(open.elements, text.substr(open.end, end - open.end), open.end);
        open.end = end;
    }
    open.end = text.size();
    return open;
}

std::string_view afterMarkAndBlanks(std::string_view text) {
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return text;
}

std::string_view rootName(std::string_view text) {
    for (std::size_t begin = 0;;) {
        begin = text.find('<', begin);
        if (begin == std::string_view::npos)
            return {};
        const Markup markup = markupAt(text, begin);
        if (markup.begin == "<") {
            text.remove_prefix(begin + 1);
            return text.substr(0, text.find_first_of(afterName));
        }
        begin = endOf(markup, text, begin);
    }
}
