#ifndef QENXML_TOOLS_OUTPUT_JSONWRITER_H
#define QENXML_TOOLS_OUTPUT_JSONWRITER_H

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "tools/output/Output.h"

/// A JSON document written from its beginning to its end, so that not all of it is in memory at
/// once. Members are indented and come in the order in which they are written.
///
/// Values are texts, numbers, truth values and null. An object or an array of the JSON library is
/// none: it needs memory to go away, and ends the process where there is none left.
class JsonWriter {
public:
    explicit JsonWriter(TextSink sink) : sink_(std::move(sink)) {}

    // What an array holds, or the document itself.
    void beginObject();
    void element(const nlohmann::ordered_json& value);

    // What an object holds.
    void beginObject(std::string_view key);
    void beginArray(std::string_view key);
    void member(std::string_view key, const nlohmann::ordered_json& value);

    void endObject() { end('}'); }
    void endArray() { end(']'); }

    /// Ends the document.
    void endDocument();

private:
    void begin(char bracket);
    void end(char bracket);
    void startItem();
    void startItem(std::string_view key);
    void startLine();
    void flush();

    TextSink sink_;
    std::string text_; // what the sink has not got yet
    std::size_t depth_ = 0;
    bool empty_ = true; // the innermost object or array
};

/// Appends a text as a string of JSON in one line: with what is not seen escaped, and what is no
/// valid UTF-8 replaced.
void appendJson(std::string& json, std::string_view text);

/// A text as JSON: what is no valid UTF-8 in it is replaced.
nlohmann::ordered_json jsonText(std::string_view text);

/// A number as JSON, which reads back as the same number. JSON knows no others than finite ones;
/// the texts "NaN", "Infinity" and "-Infinity" stand for those.
nlohmann::ordered_json jsonNumber(double number);

#endif
