#ifndef QENXML_TOOLS_REPORT_RATEBAR_H
#define QENXML_TOOLS_REPORT_RATEBAR_H

#include <optional>
#include <string>

/// The rates of a rec, as far as its package gives them, and their unit as it is to be shown.
struct Rates {
    std::optional<double> minimum;
    std::optional<double> average;
    std::optional<double> maximum;
    std::string unit;
};

/// The rates in words, not escaped; empty without any.
std::string ratesText(const Rates& rates);

/// A range of rates from which bars are drawn, so that they can be compared.
struct RateScale {
    double from = 0.0;
    double to = 0.0;

    /// Makes room for the rates. One that is not finite has its rec drawn without a bar.
    void include(const Rates& rates);
};

/// A picture of the rates in SVG: a bar from the minimum to the maximum with a mark at the average,
/// if that is known. Empty when there is nothing to draw: without a minimum or a maximum, too.
std::string rateBar(const Rates& rates, const RateScale& scale);

#endif
