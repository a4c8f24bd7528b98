#ifndef QENXML_TOOLS_REPORT_FIELDPARTS_H
#define QENXML_TOOLS_REPORT_FIELDPARTS_H

#include <vector>

#include "tools/report/ReportMap.h"

/// Kilometres without a field in them that part a farm into several maps.
constexpr double partingKilometres = 25.0;

/// The fields of a farm in parts that lie apart from each other, the largest part first. Fields
/// that are less than partingKilometres apart are in the same part.
std::vector<std::vector<MapPoint>> fieldParts(std::vector<MapPoint> points);

#endif
