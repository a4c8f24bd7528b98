#ifndef QENXML_TOOLS_CHECK_TOTALCHECK_H
#define QENXML_TOOLS_CHECK_TOTALCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks a Total element against the rates, the area and the units beside it.
void checkTotal(CheckReport& report, pugi::xml_node total);

#endif
