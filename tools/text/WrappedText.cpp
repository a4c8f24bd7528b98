#include "tools/text/WrappedText.h"

#include <algorithm>

namespace {

std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

} // namespace

std::string wrapped(std::string_view text, std::size_t indent, std::size_t width) {
    std::string lines;
    std::size_t column = indent;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        const std::size_t length = characters(word);
        if (!lines.empty() && column + 1 + length > width) {
            lines += "\n" + std::string(indent, ' ');
            column = indent;
        } else if (!lines.empty()) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += length;
    }
    return lines;
}
