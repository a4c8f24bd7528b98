#ifndef QENXML_TOOLS_FINDINGS_EXPLANATION_H
#define QENXML_TOOLS_FINDINGS_EXPLANATION_H

#include <string>

#include "tools/check/FindingCodes.h"

/// What a code of findings means: its entry in docs/findings.md, in plain text, each in one line.
struct Explanation {
    std::string cause;
    std::string example; ///< A part of a package, a file name or a command.
    std::string cure;
};

Explanation explanationOf(FindingCode code);

/// The code of a name such as "empty-name".
///
/// @throws std::invalid_argument with a sentence that names the nearest code, when there is none
FindingCode codeNamed(const std::string& name);

#endif
