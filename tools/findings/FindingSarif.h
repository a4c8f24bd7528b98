/// @file
/// Findings and their codes as SARIF 2.1.0 has them.

#ifndef QENXML_TOOLS_FINDINGS_FINDINGSARIF_H
#define QENXML_TOOLS_FINDINGS_FINDINGSARIF_H

#include <cstddef>
#include <string>

#include "tools/check/Finding.h"

/// Where a result belongs.
struct SarifPlace {
    std::size_t rule;        ///< The index of its rule.
    std::string uri;         ///< Of the file.
    std::string fingerprint; ///< With the number among equal ones.
};

/// A code as an object "reportingDescriptor", with its explanation.
std::string toSarifRule(FindingCode code);

/// A finding as an object "result". One that is about no part of the file is at its beginning: some
/// programs show nothing that has no line.
std::string toSarif(const Finding& finding, const SarifPlace& place);

#endif
