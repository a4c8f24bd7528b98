#ifndef QENXML_TOOLS_CHECK_RATECHECK_H
#define QENXML_TOOLS_CHECK_RATECHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks whether a child of a RecStats element, if it is a rate, makes sense beside the others.
void checkRate(CheckReport& report, pugi::xml_node child);

#endif
