#ifndef QENXML_TOOLS_EXPORT_ROWJSON_H
#define QENXML_TOOLS_EXPORT_ROWJSON_H

#include <string>

#include "tools/export/OutputFields.h"

/// Appends a row as an object of JSON in one line, with a member for each column, so that a table
/// can be made of the rows: null where nothing is known, or a number is not finite, for which JSON
/// has no number.
void appendRow(std::string& text, const OutputContext& context);

#endif
