#ifndef QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H
#define QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks whether the rates of a RecStats element make sense.
void checkRates(CheckReport& report, pugi::xml_node recStats);

/// Checks whether the coordinates of a FieldCentroid element make sense.
void checkCentroid(CheckReport& report, pugi::xml_node fieldCentroid);

#endif
