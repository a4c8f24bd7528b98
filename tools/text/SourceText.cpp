#include "tools/text/SourceText.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "tools/text/Encoding.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

/// Where the text begins: behind the byte-order mark.
std::size_t startOf(std::string_view text) {
    return text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
}

/// Goes on by one character.
void advance(std::string_view text, std::size_t& offset, Position& position) {
    const char c = text[offset];
    const bool ascii = static_cast<unsigned char>(c) < 0x80;
    offset += ascii ? 1 : firstCharacter(text.substr(offset)).length;
    const bool firstOfTwo = c == '\r' && offset < text.size() && text[offset] == '\n';
    if (firstOfTwo)
        return; // The line feed after it ends the line.
    if (c == '\n' || c == '\r')
        position = {position.line + 1, 1};
    else
        ++position.column;
}

bool endsLine(char c) {
    return c == '\n' || c == '\r';
}

bool continuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

/// A part of a line, safe to print, with every tab as one space.
std::string shown(std::string_view text) {
    std::string spaced(text);
    std::replace(spaced.begin(), spaced.end(), '\t', ' ');
    return escape(spaced);
}

} // namespace

SourceText::SourceText(std::string bytes)
    : encoding_(encodingOf(bytes)),
      utf8_(toUtf8(std::move(bytes), encoding_)),
      marks_{{startOf(utf8_), {1, 1}}} {}

void SourceText::setMarksUpTo(std::size_t offset) const {
    constexpr std::size_t distance = 1024;
    const std::string_view text = utf8_;
    Mark mark = marks_.back();
    while (mark.offset < offset) {
        // A line feed is not told from the rest of a line end without what is before it.
        if (mark.offset >= marks_.back().offset + distance && text[mark.offset] != '\n')
            marks_.push_back(mark);
        advance(text, mark.offset, mark.position);
    }
}

pugi::xml_parse_result SourceText::load(pugi::xml_document& document) const {
    return document.load_buffer(utf8_.data(), utf8_.size(), pugi::parse_default,
                                pugi::encoding_utf8);
}

Position SourceText::position(std::size_t offset) const {
    const std::string_view text = utf8_;
    const std::string_view before = text.substr(0, characterStart(text, offset));
    setMarksUpTo(before.size());
    const auto after =
        std::upper_bound(marks_.begin(), marks_.end(), before.size(),
                         [](std::size_t wanted, const Mark& mark) { return wanted < mark.offset; });
    Mark mark = after == marks_.begin() ? marks_.front() : *std::prev(after);
    while (mark.offset < before.size())
        advance(before, mark.offset, mark.position);
    return mark.position;
}

Extent SourceText::wholeText(pugi::xml_node text) const {
    const auto begin = static_cast<std::size_t>(text.offset_debug());
    const std::size_t end =
        text.type() == pugi::node_cdata ? utf8_.find("]]>", begin) : utf8_.find('<', begin);
    return {begin, std::min(end, utf8_.size()) - begin};
}

Extent SourceText::extent(pugi::xml_node node) const {
    if (node.type() == pugi::node_element) {
        const auto begin = static_cast<std::size_t>(node.offset_debug() - 1); // before the name
        return {begin, endOfTag(utf8_, begin) - begin};
    }
    constexpr const char* whiteSpace = " \t\r\n";
    const Extent whole = wholeText(node);
    const std::string_view written = this->text().substr(whole.offset, whole.length);
    // A text of white space only stands in a CDATA section, or is written as "&#32;".
    const std::size_t before = written.find_first_not_of(whiteSpace);
    if (before == std::string_view::npos)
        return whole;
    return {whole.offset + before, written.find_last_not_of(whiteSpace) + 1 - before};
}

Extent SourceText::extent(pugi::xml_node element, pugi::xml_attribute attribute) const {
    // Names and values stay where they are in the text.
    const auto begin =
        static_cast<std::size_t>(element.offset_debug() + (attribute.value() - element.name()));
    return {begin, utf8_.find(utf8_[begin - 1], begin) - begin};
}

Location SourceText::location(Extent extent) const {
    return {extent, position(extent.offset), position(extent.offset + extent.length),
            excerpt(extent.offset), encoding_ == pugi::encoding_utf8};
}

Excerpt SourceText::excerpt(std::size_t offset) const {
    constexpr std::size_t width = 100; // bytes shown at most
    constexpr std::size_t before = 60; // of them before the place
    constexpr std::string_view more = "...";
    const std::string_view text = utf8_;
    offset = characterStart(text, std::clamp(offset, startOf(text), text.size()));
    std::size_t begin = offset;
    while (begin > startOf(text) && offset - begin < before && !endsLine(text[begin - 1]))
        --begin;
    std::size_t end = offset;
    while (end < text.size() && end - begin < width && !endsLine(text[end]))
        ++end;
    while (begin < offset && continuesCharacter(text[begin]))
        ++begin;
    while (end > offset && end < text.size() && continuesCharacter(text[end]))
        --end;

    const bool cutBefore = begin > startOf(text) && !endsLine(text[begin - 1]);
    const bool cutAfter = end < text.size() && !endsLine(text[end]);
    Excerpt excerpt;
    excerpt.line = (cutBefore ? more : "");
    excerpt.line += shown(text.substr(begin, offset - begin));
    for (std::string_view rest = excerpt.line; !rest.empty(); ++excerpt.caret)
        rest.remove_prefix(firstCharacter(rest).length);
    excerpt.line += shown(text.substr(offset, end - offset));
    excerpt.line += (cutAfter ? more : "");
    return excerpt;
}

Extent nameExtent(pugi::xml_node element, pugi::xml_attribute attribute) {
    const std::string_view name = attribute.name();
    return {static_cast<std::size_t>(element.offset_debug() + (name.data() - element.name())),
            name.size()};
}

std::size_t endOfTag(std::string_view text, std::size_t offset) {
    char quote = '\0';
    for (; offset < text.size(); ++offset) {
        const char c = text[offset];
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == '>')
            return offset + 1;
    }
    return std::string_view::npos;
}
