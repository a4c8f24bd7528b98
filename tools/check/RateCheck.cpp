#include "tools/check/RateCheck.h"

#include <string_view>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/ChildNumber.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

void checkOrder(CheckReport& report, const ChildNumber& small, const ChildNumber& large) {
    if (!small.node || !large.node || !(small.number.value > large.number.value))
        return;
    report.add(FindingCode::RateOrder, small.node, small.name, [&] {
        return Details{fmt::format("{} {} is above {} {}", small.name, small.number.read(),
                                   large.name, large.number.read()),
                       Kept{}};
    });
}

} // namespace

void checkRate(CheckReport& report, pugi::xml_node child) {
    const std::string_view name = child.name();
    const pugi::xml_node recStats = child.parent();
    if (name == tag::MinimumRate) {
        const bool hasAverage = !recStats.child(tag::AverageRate).empty();
        checkOrder(report, ChildNumber(recStats, tag::MinimumRate),
                   ChildNumber(recStats, hasAverage ? tag::AverageRate : tag::MaximumRate));
    } else if (name == tag::AverageRate) {
        checkOrder(report, ChildNumber(recStats, tag::AverageRate),
                   ChildNumber(recStats, tag::MaximumRate));
    }
}
