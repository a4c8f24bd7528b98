#ifndef QENXML_TOOLS_FINDINGS_CHECKJSON_H
#define QENXML_TOOLS_FINDINGS_CHECKJSON_H

#include <memory>

#include "tools/findings/CheckWriter.h"
#include "tools/output/Console.h"

/// All findings as one JSON document, as docs/findings.schema.json describes it.
std::unique_ptr<CheckWriter> makeCheckJson(Console& console, const CheckScope& scope);

#endif
