#include "tools/report/ReportFindings.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "tools/report/FindingHtml.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/ReportFailures.h"
#include "tools/text/Words.h"

namespace {

/// Whether a finding is the error of its package that stands under what cannot be read.
bool isNamed(const ReportData& data, const PackageFinding& found) {
    const std::optional<Finding>& error = data.packages()[found.package].error;
    return error && error->code == found.finding.code && error->path == found.finding.path &&
           error->found == found.finding.found;
}

/// How many of a code stand there.
std::size_t namedOf(const ReportData& data, FindingCode code) {
    return static_cast<std::size_t>(std::count_if(
        data.packages().begin(), data.packages().end(), [code](const ReportPackage& package) {
            return package.error && package.error->code == code;
        }));
}

} // namespace

void ReportFindings::write() const {
    sink_("<section id=\"findings\">\n<h2>Findings</h2>\n");
    if (ReportFailures(data_, sink_).any())
        sink_("<p>What keeps a package from being read stands under <a href=\"#failures\">What "
              "cannot be read</a>.</p>\n");
    bool any = false;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        any = any || data_.findings().of(severity) > 0;
        for (std::size_t code = 0; code < findingKinds.size(); ++code) {
            if (findingKinds[code].severity == severity)
                write(static_cast<FindingCode>(code));
        }
    }
    if (!any)
        sink_("<p>No problems were found.</p>\n");
    sink_("</section>\n");
}

void ReportFindings::write(FindingCode code) const {
    const FindingGroup& group = data_.findings().of(code);
    const std::size_t named = namedOf(data_, code);
    if (group.sum() == named)
        return;
    const FindingKind& kind = kindOf(code);
    const std::string_view severity = wordFor(kind.severity);
    sink_(fmt::format("<h3 class=\"{0}\"><strong>{1}</strong>: {2} <span class=\"quiet\">"
                      "[{3}]</span></h3>\n",
                      severity, capitalised(severity), html(kind.title), html(kind.code)));
    sink_(cureHtml(code));
    sink_("<ul class=\"findings\">\n");
    std::size_t more = group.sum() - named;
    for (const PackageFinding& found : group.kept) {
        if (isNamed(data_, found))
            continue;
        write(found);
        --more;
    }
    sink_("</ul>\n");
    if (more > 0)
        writeMore(more, named == 0 ? group.packagesOfMore : 0);
}

void ReportFindings::write(const PackageFinding& found) const {
    const Finding& finding = found.finding;
    sink_(fmt::format("<li class=\"{}\"><p>{}: {}</p>\n{}{}</li>\n", wordFor(finding.severity()),
                      placeHtml(data_, data_.packages()[found.package], finding),
                      htmlOfEscaped(finding.found), consequenceHtml(finding),
                      surroundingsHtml(finding)));
}

void ReportFindings::writeMore(std::size_t more, std::size_t packages) const {
    const bool saysPackages = packages > 0 && data_.packages().size() > 1;
    sink_(fmt::format("<p>And {} more{}; <code>qenxml check --json</code> writes all of "
                      "them.</p>\n",
                      groupedText(more),
                      saysPackages ? " in " + groupedQuantity(packages, "package") : ""));
}
