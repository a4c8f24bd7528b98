#include "tools/check/TotalCheck.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/GivenNumber.h"
#include "tools/check/PlausibilityLimits.h"
#include "tools/check/Units.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

/// The units of a RecStats element.
struct StatisticsUnits {
    explicit StatisticsUnits(pugi::xml_node recStats)
        : rate(textOf(recStats, tag::RateUOM)),
          total(textOf(recStats, tag::TotalUOM)),
          area(textOf(recStats, tag::AreaUOM)) {}

    static std::string_view textOf(pugi::xml_node recStats, const char* name) {
        return trimmed(recStats.child(name).text().as_string());
    }

    std::string_view rate;
    std::string_view total;
    std::string_view area;
};

/// How many of the total's unit come of one of the rate's on one of the area's.
std::optional<UnitRatio> ratioOf(const StatisticsUnits& units) {
    const std::optional<RateUnit> rate = rateUnit(units.rate);
    if (!rate || units.total.empty() || units.area.empty())
        return std::nullopt;
    const std::optional<UnitRatio> amount = unitRatio(rate->amount, units.total);
    const std::optional<UnitRatio> area = unitRatio(units.area, rate->area);
    if (!amount || !area)
        return std::nullopt;
    return UnitRatio{amount->least * area->least, amount->most * area->most,
                     amount->sameKind && area->sameKind};
}

/// What rate and area say of a total, as numbers.
struct Product {
    GivenNumber total;
    GivenNumber rate;
    GivenNumber area;

    bool isGiven() const {
        return total.isGiven() && rate.isGiven() && area.isGiven() && total.value() >= 0 &&
               rate.value() >= 0 && area.value() >= 0;
    }

    double expected() const { return rate.value() * area.value(); }

    /// Whether the total may be rate times area, whatever the digits are that were rounded.
    bool mayFit(const UnitRatio& ratio) const {
        const double least = rate.least() * area.least() * ratio.least;
        const double most = rate.most() * area.most() * ratio.most;
        return total.most() >= least * (1 - plausible::totalTolerance) &&
               total.least() <= most * (1 + plausible::totalTolerance);
    }

    /// Whether it is, by the digits that are written and in one unit.
    bool fitsAsWritten() const {
        const double lastDigit = total.most() - total.value();
        return expected() > 0 && std::abs(total.value() - expected()) <=
                                     expected() * plausible::totalTolerance + lastDigit;
    }

    /// Whether it is nearly so, and exactly when digits were rounded.
    bool fitsRoughly() const {
        constexpr double tolerance = 0.1;
        return std::abs(total.value() - expected()) <= tolerance * expected() &&
               mayFit({1, 1, true});
    }

    /// Whether the digits of rate and area leave open so little that numbers that fit in one unit
    /// do not in another one of about its size.
    bool isExact() const {
        const auto leavesOpenLittle = [](const GivenNumber& number) {
            return number.most() - number.least() <= plausible::totalTolerance * number.value();
        };
        return leavesOpenLittle(rate) && leavesOpenLittle(area);
    }

    /// Whether it is so by three digits or more.
    bool isSameNumber() const {
        constexpr double coarsest = 0.01;
        const double lastDigit = total.most() - total.value();
        return lastDigit <= coarsest * total.value() &&
               std::abs(total.value() - expected()) <= lastDigit + coarsest * expected();
    }
};

/// Whether numbers that fit as written cannot fit by their units.
bool differsFromOne(const UnitRatio& ratio) {
    constexpr double tolerance = 2 * plausible::totalTolerance;
    return ratio.least > 1 + tolerance || ratio.most < 1 - tolerance;
}

/// Whether a total in another unit than the rate has the number that it would have in that unit.
bool isSameNumberOfOtherUnit(const Product& product, const UnitRatio& ratio,
                             const StatisticsUnits& units) {
    const std::optional<RateUnit> rate = rateUnit(units.rate);
    const bool mayBe = rate && isSameUnit(rate->area, units.area)
                           ? maySayTheSame(rate->amount, units.total)
                           : ratio.sameKind;
    return !mayBe && ratio.least > 0 && product.isSameNumber() &&
           (!ratio.sameKind || product.isExact());
}

