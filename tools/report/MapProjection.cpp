#include "tools/report/MapProjection.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace {

constexpr double leastHeight = 260.0;
constexpr double mostHeight = 420.0;
constexpr double margin = 48.0;       // above and below the points
constexpr double sideMargin = 100.0;  // where latitudes and names have room
constexpr double leastDegrees = 0.01; // what the map shows at least: a kilometre

template <class Value>
Range rangeOf(const std::vector<MapPoint>& points, Value value) {
    Range range{value(points.front()), value(points.front())};
    for (const MapPoint& point : points) {
        range.from = std::min(range.from, value(point));
        range.to = std::max(range.to, value(point));
    }
    return range;
}

std::string degreesText(double degrees, int decimals, const char* letter) {
    return fmt::format("{:.{}f}\u00B0 {}", degrees, decimals, letter);
}

/// Whether nothing is left of a number when it is written with so many decimals.
bool isWrittenAsZero(double number, int decimals) {
    return std::abs(number) * std::pow(10.0, decimals) < 0.5;
}

} // namespace

double eastward(const MapPoint& point) {
    const double longitude = point.centroid.longitude;
    return longitude < 0.0 ? longitude + degreesAround : longitude;
}

void Range::widenTo(double least) {
    const double missing = std::max(0.0, least - span());
    from -= missing / 2.0;
    to += missing / 2.0;
}

MapProjection::MapProjection(const std::vector<MapPoint>& points)
    : latitudes_(rangeOf(points, [](const MapPoint& p) { return p.centroid.latitude; })),
      longitudes_(rangeOf(points, [](const MapPoint& p) { return p.centroid.longitude; })) {
    // Fields on both sides of the 180th meridian may be near each other.
    const Range shifted = rangeOf(points, eastward);
    if (shifted.span() < longitudes_.span()) {
        longitudes_ = shifted;
        shifted_ = true;
    }
    shrink_ = std::max(0.05, std::cos(latitudes_.middle() * radiansPerDegree));
    latitudes_.widenTo(leastDegrees);
    longitudes_.widenTo(leastDegrees / shrink_);
    const double room = width - 2.0 * sideMargin;
    scale_ = room / (longitudes_.span() * shrink_);
    scale_ = std::min(scale_, (mostHeight - 2.0 * margin) / latitudes_.span());
    height_ = std::max(leastHeight, latitudes_.span() * scale_ + 2.0 * margin);
}

double MapProjection::x(double longitude) const {
    return width / 2.0 + (longitude - longitudes_.middle()) * perDegreeOfLongitude();
}

double MapProjection::y(double latitude) const {
    return height_ / 2.0 - (latitude - latitudes_.middle()) * scale_;
}

double MapProjection::longitude(const MapPoint& point) const {
    return shifted_ ? eastward(point) : point.centroid.longitude;
}

Range MapProjection::shownLatitudes() const {
    const double half = height_ / 2.0 / scale_;
    return {std::max(-90.0, latitudes_.middle() - half),
            std::min(90.0, latitudes_.middle() + half)};
}

Range MapProjection::shownLongitudes() const {
    const double half = width / 2.0 / perDegreeOfLongitude();
    return {longitudes_.middle() - half, longitudes_.middle() + half};
}

std::string latitudeText(double latitude, int decimals) {
    const double degrees = std::min(90.0, std::abs(latitude));
    if (isWrittenAsZero(degrees, decimals))
        return "0\u00B0";
    return degreesText(degrees, decimals, latitude < 0.0 ? "S" : "N");
}

std::string longitudeText(double longitude, int decimals) {
    const double east =
        std::remainder(longitude, degreesAround); // the picture may go around the earth
    const double degrees = std::abs(east);
    if (isWrittenAsZero(degrees, decimals))
        return "0\u00B0";
    if (isWrittenAsZero(180.0 - degrees, decimals))
        return "180\u00B0";
    return degreesText(degrees, decimals, east < 0.0 ? "W" : "E");
}
