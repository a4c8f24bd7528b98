#include "tools/text/Words.h"

#include <algorithm>

#include <fmt/format.h>

#include "tools/text/Escape.h"

std::string plural(std::size_t number, std::string_view noun) {
    return fmt::format("{}{}", noun, number == 1 ? "" : "s");
}

std::string quantity(std::size_t number, std::string_view noun) {
    return grouped(std::to_string(number), ",") + " " + plural(number, noun);
}

std::string thoseBefore(std::size_t number, std::string_view noun) {
    return number == 1 ? fmt::format("the {} before it is", noun)
                       : fmt::format("the {} before it are", quantity(number, noun));
}

std::string grouped(std::string number, std::string_view separator) {
    constexpr std::size_t group = 3;
    constexpr const char* digits = "0123456789";
    const std::size_t begin = std::min(number.find_first_of(digits), number.size());
    std::size_t end = std::min(number.find_first_not_of(digits, begin), number.size());
    for (; end > begin + group; end -= group)
        number.insert(end - group, separator);
    return number;
}

std::string capitalised(std::string_view word) {
    std::string text(word);
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string joined(const std::vector<std::string>& words, std::string_view last) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
        text += fmt::format("{}{}", i == 0 ? "" : i + 1 == words.size() ? last : ", ", words[i]);
    return text;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(whiteSpace), text.size());
    return text.substr(begin, text.find_last_not_of(whiteSpace) + 1 - begin);
}

std::string quoted(std::string_view text) {
    return fmt::format("\"{}\"", escapeExcerpt(text));
}

std::string quotedText(std::string_view text) {
    const std::string_view inner = trimmed(text);
    return quoted(inner.empty() ? text : inner);
}
