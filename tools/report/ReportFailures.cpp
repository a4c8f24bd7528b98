#include "tools/report/ReportFailures.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "tools/findings/Explanation.h"
#include "tools/report/FindingHtml.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/text/Words.h"

namespace {

constexpr std::size_t mostOfAReason = 25;

/// Packages that fail alike stand together. Those without an error in them, as memory ran out or
/// the file has changed meanwhile, come last.
std::size_t reasonOf(const ReportPackage& package) {
    return package.error ? static_cast<std::size_t>(package.error->code) : findingKinds.size();
}

} // namespace

bool ReportFailures::any() const {
    return !std::all_of(data_.packages().begin(), data_.packages().end(), isWhole);
}

void ReportFailures::write() const {
    std::map<std::size_t, Packages> reasons;
    std::size_t lost = 0;
    std::size_t broken = 0;
    for (const ReportPackage& package : data_.packages()) {
        if (isWhole(package))
            continue;
        ++broken;
        lost += isLost(package) ? 1 : 0;
        reasons[reasonOf(package)].push_back(&package);
    }
    sink_("<section id=\"failures\">\n<h2>What cannot be read</h2>\n");
    std::vector<std::string> sentences;
    if (lost > 0)
        sentences.push_back("nothing is read of " + groupedQuantity(lost, "package"));
    if (broken > lost)
        sentences.push_back("not everything is read of " +
                            groupedQuantity(broken - lost, "package"));
    sink_(fmt::format("<p>{}.</p>\n", capitalised(joined(sentences))));
    for (const auto& [reason, packages] : reasons)
        writeGroup(packages);
    sink_("</section>\n");
}

void ReportFailures::writeGroup(const Packages& packages) const {
    const std::optional<Finding>& error = packages.front()->error;
    sink_(fmt::format("<h3>{}</h3>\n",
                      error ? html(capitalised(kindOf(error->code).title)) : "Other reasons"));
    if (error)
        sink_(cureHtml(error->code));
    sink_("<ul class=\"findings\">\n");
    for (std::size_t i = 0; i < std::min(packages.size(), mostOfAReason); ++i)
        write(*packages[i]);
    sink_("</ul>\n");
    if (packages.size() > mostOfAReason)
        sink_(fmt::format("<p>And {} for this reason; <code>qenxml check</code> names all of "
                          "them.</p>\n",
                          groupedQuantity(packages.size() - mostOfAReason, "more package")));
}

void ReportFailures::write(const ReportPackage& package) const {
    const std::string reason =
        package.error ? htmlOfEscaped(package.error->found) : html(package.failure->reason);
    sink_(fmt::format("<li class=\"error\"><p>{}: {}</p>\n{}{}</li>\n",
                      placeHtml(data_, package, package.error), reason,
                      package.error && !isLost(package) ? consequenceHtml(*package.error) : "",
                      package.error ? surroundingsHtml(*package.error) : ""));
}
