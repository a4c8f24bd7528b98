#include "tools/report/ReportSummary.h"

#include <array>
#include <utility>

#include <fmt/format.h>

#include "tools/report/GroupedNumber.h"

void writeSummary(const ReportData& data, const TextSink& sink) {
    const RecordCounts& counts = data.counts();
    const std::array<std::pair<const char*, std::size_t>, 8> figures = {
        {{"Packages", data.packages().size()},
         {"Growers", counts.growers},
         {"Farms", counts.farms},
         {"Fields", counts.fields},
         {"Recs", counts.recs},
         {"Errors", data.findings().of(Severity::Error)},
         {"Warnings", data.findings().of(Severity::Warning)},
         {"Notes", data.findings().of(Severity::Note)}}};
    sink("<section id=\"summary\">\n<h2>Summary</h2>\n<ul class=\"figures\">\n");
    for (const auto& [what, number] : figures)
        sink(fmt::format("<li>{} <b>{}</b></li>\n", what, groupedText(number)));
    sink("</ul>\n");
    if (counts.recsWithoutProduct > 0)
        sink(fmt::format("<p>{} without product data.</p>\n",
                         groupedQuantity(counts.recsWithoutProduct, "rec")));
    sink("</section>\n");
}
