#ifndef QENXML_TOOLS_CHECK_PACKAGEWALK_H
#define QENXML_TOOLS_CHECK_PACKAGEWALK_H

#include <pugixml.hpp>

#include "tools/check/Finding.h"
#include "tools/text/SourceText.h"

/// Finds what is wrong with a document: walks it as the library does, but on after each error.
///
/// @param document loaded by @p source
void walkPackage(const pugi::xml_document& document, const SourceText& source, FindingSink& sink);

#endif