/// "135.5 kg/ha", with six digits at most.
std::string quantityText(double number, std::string_view unit) {
    constexpr double digits = 6;
    const double scale =
        number == 0 ? 1 : std::pow(10.0, digits - 1 - std::floor(std::log10(number)));
    const bool rounds = std::isfinite(scale) && scale > 0 && std::isfinite(number * scale);
    return fmt::format("{} {}", rounds ? std::round(number * scale) / scale : number,
                       escapeExcerpt(unit));
}

/// "; the total is 10 times that" where two numbers differ by a power of ten.
std::string powerOfTen(double total, double expected) {
    if (!(total > 0) || !(expected > 0))
        return "";
    const double power = std::round(std::log10(total / expected));
    const double rest = total / expected / std::pow(10.0, power);
    if (power == 0 || std::abs(rest - 1) > plausible::totalTolerance)
        return "";
    return fmt::format("; the total is {}{} {} that", power > 0 ? "" : "1/",
                       std::pow(10.0, std::abs(power)), power > 0 ? "times" : "of");
}

std::string factors(const Product& product, const StatisticsUnits& units) {
    return fmt::format("{} {} times {} {}", tag::AverageRate,
                       quantityText(product.rate.value(), units.rate), tag::Area,
                       quantityText(product.area.value(), units.area));
}

void checkProduct(CheckReport& report, const Product& product, const StatisticsUnits& units) {
    const std::optional<UnitRatio> ratio = ratioOf(units);
    if (!ratio)
        return;
    // Seeds are no weight, by whatever digits.
    const bool fitsInOne = ratio->most == 0 ? product.fitsRoughly() : product.fitsAsWritten();
    const bool otherUnit = isSameNumberOfOtherUnit(product, *ratio, units);
    if (product.mayFit(*ratio) && !otherUnit)
        return;
    const std::string_view total = units.total;
    if (otherUnit || (fitsInOne && differsFromOne(*ratio)))
        report.add(FindingCode::UnitsDisagree, product.total.node(), tag::Total, [&] {
            return Details{fmt::format("{} is {} {} by the numbers, but not by the units",
                                       factors(product, units), tag::Total,
                                       quantityText(product.total.value(), total)),
                           Kept{}};
        });
    else if (ratio->sameKind)
        report.add(FindingCode::TotalMismatch, product.total.node(), tag::Total, [&] {
            const double expected = product.expected() * std::sqrt(ratio->least * ratio->most);
            return Details{fmt::format("{} is {}, but {} is {}{}", tag::Total,
                                       quantityText(product.total.value(), total),
                                       factors(product, units), quantityText(expected, total),
                                       powerOfTen(product.total.value(), expected)),
                           Kept{}};
        });
}

/// Whether rates are given and all of them are 0.
bool areZero(pugi::xml_node recStats) {
    bool anyGiven = false;
    for (const char* name : {tag::MinimumRate, tag::AverageRate, tag::MaximumRate}) {
        const GivenNumber rate(recStats, name);
        if (rate.isThere() && !(rate.isGiven() && rate.value() == 0))
            return false;
        anyGiven = anyGiven || rate.isThere();
    }
    return anyGiven;
}

} // namespace

void checkTotal(CheckReport& report, pugi::xml_node total) {
    const pugi::xml_node recStats = total.parent();
    const Product product = {GivenNumber(recStats, tag::Total),
                             GivenNumber(recStats, tag::AverageRate),
                             GivenNumber(recStats, tag::Area)};
    if (product.total.isGiven() && product.total.value() != 0 &&
        (!product.rate.isThere() || product.rate.value() == 0) && areZero(recStats))
        report.add(FindingCode::RatesZero, total, tag::Total, [&] {
            return Details{
                fmt::format("{} is {}, but all rates are 0", tag::Total,
                            quantityText(product.total.value(), StatisticsUnits(recStats).total)),
                Kept{}};
        });
    else if (product.isGiven())
        checkProduct(report, product, StatisticsUnits(recStats));
}
