#include "tools/report/FindingHtml.h"

#include <fmt/format.h>

#include "tools/findings/Explanation.h"
#include "tools/findings/FindingText.h"
#include "tools/report/Html.h"
#include "tools/text/Words.h"

std::string cureHtml(FindingCode code) {
    return fmt::format("<p>What to do: {}</p>\n", htmlWithCode(explanationOf(code).cure));
}

std::string consequenceHtml(const Finding& finding) {
    return fmt::format("<p>Consequence: {}</p>\n", htmlOfEscaped(consequenceText(finding)));
}

std::string surroundingsHtml(const Finding& finding) {
    std::string text;
    if (const std::string records = recordsText(finding); !records.empty())
        text += fmt::format("<p>In: <bdi>{}</bdi></p>\n", htmlOfEscaped(records));
    if (!finding.path.empty())
        text +=
            fmt::format("<p class=\"quiet\"><code>{}</code></p>\n", htmlOfEscaped(finding.path));
    return text;
}

std::string placeHtml(const ReportData& data, const ReportPackage& package,
                      const std::optional<Finding>& finding) {
    std::string file = fmt::format("<strong>{}</strong>", htmlName(data.fileName(package)));
    if (!finding || !finding->location)
        return file;
    const std::string position = fmt::format("line {}, column {}", finding->location->begin.line,
                                             finding->location->begin.column);
    return data.packages().size() == 1 ? fmt::format("<strong>{}</strong>", capitalised(position))
                                       : fmt::format("{}, {}", file, position);
}
