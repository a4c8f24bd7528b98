#include "tools/JsonWriter.h"

#include <cmath>
#include <cstddef>

#include "tools/NumberText.h"
#include "tools/Utf8.h"

namespace {

constexpr std::size_t indentPerLevel = 2;

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
    text_ += value.dump();
}

void JsonWriter::member(std::string_view key, const nlohmann::ordered_json& value) {
    startItem(key);
    text_ += value.dump();
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

nlohmann::ordered_json jsonText(std::string_view text) {
    return validUtf8(text);
}

nlohmann::ordered_json jsonNumber(double number) {
    if (std::isfinite(number))
        return number;
    return numberText(number);
}
