#ifndef QENXML_TOOLS_CHECK_RECDATACHECK_H
#define QENXML_TOOLS_CHECK_RECDATACHECK_H

#include <pugixml.hpp>

#include "tools/check/ElementCheck.h"

/// Checks a RecData element: whether a product is read from it, and which.
void checkRecData(ElementCheck& check, pugi::xml_node node);

#endif
