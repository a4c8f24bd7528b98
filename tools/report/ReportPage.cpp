#include "tools/report/ReportPage.h"

#include <string>

#include <fmt/format.h>

#include "model/version.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/ReportFailures.h"
#include "tools/report/ReportFields.h"
#include "tools/report/ReportFindings.h"
#include "tools/report/ReportMaps.h"
#include "tools/report/ReportPackages.h"
#include "tools/report/ReportProducts.h"
#include "tools/report/ReportStyle.h"
#include "tools/report/ReportSummary.h"

namespace {

std::string folderLine(const ReportData& data) {
    const std::string folder = data.folder();
    return folder.empty() ? ""
                          : fmt::format("<p class=\"quiet\">Folder: {}</p>\n", htmlName(folder));
}

void writeHead(const ReportData& data, const TextSink& sink, bool anyFailure) {
    sink("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    const std::string_view first = data.fileName(data.packages().front());
    const std::string number = groupedQuantity(data.packages().size(), "package");
    const bool one = data.packages().size() == 1;
    // A title holds no elements.
    sink(fmt::format("<title>Prescription report: {}</title>\n<style>{}</style>\n",
                     one ? html(first) : number, reportStyle));
    sink(fmt::format(
        "</head>\n<body>\n<header>\n<h1>Prescription report</h1>\n<p>{}</p>\n{}</header>\n"
        "<nav aria-label=\"Contents\">\n<ul>\n{}<li><a href=\"#summary\">Summary</a></li>\n"
        "<li><a href=\"#findings\">Findings</a></li>\n<li><a href=\"#maps\">Maps</a></li>\n"
        "<li><a href=\"#products\">Products</a></li>\n"
        "<li><a href=\"#packages\">Packages</a></li>\n"
        "<li><a href=\"#fields\">Fields and recs</a></li>\n</ul>\n</nav>\n<main>\n",
        one ? htmlName(first) : number, folderLine(data),
        anyFailure ? "<li><a href=\"#failures\">What cannot be read</a></li>\n" : ""));
}

} // namespace

void writeReport(ReportData& data, const TextSink& sink) {
    const ReportFailures failures(data, sink);
    writeHead(data, sink, failures.any());
    if (failures.any())
        failures.write();
    writeSummary(data, sink);
    ReportFindings(data, sink).write();
    ReportMaps(data.places(), sink).write();
    writeProducts(data.totals(), sink);
    writePackages(data, sink);
    ReportFields(data, sink).write();
    sink(fmt::format("</main>\n<footer><p>Made by qenxml {}.</p></footer>\n</body>\n</html>\n",
                     QENXML_VERSION));
}
