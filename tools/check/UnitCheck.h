#ifndef QENXML_TOOLS_CHECK_UNITCHECK_H
#define QENXML_TOOLS_CHECK_UNITCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Finds a rate, total or area of which neither the text nor the code of a unit is given.
///
/// @param child of a RecStats element, which the report is in
void checkUnit(CheckReport& report, pugi::xml_node child);

#endif
