#include "tools/report/RecCard.h"

#include <optional>

#include <fmt/format.h>

#include "model/CustomFertilizerRec.h"
#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"

namespace tag = qenxml::tag;

namespace {

std::string productHtml(QenRecData* data, const MissingNumbers& missing) {
    if (data == nullptr)
        return "<p class=\"warning\"><strong>No product data</strong></p>\n";
    const std::string name = productName(data);
    const std::string text = fmt::format("<p>{}{}{}</p>\n", productKind(data),
                                         name.empty() ? "" : ": ", htmlRecordName(name));
    const std::string content =
        data->recType() == RecTypeCustomFertilizer
            ? blendContent(static_cast<CustomFertilizerRec&>(*data), missing)
            : "";
    return content.empty() ? text
                           : text + fmt::format("<p class=\"quiet\">{}</p>\n", html(content));
}

/// A quantity with its unit; empty when the package does not give it.
std::string quantityText(const std::optional<double>& value, const std::string& unit) {
    return value ? groupedText(*value) + (unit.empty() ? "" : " " + unit) : "";
}

/// @param value not escaped; nothing is written for an empty one
std::string fact(const char* what, const std::string& value) {
    return value.empty() ? ""
                         : fmt::format("<dt>{}</dt><dd>{}</dd>\n", what, htmlRecordName(value));
}

} // namespace

Rates ratesOf(QenRec& rec, const MissingNumbers& missing) {
    return {missing.known(tag::MinimumRate, rec.minimumRate()),
            missing.known(tag::AverageRate, rec.averageRate()),
            missing.known(tag::MaximumRate, rec.maximumRate()),
            textOrCode(rec.rateUom(), rec.rateUomId())};
}

std::string recCard(QenRec& rec, const MissingNumbers& missing, const RateScale& scale) {
    const Rates rates = ratesOf(rec, missing);
    return fmt::format("<li><h6>{}</h6>\n", htmlRecordName(rec.name(), "Rec without a name")) +
           productHtml(rec.recData(), missing) + rateBar(rates, scale) + "<dl class=\"facts\">\n" +
           fact("Rates", ratesText(rates)) +
           fact("Total", quantityText(missing.known(tag::Total, rec.total()),
                                      textOrCode(rec.totalUom(), rec.totalUomId()))) +
           fact("Area", quantityText(missing.known(tag::Area, rec.area()),
                                     textOrCode(rec.areaUom(), rec.areaUomId()))) +
           fact("Operation", rec.operationName()) +
           fact("Season", textOrCode(rec.seasonName(), rec.seasonId())) +
           fact("Created", rec.creationDate()) + fact("Edited", rec.editDate()) +
           fact("Column", rec.recDbfCol()) +
           fmt::format("<dt>ID</dt><dd>{}</dd>\n</dl></li>\n", htmlIdentifier(rec.id()));
}
