/// @file
/// What records are called.

#ifndef QENXML_TOOLS_COMPARE_RECORDNAMES_H
#define QENXML_TOOLS_COMPARE_RECORDNAMES_H

#include <vector>

#include "tools/check/Finding.h"
#include "tools/compare/RecordList.h"

/// "grower", "farm", "field", "boundary" or "rec".
const char* kindWord(Owner owner);

/// The records from the grower to the record itself, their names escaped.
std::vector<RecordName> namesOf(const RecordView& record);

#endif
