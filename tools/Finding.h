#ifndef QENXML_TOOLS_FINDING_H
#define QENXML_TOOLS_FINDING_H

#include <optional>
#include <string>

#include "tools/SourceText.h"

/// How bad a finding is, the least first.
enum class Severity {
    Note,    ///< Read as it is written, but hardly meant so.
    Warning, ///< Read, but something of it is lost or changed.
    Error    ///< Reading the package fails here.
};

/// Something that is wrong, or likely wrong, with a package. All texts of the package in it are
/// escaped, so that every text is valid UTF-8 in one line.
struct Finding {
    std::string code; ///< Stands for what is wrong; one of the codes of docs/findings.md.
    Severity severity = Severity::Error;
    std::optional<Position> position; ///< Where in the file; none when it is about no place in it.
    std::string path;        ///< Of the element or attribute; empty for the file as a whole.
    std::string records;     ///< The names of the records around it; may be empty.
    std::string found;       ///< What is wrong.
    std::string consequence; ///< What reading makes of it.
};

#endif
