#ifndef QENXML_TOOLS_DIFF_DIFFTEXT_H
#define QENXML_TOOLS_DIFF_DIFFTEXT_H

#include <memory>

#include "tools/diff/RecordDifference.h"
#include "tools/output/Console.h"

/// The differences for people: a line for each record, and below it one for each value that was
/// changed. Nothing when nothing differs.
std::unique_ptr<DiffWriter> makeDiffText(Console& console);

#endif
