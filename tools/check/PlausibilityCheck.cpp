#include "tools/check/PlausibilityCheck.h"

#include <string>

#include <fmt/format.h>

#include "parser/TagNames.h"
#include "tools/check/NumberReading.h"
#include "tools/check/PackageFormat.h"

namespace tag = qenxml::tag;

namespace {

using Texts = CheckReport::Texts;

/// A number that may be there.
struct Value {
    Value(pugi::xml_node parent, const char* childName)
        : name(childName),
          node(parent.child(childName)),
          number(readNumber(node.text().as_string())) {}

    const char* name;
    pugi::xml_node node;
    NumberReading number;
};

void checkOrder(CheckReport& report, const Value& small, const Value& large) {
    if (!small.node || !large.node || !(small.number.value > large.number.value))
        return;
    report.add(FindingCode::RateOrder, report.source().offset(small.node), small.name, [&] {
        return Texts{fmt::format("{} {} is above {} {}", small.name, small.number.read, large.name,
                                 large.number.read),
                     "the rates are kept as they are"};
    });
}

void checkRange(CheckReport& report, const Value& value, double limit) {
    if (value.number.value >= -limit && value.number.value <= limit)
        return;
    report.add(FindingCode::CentroidRange, report.source().offset(value.node), value.name, [&] {
        return Texts{fmt::format("{} {} is not between {} and {}", value.name, value.number.read,
                                 -limit, limit),
                     "the field is somewhere off the map"};
    });
}

} // namespace

void checkRates(CheckReport& report, pugi::xml_node recStats) {
    const Value minimum(recStats, tag::MinimumRate);
    const Value average(recStats, tag::AverageRate);
    const Value maximum(recStats, tag::MaximumRate);
    checkOrder(report, minimum, average);
    checkOrder(report, average, maximum);
    if (!average.node)
        checkOrder(report, minimum, maximum);

    const bool hasUnit = *recStats.child(tag::RateUOM).text().as_string() != '\0' ||
                         recStats.child(tag::RateUOMID).text().as_int() != 0;
    for (const Value* rate : {&minimum, &average, &maximum}) {
        if (hasUnit || rate->number.value == 0)
            continue;
        report.add(FindingCode::RateWithoutUnit, report.source().offset(rate->node), rate->name,
                   [&] {
                       return Texts{fmt::format("{} is {}, without a {} or {}", rate->name,
                                                rate->number.read, tag::RateUOM, tag::RateUOMID),
                                    "nobody can tell what the rates mean"};
                   });
        return;
    }
}

void checkCentroid(CheckReport& report, pugi::xml_node fieldCentroid) {
    constexpr double poles = 90;
    constexpr double halfCircle = 180;
    const Value latitude(fieldCentroid, tag::Latitude);
    const Value longitude(fieldCentroid, tag::Longitude);
    checkRange(report, latitude, poles);
    checkRange(report, longitude, halfCircle);
    const bool zero = latitude.number.value == 0 && longitude.number.value == 0;
    if (latitude.node && longitude.node && !zero)
        return;
    report.add(FindingCode::CentroidZero, report.source().offset(fieldCentroid), "", [&] {
        std::string found;
        for (const Value* value : {&latitude, &longitude}) {
            if (!value->node)
                found += fmt::format("{}{} is missing", found.empty() ? "" : ", ", value->name);
        }
        return Texts{found.empty() ? "latitude and longitude are 0" : found,
                     fmt::format("the centroid is read as ({}, {})", latitude.number.read,
                                 longitude.number.read)};
    });
}
