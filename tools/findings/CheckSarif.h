#ifndef QENXML_TOOLS_FINDINGS_CHECKSARIF_H
#define QENXML_TOOLS_FINDINGS_CHECKSARIF_H

#include <memory>

#include "tools/findings/CheckWriter.h"
#include "tools/output/Console.h"

/// All findings as a log in SARIF 2.1.0, for what shows results of checks beside a change.
std::unique_ptr<CheckWriter> makeCheckSarif(Console& console, const CheckScope& scope);

#endif
