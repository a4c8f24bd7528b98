#ifndef QENXML_TOOLS_REPORT_RATEBAR_H
#define QENXML_TOOLS_REPORT_RATEBAR_H

#include <string>

/// The rates of a rec, and their unit as it is to be shown.
struct Rates {
    double minimum = 0.0;
    double average = 0.0;
    double maximum = 0.0;
    std::string unit;
};

/// The rates in words, not escaped.
std::string ratesText(const Rates& rates);

/// A range of rates from which bars are drawn, so that they can be compared.
struct RateScale {
    double from = 0.0;
    double to = 0.0;

    /// Makes room for the rates; those that are not finite need none.
    void include(const Rates& rates);
};

/// A picture of the rates in SVG: a bar from the minimum to the maximum with a mark at the average.
/// Empty when there is nothing to draw.
std::string rateBar(const Rates& rates, const RateScale& scale);

#endif
