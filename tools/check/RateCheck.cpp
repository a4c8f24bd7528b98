#include "tools/check/RateCheck.h"

#include <string_view>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/ChildNumber.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

/// The rates of a RecStats element.
struct Rates {
    explicit Rates(pugi::xml_node recStats)
        : minimum(recStats, tag::MinimumRate),
          average(recStats, tag::AverageRate),
          maximum(recStats, tag::MaximumRate) {}

    ChildNumber minimum;
    ChildNumber average;
    ChildNumber maximum;
};

void checkOrder(CheckReport& report, const ChildNumber& small, const ChildNumber& large) {
    if (!small.node || !large.node || !(small.number.value > large.number.value))
        return;
    report.add(FindingCode::RateOrder, small.node, small.name, [&] {
        return Details{fmt::format("{} {} is above {} {}", small.name, small.number.read(),
                                   large.name, large.number.read()),
                       Kept{}};
    });
}

bool hasUnit(pugi::xml_node recStats) {
    return *recStats.child(tag::RateUOM).text().as_string() != '\0' ||
           recStats.child(tag::RateUOMID).text().as_int() != 0;
}

void checkUnit(CheckReport& report, pugi::xml_node child) {
    const Rates rates(child.parent());
    for (const ChildNumber* rate : {&rates.minimum, &rates.average, &rates.maximum}) {
        if (rate->number.value == 0)
            continue;
        if (rate->node == child) // The unit is that of all rates: it is missing once.
            report.add(FindingCode::RateWithoutUnit, child, rate->name, [&] {
                return Details{fmt::format("{} is {}, without a {} or {}", rate->name,
                                           rate->number.read(), tag::RateUOM, tag::RateUOMID),
                               Kept{}};
            });
        return;
    }
}

} // namespace

void checkRate(CheckReport& report, pugi::xml_node child) {
    const std::string_view name = child.name();
    if (name != tag::MinimumRate && name != tag::AverageRate && name != tag::MaximumRate)
        return;
    const pugi::xml_node recStats = child.parent();
    if (name == tag::MinimumRate) {
        const bool hasAverage = !recStats.child(tag::AverageRate).empty();
        checkOrder(report, ChildNumber(recStats, tag::MinimumRate),
                   ChildNumber(recStats, hasAverage ? tag::AverageRate : tag::MaximumRate));
    } else if (name == tag::AverageRate) {
        checkOrder(report, ChildNumber(recStats, tag::AverageRate),
                   ChildNumber(recStats, tag::MaximumRate));
    }
    if (!hasUnit(recStats))
        checkUnit(report, child);
}
