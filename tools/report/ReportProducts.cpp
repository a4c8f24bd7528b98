#include "tools/report/ReportProducts.h"

#include <string>
#include <vector>

#include <fmt/format.h>

#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/HtmlTable.h"

namespace {

constexpr std::size_t mostRows = 200;
constexpr std::size_t mostAreas = 10;

std::string areasText(const ProductTotal& total) {
    std::string areas;
    std::size_t number = 0;
    for (const auto& [unit, area] : total.areas) {
        if (++number <= mostAreas)
            areas += fmt::format("{}{} {}", areas.empty() ? "" : "<br>", area.text(),
                                 htmlRecordName(unit));
    }
    return number <= mostAreas
               ? areas
               : areas + "<br>in " + groupedQuantity(number - mostAreas, "more unit");
}

std::string totalText(const ProductUnit& product, const ProductTotal& total) {
    const std::string sum = total.total.text();
    std::string known = sum.empty() ? "" : fmt::format("{} {}", sum, htmlRecordName(product.unit));
    if (total.recsWithoutTotal == 0)
        return known;
    return fmt::format("{}{}<span class=\"quiet\">not given by {}</span>", known,
                       known.empty() ? "" : "<br>", groupedQuantity(total.recsWithoutTotal, "rec"));
}

std::vector<std::string> cells(const ProductUnit& product, const ProductTotal& total) {
    const std::string name =
        product.kind.empty() ? "no product data"
                             : htmlRecordName(product.name, "without a name") +
                                   fmt::format(" <span class=\"quiet\">{}</span>", product.kind);
    return {name, groupedText(total.recs), totalText(product, total), areasText(total)};
}

void writeTable(const ProductTotals& totals, const TextSink& sink) {
    const HtmlTable table("Totals by product and unit",
                          {{"Product"}, {"Recs", true}, {"Total", true}, {"Area", true}});
    sink(table.begin());
    std::size_t rows = 0;
    for (const auto& [product, total] : totals.totals()) {
        if (rows++ < mostRows)
            sink(table.row(cells(product, total)));
    }
    sink(HtmlTable::end());
    if (rows > mostRows)
        sink(fmt::format("<p>{} not shown; <code>qenxml export --format csv</code> writes all "
                         "recs with their products.</p>\n",
                         groupedQuantity(rows - mostRows, "more row")));
}

} // namespace

void writeProducts(const ProductTotals& totals, const TextSink& sink) {
    sink("<section id=\"products\">\n<h2>Products</h2>\n");
    if (totals.totals().empty())
        sink("<p>There are no recs.</p>\n");
    else
        writeTable(totals, sink);
    if (totals.repeated() > 0)
        sink(fmt::format("<p>In more than one package: {}. Each counts once, as it is read "
                         "first.</p>\n",
                         groupedQuantity(totals.repeated(), "rec")));
    sink("</section>\n");
}
