#include "tools/check/UnitCheck.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/ChildNumber.h"
#include "tools/text/Escape.h"

namespace tag = qenxml::tag;

namespace {

/// Numbers that have one unit.
struct Quantity {
    FindingCode code;
    const char* unit;
    const char* unitCode;
    std::array<const char*, 3> numbers; ///< Null behind the last one.
};

constexpr std::array quantities = {
    Quantity{FindingCode::RateWithoutUnit,
             tag::RateUOM,
             tag::RateUOMID,
             {tag::MinimumRate, tag::AverageRate, tag::MaximumRate}},
    Quantity{FindingCode::TotalWithoutUnit, tag::TotalUOM, tag::TotalUOMID, {tag::Total}},
    Quantity{FindingCode::AreaWithoutUnit, tag::AreaUOM, tag::AreaUOMID, {tag::Area}}};

bool hasUnit(const Quantity& quantity, pugi::xml_node recStats) {
    return !isBlank(recStats.child(quantity.unit).text().as_string()) ||
           recStats.child(quantity.unitCode).text().as_int() != 0;
}

/// The number of which the unit is missing: the first that is not 0, as it is missing once.
const char* firstOf(const Quantity& quantity, pugi::xml_node recStats) {
    const auto* const first =
        std::find_if(quantity.numbers.begin(), quantity.numbers.end(), [&](const char* name) {
            return name != nullptr && ChildNumber(recStats, name).number.value != 0;
        });
    return first == quantity.numbers.end() ? nullptr : *first;
}

} // namespace

void checkUnit(CheckReport& report, pugi::xml_node child) {
    const std::string_view name = child.name();
    const pugi::xml_node recStats = child.parent();
    for (const Quantity& quantity : quantities) {
        const auto isChild = [&](const char* number) {
            return number != nullptr && name == number;
        };
        if (std::none_of(quantity.numbers.begin(), quantity.numbers.end(), isChild))
            continue;
        if (hasUnit(quantity, recStats) || !isChild(firstOf(quantity, recStats)))
            return;
        report.add(quantity.code, child, name, [&] {
            return CheckReport::Details{
                fmt::format("{} is {}, without {} and {}", name,
                            ChildNumber(recStats, child.name()).number.read(), quantity.unit,
                            quantity.unitCode),
                Kept{}};
        });
        return;
    }
}
