#include "tools/check/OpenElement.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "tools/text/SourceText.h"

namespace {

constexpr const char* afterName = " \t\r\n/>";

/// Where something ends that is neither an element nor a text; nothing when there is none.
std::optional<std::size_t> endOfOther(std::string_view text, std::size_t offset) {
    using Ends = std::pair<std::string_view, std::string_view>;
    constexpr std::array<Ends, 4> others = {Ends{"<!--", "-->"}, Ends{"<![CDATA[", "]]>"},
                                            Ends{"<?", "?>"}, Ends{"<!", ">"}};
    for (const auto& [begin, end] : others) {
        if (text.substr(offset, begin.size()) != begin)
            continue;
        const std::size_t found = text.find(end, offset + begin.size());
        return std::min(found, text.size() - end.size()) + end.size();
    }
    return std::nullopt;
}

} // namespace

std::optional<OpenElement> innermostOpenElement(std::string_view text) {
    std::vector<std::size_t> open;
    std::size_t offset = text.find('<');
    while (offset != std::string_view::npos) {
        std::size_t end = 0;
        if (const auto other = endOfOther(text, offset)) {
            end = std::max(*other, offset + 1);
        } else {
            end = endOfTag(text, offset);
            const bool complete = text[end - 1] == '>';
            if (complete && text[offset + 1] == '/') {
                if (!open.empty())
                    open.pop_back();
            } else if (complete && text[end - 2] != '/') {
                open.push_back(offset);
            }
        }
        offset = text.find('<', end);
    }
    if (open.empty())
        return std::nullopt;
    const std::size_t name = open.back() + 1;
    const std::size_t end = text.find_first_of(afterName, name);
    return OpenElement{std::string(text.substr(name, end - name)), open.back()};
}
