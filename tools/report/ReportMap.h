#ifndef QENXML_TOOLS_REPORT_REPORTMAP_H
#define QENXML_TOOLS_REPORT_REPORTMAP_H

#include <string>
#include <vector>

#include "model/QenFieldGeometry.h"

/// A field on the map.
struct MapPoint {
    std::string name; ///< By escape().
    LLA centroid;     ///< A place: see isPlace().
};

/// A map in SVG with a point for each field, lines of latitude and longitude, a scale, and names
/// where there is room for them. North is up, and distances are true in the middle of the map.
///
/// @param points not empty
std::string reportMap(const std::vector<MapPoint>& points);

#endif
