#include "tools/check/CentroidCheck.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/ChildNumber.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

void checkRange(CheckReport& report, const ChildNumber& value, double limit) {
    if (value.number.value >= -limit && value.number.value <= limit)
        return;
    report.add(FindingCode::CentroidRange, value.node, value.name, [&] {
        return Details{fmt::format("{} {} is not between {} and {}", value.name,
                                   value.number.read(), -limit, limit),
                       Kept{}};
    });
}

/// What would have to be changed in a centroid.
std::string_view slipText(FarmSpread::Slip slip) {
    constexpr std::array<std::string_view, 4> texts = {
        "with the other sign of its latitude", "with the other sign of its longitude",
        "with the other signs of both", "with latitude and longitude swapped"};
    return texts.at(static_cast<std::size_t>(slip));
}

} // namespace

void checkCentroid(CheckReport& report, pugi::xml_node fieldCentroid) {
    const ChildNumber latitude(fieldCentroid, tag::Latitude);
    const ChildNumber longitude(fieldCentroid, tag::Longitude);
    const bool zero = latitude.number.value == 0 && longitude.number.value == 0;
    if (latitude.node && longitude.node && !zero)
        return;
    report.add(FindingCode::CentroidZero, fieldCentroid, "", [&] {
        std::string found;
        for (const ChildNumber* value : {&latitude, &longitude}) {
            if (!value->node)
                found += fmt::format("{}{} is missing", found.empty() ? "" : ", ", value->name);
        }
        return Details{
            found.empty() ? "latitude and longitude are 0" : found,
            ReadAs{fmt::format("({}, {})", latitude.number.read(), longitude.number.read())}};
    });
}

void checkSpread(CheckReport& report, const FarmSpread& farm, pugi::xml_node fieldCentroid) {
    const std::optional<FarmSpread::Stray> stray = farm.strayOf(fieldCentroid);
    if (!stray)
        return;
    report.add(FindingCode::CentroidFar, fieldCentroid, "", [&] {
        std::string found = fmt::format("the centroid ({}, {})",
                                        ChildNumber(fieldCentroid, tag::Latitude).number.read(),
                                        ChildNumber(fieldCentroid, tag::Longitude).number.read());
        const std::string others =
            fmt::format("the other field{} of the farm", stray->ofTwo ? "" : "s");
        if (stray->kilometres)
            found += fmt::format(" is {} km from {}",
                                 grouped(fmt::format("{:.0f}", *stray->kilometres), ","), others);
        if (stray->kilometres && stray->slip)
            found += fmt::format("; {} it would be near", slipText(*stray->slip));
        else if (stray->slip)
            found += fmt::format(" would be near {} {}", others, slipText(*stray->slip));
        if (stray->ofTwo)
            found += "; the other one may be wrong instead";
        return Details{std::move(found), Kept{}};
    });
}

void checkCoordinate(CheckReport& report, pugi::xml_node coordinate) {
    constexpr double poles = 90;
    constexpr double halfCircle = 180;
    const bool latitude = std::string_view(coordinate.name()) == tag::Latitude;
    const char* const name = latitude ? tag::Latitude : tag::Longitude;
    checkRange(report, ChildNumber(coordinate.parent(), name), latitude ? poles : halfCircle);
}
