#ifndef QENXML_TOOLS_FINDINGS_CHECKTEXT_H
#define QENXML_TOOLS_FINDINGS_CHECKTEXT_H

#include <memory>

#include "tools/findings/CheckWriter.h"
#include "tools/output/Console.h"

/// The findings for people: those of each file when it is checked, the first ten of each code; and
/// of several files statistics at the end.
std::unique_ptr<CheckWriter> makeCheckText(Console& console, const CheckScope& scope);

#endif
