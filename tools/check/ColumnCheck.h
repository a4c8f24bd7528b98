#ifndef QENXML_TOOLS_CHECK_COLUMNCHECK_H
#define QENXML_TOOLS_CHECK_COLUMNCHECK_H

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// Checks whether a DBF file can have a column that is called as a RecDBFCol says.
void checkColumn(CheckReport& report, pugi::xml_node recDbfCol);

#endif
