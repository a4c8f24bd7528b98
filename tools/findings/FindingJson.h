#ifndef QENXML_TOOLS_FINDINGS_FINDINGJSON_H
#define QENXML_TOOLS_FINDINGS_FINDINGJSON_H

#include <string>

#include "tools/check/Finding.h"

/// A finding as a JSON object, as docs/findings.schema.json describes it.
///
/// @param fingerprint as FingerprintTexts gives it
std::string toJson(const Finding& finding, const std::string& fingerprint);

/// A text as a JSON string.
///
/// @param text valid UTF-8
std::string toJson(const std::string& text);

#endif
