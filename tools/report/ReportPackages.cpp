#include "tools/report/ReportPackages.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "tools/files/PackageUuid.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/HtmlTable.h"

namespace {

constexpr std::size_t mostRows = 500;

const char* readState(const ReportPackage& package) {
    return !package.failure ? "completely" : isLost(package) ? "not at all" : "up to a failure";
}

std::vector<std::string> cells(const ReportData& data, const ReportPackage& package) {
    // Mostly the UUID is the name of the file.
    const bool saysUuid = !package.uuid || isNamedByUuid(package.name);
    return {htmlName(data.fileName(package)) +
                (saysUuid ? "" : "<br>" + htmlIdentifier(*package.uuid)),
            readState(package),
            groupedText(package.counts.growers),
            groupedText(package.counts.fields),
            groupedText(package.counts.recs),
            groupedText(package.findings)};
}

} // namespace

void writePackages(const ReportData& data, const TextSink& sink) {
    const HtmlTable table("What is read of each package", {{"File"},
                                                           {"Read"},
                                                           {"Growers", true},
                                                           {"Fields", true},
                                                           {"Recs", true},
                                                           {"Findings", true}});
    const std::vector<ReportPackage>& packages = data.packages();
    const std::size_t rows = std::min(packages.size(), mostRows);
    sink("<section id=\"packages\">\n<h2>Packages</h2>\n");
    sink(table.begin());
    for (std::size_t i = 0; i < rows; ++i)
        sink(table.row(cells(data, packages[i])));
    sink(HtmlTable::end());
    if (rows < packages.size())
        sink(fmt::format("<p>{} not listed; <code>qenxml show</code> writes what each of them "
                         "holds.</p>\n",
                         groupedQuantity(packages.size() - rows, "more package")));
    sink("</section>\n");
}
