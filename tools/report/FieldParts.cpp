#include "tools/report/FieldParts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

#include "tools/report/MapProjection.h"

namespace {

using Points = std::vector<MapPoint>;

double northward(const MapPoint& point) {
    return point.centroid.latitude;
}

/// How far east the next of sorted points is, around the earth behind the last one.
double gapBehind(const Points& points, std::size_t index) {
    const bool isLast = index + 1 == points.size();
    const double next = eastward(isLast ? points.front() : points[index + 1]);
    return next - eastward(points[index]) + (isLast ? degreesAround : 0.0);
}

/// Sorts points from west to east, beginning behind the widest gap.
void sortEastward(Points& points) {
    std::stable_sort(points.begin(), points.end(), [](const MapPoint& a, const MapPoint& b) {
        return eastward(a) < eastward(b);
    });
    std::size_t widest = points.size() - 1;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (gapBehind(points, i) > gapBehind(points, widest))
            widest = i;
    }
    const auto begin = points.begin() + static_cast<std::ptrdiff_t>(widest + 1);
    std::rotate(points.begin(), begin, points.end());
}

/// Parts sorted points where the difference of neighbours is too large.
template <class Difference>
std::vector<Points> cut(Points points, double most, Difference difference) {
    std::vector<Points> parts(1);
    for (MapPoint& point : points) {
        if (!parts.back().empty() && difference(parts.back().back(), point) > most)
            parts.emplace_back();
        parts.back().push_back(std::move(point));
    }
    return parts;
}

std::vector<Points> cutNorthward(Points points) {
    std::stable_sort(points.begin(), points.end(), [](const MapPoint& a, const MapPoint& b) {
        return northward(a) < northward(b);
    });
    return cut(std::move(points), partingKilometres / kilometresPerDegree,
               [](const MapPoint& a, const MapPoint& b) { return northward(b) - northward(a); });
}

/// Where degrees of longitude are shortest decides, so that no fields are parted that are near.
std::vector<Points> cutEastward(Points points) {
    double shortest = 1.0;
    for (const MapPoint& point : points)
        shortest = std::min(shortest, std::cos(northward(point) * radiansPerDegree));
    sortEastward(points);
    return cut(std::move(points),
               partingKilometres / kilometresPerDegree / std::max(shortest, 1e-6),
               [](const MapPoint& a, const MapPoint& b) {
                   const double degrees = eastward(b) - eastward(a);
                   return degrees < 0.0 ? degrees + degreesAround : degrees;
               });
}

} // namespace

std::vector<Points> fieldParts(Points points) {
    std::vector<Points> found;
    std::vector<Points> open = {std::move(points)};
    // What was cut in the one direction may have to be cut once more in the other.
    while (!open.empty()) {
        std::vector<Points> strips = cutNorthward(std::move(open.back()));
        open.pop_back();
        for (Points& strip : strips) {
            std::vector<Points> parts = cutEastward(std::move(strip));
            auto& rest = parts.size() == 1 ? found : open;
            std::move(parts.begin(), parts.end(), std::back_inserter(rest));
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Points& a, const Points& b) { return a.size() > b.size(); });
    return found;
}
