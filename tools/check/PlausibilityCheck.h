#ifndef QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H
#define QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks whether a child of a RecStats element, if it is a rate, makes sense beside the others.
void checkRate(CheckReport& report, pugi::xml_node child);

/// Checks whether a FieldCentroid element tells a place.
void checkCentroid(CheckReport& report, pugi::xml_node fieldCentroid);

/// Checks whether a coordinate in a FieldCentroid element is one of the earth.
void checkCoordinate(CheckReport& report, pugi::xml_node coordinate);

#endif
