#include "tools/records/Centroid.h"

#include <cmath>

bool isPlace(const LLA& centroid) {
    constexpr double largestLatitude = 90.0;
    constexpr double largestLongitude = 180.0;
    // Comparisons with "not a number" are false.
    return std::abs(centroid.latitude) <= largestLatitude &&
           std::abs(centroid.longitude) <= largestLongitude &&
           (centroid.latitude != 0.0 || centroid.longitude != 0.0);
}
