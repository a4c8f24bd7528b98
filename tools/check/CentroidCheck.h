#ifndef QENXML_TOOLS_CHECK_CENTROIDCHECK_H
#define QENXML_TOOLS_CHECK_CENTROIDCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"
#include "tools/check/FarmSpread.h"

/// Checks whether a FieldCentroid element tells a place.
void checkCentroid(CheckReport& report, pugi::xml_node fieldCentroid);

/// Checks whether a FieldCentroid element tells a place near the other fields of its farm.
void checkSpread(CheckReport& report, const FarmSpread& farm, pugi::xml_node fieldCentroid);

/// Checks whether a coordinate in a FieldCentroid element is one of the earth.
void checkCoordinate(CheckReport& report, pugi::xml_node coordinate);

#endif
