#ifndef QENXML_TOOLS_REPORT_MAPPROJECTION_H
#define QENXML_TOOLS_REPORT_MAPPROJECTION_H

#include <string>
#include <vector>

#include "tools/report/ReportMap.h"

constexpr double degreesAround = 360.0;         ///< All longitudes.
constexpr double kilometresPerDegree = 111.195; ///< Of latitude.
constexpr double radiansPerDegree = 3.14159265358979323846 / 180.0;

/// The longitude of a point, from 0 to 360.
double eastward(const MapPoint& point);

/// Numbers from one to another.
struct Range {
    double from;
    double to;

    double span() const { return to - from; }
    double middle() const { return from + span() / 2.0; }

    /// Makes it larger on both sides, if it is smaller than that.
    void widenTo(double least);
};

/// Which part of the earth the map shows, and where a place is in its picture.
class MapProjection {
public:
    static constexpr double width = 600.0;

    /// @param points not empty
    explicit MapProjection(const std::vector<MapPoint>& points);

    double height() const { return height_; }
    double x(double longitude) const;
    double y(double latitude) const;

    /// The longitude, beyond 180 where the map goes on to the east of the 180th meridian.
    double longitude(const MapPoint& point) const;

    /// What is between the outermost fields.
    const Range& latitudes() const { return latitudes_; }
    const Range& longitudes() const { return longitudes_; }

    /// What the picture shows up to its edges.
    Range shownLatitudes() const;
    Range shownLongitudes() const;

    /// Units of the picture per degree.
    double perDegreeOfLatitude() const { return scale_; }
    double perDegreeOfLongitude() const { return scale_ * shrink_; }

private:
    Range latitudes_;
    Range longitudes_;
    bool shifted_ = false; // whether longitudes are counted from 0 to 360
    double shrink_ = 1.0;  // how much shorter a degree of longitude is
    double scale_ = 1.0;
    double height_ = 0.0;
};

/// "44.70° N"; without a letter at the equator.
std::string latitudeText(double latitude, int decimals);

/// "95.02° W"; without a letter at 0 and 180 degrees, which are neither east nor west.
std::string longitudeText(double longitude, int decimals);

#endif
