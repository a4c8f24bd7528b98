#include "tools/report/ReportFindings.h"

#include <cstddef>
#include <string>

#include <fmt/format.h>

#include "tools/findings/FindingText.h"
#include "tools/report/FindingHtml.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/text/Words.h"

void ReportFindings::write() const {
    sink_("<section id=\"findings\">\n<h2>Findings</h2>\n");
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
    if (group.sum() == 0)
        return;
    const FindingKind& kind = kindOf(code);
    const std::string_view severity = wordFor(kind.severity);
    sink_(fmt::format("<h3 class=\"{0}\"><strong>{1}</strong>: {2} <span class=\"quiet\">"
                      "[{3}]</span></h3>\n",
                      severity, capitalised(severity), html(kind.title), html(kind.code)));
    sink_(cureHtml(code));
    sink_(fmt::format("<ul class=\"findings\">\n"));
    for (const PackageFinding& found : group.kept)
        write(found);
    sink_("</ul>\n");
    if (group.more > 0)
        writeMore(group);
}

void ReportFindings::write(const PackageFinding& found) const {
    const Finding& finding = found.finding;
    sink_(fmt::format("<li class=\"{}\"><p>{}: {}</p>\n", wordFor(finding.severity()),
                      placeHtml(data_, data_.packages()[found.package], finding),
                      htmlOfEscaped(finding.found)));
    sink_(consequenceHtml(finding));
    if (const std::string records = recordsText(finding); !records.empty())
        sink_(fmt::format("<p>In: <bdi>{}</bdi></p>\n", htmlOfEscaped(records)));
    if (!finding.path.empty())
        sink_(fmt::format("<p class=\"quiet\"><code>{}</code></p>\n", htmlOfEscaped(finding.path)));
    sink_("</li>\n");
}

void ReportFindings::writeMore(const FindingGroup& group) const {
    const std::string packages = data_.packages().size() == 1
                                     ? ""
                                     : " in " + groupedQuantity(group.packagesOfMore, "package");
    sink_(fmt::format("<p>And {} more{}; <code>qenxml check --json</code> writes all of "
                      "them.</p>\n",
                      groupedText(group.more), packages));
}
