#include "tools/report/RateBar.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <fmt/format.h>

#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"

namespace {

bool canBeDrawn(const Rates& rates) {
    return rates.minimum && rates.maximum && std::isfinite(*rates.minimum) &&
           std::isfinite(*rates.maximum) && std::isfinite(rates.average.value_or(0.0));
}

/// The least and the most of the rates, whatever they are called.
std::pair<double, double> range(const Rates& rates) {
    return std::minmax({*rates.minimum, rates.average.value_or(*rates.minimum), *rates.maximum});
}

} // namespace

std::string ratesText(const Rates& rates) {
    std::string text;
    const auto add = [&text](const char* name, const std::optional<double>& rate) {
        if (rate)
            text += fmt::format("{}{} {}", text.empty() ? "" : ", ", name, groupedText(*rate));
    };
    add("minimum", rates.minimum);
    add("average", rates.average);
    add("maximum", rates.maximum);
    return text.empty() || rates.unit.empty() ? text : text + " " + rates.unit;
}

void RateScale::include(const Rates& rates) {
    if (!canBeDrawn(rates))
        return;
    const auto [least, most] = range(rates);
    from = std::min(from, least);
    to = std::max(to, most);
}

std::string rateBar(const Rates& rates, const RateScale& scale) {
    constexpr double width = 200.0;
    constexpr double thinnest = 2.0;
    const double span = scale.to - scale.from;
    if (!canBeDrawn(rates) || !std::isfinite(span) || span <= 0.0)
        return "";
    const auto drawn = [&](double rate) { return (rate - scale.from) / span * width; };
    const auto [least, most] = range(rates);
    // Also a single rate shall be seen, at both ends of the scale.
    const double length = std::max(drawn(most) - drawn(least), thinnest);
    const double begin = std::min(drawn(least), width - length);
    const std::string average =
        rates.average ? fmt::format("<rect class=\"average\" x=\"{:.1f}\" y=\"0\" width=\"2\" "
                                    "height=\"16\"/>",
                                    std::clamp(drawn(*rates.average) - 1.0, 0.0, width - 2.0))
                      : "";
    return fmt::format(
        "<svg class=\"bar\" viewBox=\"0 0 200 16\" role=\"img\" aria-label=\"Rates: {}; the scale "
        "is from {} to {}\"><rect class=\"track\" x=\"0\" y=\"5\" width=\"200\" height=\"6\" "
        "rx=\"3\"/><rect class=\"range\" x=\"{:.1f}\" y=\"3\" width=\"{:.1f}\" height=\"10\" "
        "rx=\"1.5\"/>{}</svg>\n",
        html(ratesText(rates)), groupedText(scale.from), groupedText(scale.to), begin, length,
        average);
}
