#include "tools/check/FarmSpread.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "parser/internal/Number.h"
#include "parser/internal/TagConstants.h"
#include "tools/check/PlausibilityLimits.h"

namespace tag = qenxml::tag;

namespace {

using Point = std::array<double, 3>;
using Slip = FarmSpread::Slip;

struct Place {
    double latitude;
    double longitude;
};

double coordinate(pugi::xml_node fieldCentroid, const char* name) {
    const char* const text = fieldCentroid.child(name).text().as_string();
    return *text == '\0' ? std::numeric_limits<double>::quiet_NaN()
                         : qenxml::decodeNumber(text, nullptr);
}

Place placeOf(pugi::xml_node fieldCentroid) {
    return {coordinate(fieldCentroid, tag::Latitude), coordinate(fieldCentroid, tag::Longitude)};
}

/// Whether it is a place. (0, 0) is written for "none".
bool isPlace(const Place& place) {
    // Comparisons with "not a number" are false.
    return std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180 &&
           (place.latitude != 0 || place.longitude != 0);
}

Point pointOf(const Place& place) {
    constexpr double degree = 3.14159265358979323846 / 180;
    const double latitude = place.latitude * degree;
    const double longitude = place.longitude * degree;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

double kilometres(const Point& a, const Point& b) {
    constexpr double radius = 6371;
    const double chord = std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
    return 2 * radius * std::asin(std::min(1.0, chord / 2));
}

/// Whether all places lie so close together that none is far from others. Most farms are like that,
/// and cost no more.
bool areTogether(const std::vector<Place>& places) {
    constexpr double degrees = 1.2; // both ways, which is less than 200 km from corner to corner
    const auto isBelow = [](double Place::*coordinate) {
        return
            [coordinate](const Place& a, const Place& b) { return a.*coordinate < b.*coordinate; };
    };
    for (double Place::*coordinate : {&Place::latitude, &Place::longitude}) {
        const auto [least, most] =
            std::minmax_element(places.begin(), places.end(), isBelow(coordinate));
        if (least != places.end() && (*most).*coordinate - (*least).*coordinate > degrees)
            return false;
    }
    return true;
}

/// The middle of most points: those that stray do not move it.
Point middleOf(std::vector<Point> points) {
    Point middle = {};
    const auto half = points.begin() + static_cast<std::ptrdiff_t>(points.size() / 2);
    for (std::size_t axis = 0; axis < middle.size(); ++axis) {
        std::nth_element(
            points.begin(), half, points.end(),
            [axis](const Point& a, const Point& b) { return a.at(axis) < b.at(axis); });
        middle.at(axis) = half->at(axis);
    }
    const double length = std::hypot(middle[0], middle[1], middle[2]);
    if (length > 0)
        for (double& value : middle)
            value /= length;
    return middle;
}

/// Within how many kilometres of a point two thirds of others lie.
double usualDistance(const std::vector<Point>& points, const Point& centre) {
    std::vector<double> distances;
    distances.reserve(points.size());
    for (const Point& point : points)
        distances.push_back(kilometres(point, centre));
    const auto most = distances.begin() + static_cast<std::ptrdiff_t>((2 * points.size() - 1) / 3);
    std::nth_element(distances.begin(), most, distances.end());
    return *most;
}

Place without(Slip slip, const Place& place) {
    switch (slip) {
    case Slip::Latitude:
        return {-place.latitude, place.longitude};
    case Slip::Longitude:
        return {place.latitude, -place.longitude};
    case Slip::BothSigns:
        return {-place.latitude, -place.longitude};
    case Slip::Swapped:
        break;
    }
    return {place.longitude, place.latitude};
}

/// The slip without which a place is nearest to a point.
///
/// @param reach how many kilometres from there it has to be then
std::optional<Slip> slipOf(const Place& place, const Point& point, double reach) {
    std::optional<Slip> nearest;
    for (const Slip slip : {Slip::Latitude, Slip::Longitude, Slip::BothSigns, Slip::Swapped}) {
        const Place meant = without(slip, place);
        const double distance = isPlace(meant) ? kilometres(pointOf(meant), point) : reach + 1;
        if (distance > reach)
            continue;
        reach = distance;
        nearest = slip;
    }
    return nearest;
}

} // namespace

FarmSpread::FarmSpread(pugi::xml_node farm) {
    std::vector<Place> places;
    bool offTheEarth = false;
    for (pugi::xml_node field = farm.child(tag::Field); field; field = field.next_sibling()) {
        const pugi::xml_node centroid = field.child(tag::FieldCentroid);
        const Place place = placeOf(centroid);
        offTheEarth = offTheEarth || std::abs(place.latitude) > 90;
        if (!isPlace(place))
            continue;
        places.push_back(place);
        last_ = centroid;
    }
    if (places.empty() || (!offTheEarth && areTogether(places)))
        return;
    std::vector<Point> points;
    points.reserve(places.size());
    std::transform(places.begin(), places.end(), std::back_inserter(points), pointOf);
    count_ = points.size();
    others_ = count_ == 2 ? points.front() : middleOf(points);
    usual_ = usualDistance(points, others_);
}

std::optional<FarmSpread::Stray> FarmSpread::strayOf(pugi::xml_node fieldCentroid) const {
    if (count_ == 0)
        return std::nullopt;
    const Place place = placeOf(fieldCentroid);
    const double amongOthers = plausible::nearAsOthers * usual_;
    if (!isPlace(place)) {
        const auto slip = slipOf(place, others_, std::max(amongOthers, plausible::nearAtMost));
        return slip ? std::optional(Stray{std::nullopt, slip}) : std::nullopt;
    }
    const bool ofTwo = count_ == 2;
    const double distance = kilometres(pointOf(place), others_);
    const double far =
        count_ < plausible::manyFields ? plausible::farBySlip : plausible::farBySlipAmongMany;
    if (count_ == 1 || distance <= far || (ofTwo && fieldCentroid != last_) ||
        (!ofTwo && distance <= plausible::farBeyondOthers * usual_))
        return std::nullopt;
    const double near = std::min(plausible::nearPart * distance, plausible::nearAtMost);
    const auto slip = slipOf(place, others_, ofTwo ? near : std::max(near, amongOthers));
    if (!slip && (ofTwo || distance <= plausible::farAway))
        return std::nullopt;
    return Stray{distance, slip, ofTwo};
}
