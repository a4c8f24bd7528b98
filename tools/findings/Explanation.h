#ifndef QENXML_TOOLS_FINDINGS_EXPLANATION_H
#define QENXML_TOOLS_FINDINGS_EXPLANATION_H

#include <optional>
#include <string>
#include <string_view>

#include "tools/check/FindingCodes.h"

/// What a code of findings means: its entry in docs/findings.md, in plain text, each in one line.
struct Explanation {
    std::string cause;
    std::string example; ///< A part of a package, a file name or a command.
    std::string cure;
};

Explanation explanationOf(FindingCode code);

/// The code of a name such as "empty-name".
std::optional<FindingCode> codeNamed(std::string_view name);

/// What is wrong with a name that shall be one of a code, with the nearest that is; empty when
/// nothing is.
std::string describeWrongCode(const std::string& name);

#endif
