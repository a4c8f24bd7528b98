#include "tools/check/OpenElement.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr const char* afterName = " \t\r\n/>";

/// Where a tag ends: behind its ">", which may stand in a value, too.
std::size_t endOfTag(std::string_view text, std::size_t place) {
    char quote = '\0';
    for (; place < text.size(); ++place) {
        const char c = text[place];
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == '>')
            return place + 1;
    }
    return place;
}

/// Where something ends that is neither an element nor a text; nothing when there is none.
std::optional<std::size_t> endOfOther(std::string_view text, std::size_t place) {
    using Ends = std::pair<std::string_view, std::string_view>;
    constexpr std::array<Ends, 4> others = {Ends{"<!--", "-->"}, Ends{"<![CDATA[", "]]>"},
                                            Ends{"<?", "?>"}, Ends{"<!", ">"}};
    for (const auto& [begin, end] : others) {
        if (text.substr(place, begin.size()) != begin)
            continue;
        const std::size_t found = text.find(end, place + begin.size());
        return std::min(found, text.size() - end.size()) + end.size();
    }
    return std::nullopt;
}

} // namespace

std::optional<OpenElement> innermostOpenElement(std::string_view text) {
    std::vector<std::size_t> open;
    std::size_t place = text.find('<');
    while (place != std::string_view::npos) {
        std::size_t end = 0;
        if (const auto other = endOfOther(text, place)) {
            end = std::max(*other, place + 1);
        } else {
            end = endOfTag(text, place);
            const bool complete = text[end - 1] == '>';
            if (complete && text[place + 1] == '/') {
                if (!open.empty())
                    open.pop_back();
            } else if (complete && text[end - 2] != '/') {
                open.push_back(place);
            }
        }
        place = text.find('<', end);
    }
    if (open.empty())
        return std::nullopt;
    const std::size_t name = open.back() + 1;
    const std::size_t end = text.find_first_of(afterName, name);
    return OpenElement{std::string(text.substr(name, end - name)), open.back()};
}
