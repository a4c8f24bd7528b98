#include "tools/export/ExportCsv.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "tools/export/RowExport.h"
#include "tools/text/Escape.h"
#include "tools/text/NumberText.h"
#include "tools/text/Utf8.h"

namespace {

bool isOneOf(std::u32string_view characters, char32_t c) {
    return characters.find(c) != std::u32string_view::npos;
}

bool beginsAFormula(char32_t c) {
    // Wide and small forms count, too: some input methods turn them into the plain ones.
    return isOneOf(U"=+-@\uFF1D\uFF0B\uFF0D\uFF20\uFE66\uFE62\uFE63\uFE6B", c);
}

/// Whether a new cell may begin after a character. All programs know that a comma in quotes is a
/// part of the text; but those that split lines at other characters take the quotes for a part of
/// the text as well, and line ends for the end of a row.
bool mayEndACell(char32_t c) {
    return isOneOf(U";\t\r\n\u2028\u2029", c);
}

/// Whether a program may skip a character at the beginning of a cell.
bool mayBeSkipped(char32_t c) {
    const bool space =
        (c >= 0x2000 && c <= 0x200A) || isOneOf(U" \u00A0\u1680\u202F\u205F\u3000", c);
    const bool joinerOrSelector =
        isOneOf(U"\u200C\u200D", c) || (c >= 0xFE00 && c <= 0xFE0F) || (c >= 0x180B && c <= 0x180D);
    return space || joinerOrSelector || c == '"' || isUnseen(c);
}

bool isForbidden(char32_t c) {
    return (c < 0x20 && !mayEndACell(c)) || (c >= 0x7F && c <= 0x9F);
}

/// The text with an apostrophe before each formula that a cell could begin with.
std::string withoutFormulas(std::string_view text) {
    std::string result;
    bool atBeginning = true;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const char32_t c = character.codePoint;
        if (atBeginning && beginsAFormula(c))
            result += '\'';
        atBeginning = mayEndACell(c) || (atBeginning && mayBeSkipped(c));
        result += text.substr(0, character.length);
        text.remove_prefix(character.length);
    }
    return result;
}

std::string withoutForbidden(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        if (character.valid && !isForbidden(character.codePoint))
            result += text.substr(0, character.length);
        else
            appendUtf8(result, 0xFFFD);
        text.remove_prefix(character.length);
    }
    return result;
}

/// A text that begins or ends with what may be skipped is put into quotes, too, so that it stays.
bool needsQuotes(std::string_view text, char delimiter) {
    if (text.empty())
        return false;
    const char last = text.back();
    return text.find_first_of(",\";\t\r\n") != std::string_view::npos ||
           text.find(delimiter) != std::string_view::npos ||
           mayBeSkipped(firstCharacter(text).codePoint) || last == ' ';
}

std::string inQuotes(std::string_view text, char delimiter) {
    if (!needsQuotes(text, delimiter))
        return std::string(text);
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"')
            result += '"';
        result += c;
    }
    return result + '"';
}

struct ToCell {
    const TableLayout& layout;

    std::string operator()(std::monostate /*none*/) const { return ""; }
    std::string operator()(const std::string& text) const {
        return csvText(text, layout.delimiter);
    }
    std::string operator()(double number) const {
        std::string text = numberText(number);
        if (!std::isfinite(number))
            return csvText(text, layout.delimiter);
        std::replace(text.begin(), text.end(), '.', layout.decimal);
        return text.find(layout.delimiter) == std::string::npos ? text : '"' + text + '"';
    }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
};

class CsvExport : public RowExport {
public:
    CsvExport(TextSink sink, const TableLayout& layout) : sink_(std::move(sink)), layout_(layout) {}

    void begin(bool /*merged*/) override {
        text_ = layout_.hasMark ? byteOrderMark : "";
        write([](const OutputField& column) { return std::string(column.names.column); });
    }

    void end() override {}

private:
    void writeRec(const OutputContext& context) override {
        text_.clear();
        write([&](const OutputField& column) {
            return std::visit(ToCell{layout_}, column.cell(context));
        });
    }

    /// Writes a row.
    template <class Cell>
    void write(Cell cell) {
        for (const OutputField& column : outputColumns())
            text_.append(cell(column)).append(1, layout_.delimiter);
        text_.replace(text_.size() - 1, 1, "\r\n");
        sink_(text_);
    }

    TextSink sink_;
    TableLayout layout_;
    std::string text_; // of a row
};

} // namespace

std::string csvText(std::string_view text, char delimiter) {
    return inQuotes(withoutFormulas(withoutForbidden(text)), delimiter);
}

std::unique_ptr<ExportFormat> makeCsvExport(TextSink sink, const TableLayout& layout) {
    return std::make_unique<CsvExport>(std::move(sink), layout);
}
