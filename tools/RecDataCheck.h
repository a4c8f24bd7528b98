#ifndef QENXML_TOOLS_RECDATACHECK_H
#define QENXML_TOOLS_RECDATACHECK_H

#include <pugixml.hpp>

#include "tools/ElementCheck.h"

/// Checks a RecData element: whether a product is read from it, and which.
void checkRecData(ElementCheck& check, pugi::xml_node node);

#endif
