#ifndef QENXML_TOOLS_CHECK_DATECHECK_H
#define QENXML_TOOLS_CHECK_DATECHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks an element, if it holds a date: one of a field's geometry or of a rec.
void checkDate(CheckReport& report, pugi::xml_node child);

#endif
