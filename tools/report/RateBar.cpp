#include "tools/report/RateBar.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"

namespace {

bool areFinite(const Rates& rates) {
    return std::isfinite(rates.minimum) && std::isfinite(rates.average) &&
           std::isfinite(rates.maximum);
}

} // namespace

std::string ratesText(const Rates& rates) {
    return fmt::format("minimum {}, average {}, maximum {}{}{}", groupedText(rates.minimum),
                       groupedText(rates.average), groupedText(rates.maximum),
                       rates.unit.empty() ? "" : " ", rates.unit);
}

void RateScale::include(const Rates& rates) {
    if (!areFinite(rates))
        return;
    from = std::min({from, rates.minimum, rates.average, rates.maximum});
    to = std::max({to, rates.minimum, rates.average, rates.maximum});
}

std::string rateBar(const Rates& rates, const RateScale& scale) {
    constexpr double width = 200.0;
    constexpr double thinnest = 2.0;
    const double span = scale.to - scale.from;
    if (!areFinite(rates) || !std::isfinite(span) || span <= 0.0)
        return "";
    const auto place = [&](double rate) { return (rate - scale.from) / span * width; };
    const auto [least, most] = std::minmax({rates.minimum, rates.average, rates.maximum});
    // Also a single rate shall be seen, at both ends of the scale.
    const double length = std::max(place(most) - place(least), thinnest);
    const double begin = std::min(place(least), width - length);
    return fmt::format(
        "<svg class=\"bar\" viewBox=\"0 0 200 16\" role=\"img\" aria-label=\"Rates: {}; the scale "
        "is from {} to {}\"><rect class=\"track\" x=\"0\" y=\"5\" width=\"200\" height=\"6\" "
        "rx=\"3\"/><rect class=\"range\" x=\"{:.1f}\" y=\"3\" width=\"{:.1f}\" height=\"10\" "
        "rx=\"1.5\"/><rect class=\"average\" x=\"{:.1f}\" y=\"0\" width=\"2\" "
        "height=\"16\"/></svg>\n",
        html(ratesText(rates)), groupedText(scale.from), groupedText(scale.to), begin, length,
        std::clamp(place(rates.average) - 1.0, 0.0, width - 2.0));
}
