#include "tools/text/NameSuggestion.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace {

constexpr std::size_t longestName = 32; // longer than any name of the format

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// How many characters have to be added, removed, replaced or swapped with their neighbours to make
/// one text of the other, whatever their case.
std::size_t editDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> current(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        current[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(current);
        current[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const auto same = [&](std::size_t x, std::size_t y) {
                return lowerCase(a[i - x]) == lowerCase(b[j - y]);
            };
            current[j] = std::min({last[j] + 1, current[j - 1] + 1, last[j - 1] + !same(1, 1)});
            if (i > 1 && j > 1 && same(1, 2) && same(2, 1))
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
        }
    }
    return current[b.size()];
}

/// Whether a name is a word and a text, whatever the case of its letters: "RecID" and "id".
bool isSuffix(std::string_view text, std::string_view name) {
    return text.size() > 1 && text.size() < name.size() &&
           editDistance(text, name.substr(name.size() - text.size())) == 0;
}

/// Whether two names begin alike, for most of the length of the one that is right.
bool beginAlike(std::string_view text, std::string_view name) {
    constexpr std::size_t shortest = 5;
    std::size_t same = 0;
    while (same < text.size() && same < name.size() &&
           lowerCase(text[same]) == lowerCase(name[same]))
        ++same;
    return same >= shortest && same * 4 >= name.size() * 3;
}

} // namespace

std::string_view nearestName(std::string_view misspelt, const std::vector<const char*>& names) {
    misspelt.remove_prefix(std::min(misspelt.size(), misspelt.rfind(':') + 1));
    if (misspelt.size() > longestName)
        return {};
    std::string_view nearest;
    std::size_t smallest = std::max<std::size_t>(misspelt.size() / 3, 1) + 1;
    for (const std::string_view name : names) {
        const std::size_t difference =
            std::max(name.size(), misspelt.size()) - std::min(name.size(), misspelt.size());
        if (difference >= smallest)
            continue;
        const std::size_t distance = editDistance(misspelt, name);
        if (distance < smallest && distance < name.size()) {
            smallest = distance;
            nearest = name;
        }
    }
    if (!nearest.empty())
        return nearest;
    for (const std::string_view name : names) {
        if (isSuffix(misspelt, name) && (nearest.empty() || name.size() < nearest.size()))
            nearest = name;
    }
    for (const std::string_view name : names) {
        if (nearest.empty() && beginAlike(misspelt, name))
            nearest = name;
    }
    return nearest;
}
