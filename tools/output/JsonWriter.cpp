#include "tools/output/JsonWriter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include <fmt/format.h>

#include "tools/text/Escape.h"
#include "tools/text/NumberText.h"
#include "tools/text/Utf8.h"

namespace {

constexpr std::size_t indentPerLevel = 2;

/// Appends a character as JSON escapes it: by its one or two units of UTF-16.
void appendUnits(std::string& text, char32_t c) {
    constexpr char32_t firstOfPairs = 0x10000;
    const auto out = std::back_inserter(text);
    if (c < firstOfPairs) {
        fmt::format_to(out, "\\u{:04x}", static_cast<unsigned>(c));
        return;
    }
    const auto rest = static_cast<unsigned>(c - firstOfPairs);
    fmt::format_to(out, "\\u{:04x}\\u{:04x}", 0xD800U + (rest >> 10U), 0xDC00U + (rest & 0x3FFU));
}

/// Appends a value with what is not seen in its texts escaped, of which the standard asks for that
/// below U+0020 only. It means the same, and can be shown on a terminal.
void appendValue(std::string& text, const nlohmann::ordered_json& value) {
    const std::string dumped = value.dump();
    for (std::string_view rest = dumped; !rest.empty();) {
        const Utf8Character character = firstCharacter(rest);
        if (isUnseen(character.codePoint))
            appendUnits(text, character.codePoint);
        else
            text += rest.substr(0, character.length);
        rest.remove_prefix(character.length);
    }
}

} // namespace

void JsonWriter::beginObject() {
    startItem();
    begin('{');
}

void JsonWriter::beginObject(std::string_view key) {
    startItem(key);
    begin('{');
}

void JsonWriter::beginArray(std::string_view key) {
    startItem(key);
    begin('[');
}

void JsonWriter::element(const nlohmann::ordered_json& value) {
    startItem();
    appendValue(text_, value);
}

void JsonWriter::member(std::string_view key, const nlohmann::ordered_json& value) {
    startItem(key);
    appendValue(text_, value);
}

void JsonWriter::endDocument() {
    text_ += '\n';
    flush();
}

void JsonWriter::begin(char bracket) {
    text_ += bracket;
    ++depth_;
    empty_ = true;
}

void JsonWriter::end(char bracket) {
    --depth_;
    if (!empty_)
        startLine();
    text_ += bracket;
    empty_ = false;
}

void JsonWriter::startItem() {
    constexpr std::size_t enough = 65536;
    if (text_.size() > enough)
        flush();
    if (depth_ == 0) // the document
        return;
    if (!empty_)
        text_ += ',';
    startLine();
    empty_ = false;
}

void JsonWriter::startItem(std::string_view key) {
    startItem();
    text_ += nlohmann::ordered_json(key).dump();
    text_ += ": ";
}

void JsonWriter::startLine() {
    text_ += '\n';
    text_.append(depth_ * indentPerLevel, ' ');
}

void JsonWriter::flush() {
    sink_(text_);
    text_.clear();
}

void appendJson(std::string& json, std::string_view text) {
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) {
        return c >= ' ' && c <= '~' && c != '"' && c != '\\';
    });
    if (isPlain)
        json.append("\"").append(text).append("\"");
    else
        appendValue(json, jsonText(text));
}

nlohmann::ordered_json jsonText(std::string_view text) {
    return validUtf8(text);
}

nlohmann::ordered_json jsonNumber(double number) {
    if (std::isfinite(number))
        return number;
    return numberText(number);
}
