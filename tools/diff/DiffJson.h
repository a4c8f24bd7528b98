#ifndef QENXML_TOOLS_DIFF_DIFFJSON_H
#define QENXML_TOOLS_DIFF_DIFFJSON_H

#include <memory>

#include "tools/diff/RecordDifference.h"
#include "tools/output/Console.h"

/// The differences for programs: a JSON document, of which docs/diff.schema.json is the schema.
std::unique_ptr<DiffWriter> makeDiffJson(Console& console);

#endif
