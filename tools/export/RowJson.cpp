#include "tools/export/RowJson.h"

#include <cmath>

#include "tools/output/JsonWriter.h"

namespace {

struct Append {
    std::string& text;

    void operator()(std::monostate /*none*/) const { text += "null"; }
    void operator()(const std::string& value) const { appendJson(text, value); }
    void operator()(double number) const {
        text += std::isfinite(number) ? jsonNumber(number).dump() : "null";
    }
    void operator()(int number) const { text += std::to_string(number); }
    void operator()(bool value) const { text += value ? "true" : "false"; }
};

} // namespace

void appendRow(std::string& text, const OutputContext& context) {
    char before = '{';
    for (const OutputField& column : outputColumns()) {
        text += before;
        text.append("\"").append(column.names.column).append("\":");
        std::visit(Append{text}, column.cell(context));
        before = ',';
    }
    text += '}';
}
