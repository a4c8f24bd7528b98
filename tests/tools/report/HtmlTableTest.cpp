#include "tools/report/HtmlTable.h"

#include <gtest/gtest.h>

namespace {

const HtmlTable table("Totals", {{"Product"}, {"Recs", true}, {"Read"}});

TEST(HtmlTable, CanBeScrolledWithTheKeysAndNamesItsColumns) {
    EXPECT_EQ(table.begin(),
              "<div class=\"scroll\" role=\"region\" aria-label=\"Totals\" tabindex=\"0\">\n"
              "<table>\n<caption>Totals</caption>\n<thead><tr><th scope=\"col\">Product</th>"
              "<th scope=\"col\" class=\"number\">Recs</th><th scope=\"col\">Read</th></tr></thead>"
              "\n<tbody>\n");
}

TEST(HtmlTable, TellsTheColumnInEachCellForNarrowScreens) {
    EXPECT_EQ(table.row({"Urea", "2", "all"}),
              "<tr><th scope=\"row\">Urea</th><td data-column=\"Recs\" class=\"number\">2</td>"
              "<td data-column=\"Read\">all</td></tr>\n");
}

} // namespace
