#include "tools/records/Centroid.h"

#include <cmath>

#include "parser/internal/TagConstants.h"

namespace tag = qenxml::tag;

bool isPlace(const LLA& centroid, const MissingNumbers& missing) {
    constexpr double largestLatitude = 90.0;
    constexpr double largestLongitude = 180.0;
    // Comparisons with "not a number" are false.
    return !missing.contains(tag::Latitude) && !missing.contains(tag::Longitude) &&
           std::abs(centroid.latitude) <= largestLatitude &&
           std::abs(centroid.longitude) <= largestLongitude &&
           (centroid.latitude != 0.0 || centroid.longitude != 0.0);
}
