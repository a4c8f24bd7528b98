#include "tools/report/HtmlTable.h"

#include <utility>

#include <fmt/format.h>

namespace {

const char* alignment(const HtmlTable::Column& column) {
    return column.isNumber ? " class=\"number\"" : "";
}

} // namespace

HtmlTable::HtmlTable(const char* caption, std::vector<Column> columns)
    : caption_(caption), columns_(std::move(columns)) {}

std::string HtmlTable::begin() const {
    // Scrolls where it is too wide, with the keys too.
    std::string text = fmt::format("<div class=\"scroll\" role=\"region\" aria-label=\"{0}\" "
                                   "tabindex=\"0\">\n<table>\n<caption>{0}</caption>\n<thead><tr>",
                                   caption_);
    for (const Column& column : columns_)
        text += fmt::format("<th scope=\"col\"{}>{}</th>", alignment(column), column.name);
    return text + "</tr></thead>\n<tbody>\n";
}

std::string HtmlTable::row(const std::vector<std::string>& cells) const {
    std::string text = fmt::format("<tr><th scope=\"row\">{}</th>", cells.front());
    for (std::size_t i = 1; i < cells.size(); ++i)
        text += fmt::format("<td data-column=\"{}\"{}>{}</td>", columns_.at(i).name,
                            alignment(columns_.at(i)), cells[i]);
    return text + "</tr>\n";
}
