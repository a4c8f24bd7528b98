#ifndef QENXML_TOOLS_FINDINGS_CHECKTEXT_H
#define QENXML_TOOLS_FINDINGS_CHECKTEXT_H

#include <cstddef>
#include <memory>

#include "tools/findings/CheckWriter.h"
#include "tools/output/Console.h"

/// The findings for people: those of each file when it is checked, the first ten of each code.
///
/// @param files how many there will be
std::unique_ptr<CheckWriter> makeCheckText(Console& console, std::size_t files);

#endif
