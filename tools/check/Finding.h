#ifndef QENXML_TOOLS_CHECK_FINDING_H
#define QENXML_TOOLS_CHECK_FINDING_H

#include <cstddef>
#include <optional>
#include <string>

#include "tools/check/FindingCodes.h"
#include "tools/text/SourceText.h"

/// Something that is wrong, or likely wrong, with a package. All texts of the package in it are
/// escaped, so that every text is valid UTF-8 in one line.
struct Finding {
    std::string code; ///< Stands for what is wrong; one of findingKinds.
    Severity severity = Severity::Error;
    std::optional<Position> position; ///< Where in the file; none when it is about no place in it.
    std::string path;        ///< Of the element or attribute; empty for the file as a whole.
    std::string records;     ///< The names of the records around it; may be empty.
    std::string found;       ///< What is wrong.
    std::string consequence; ///< What reading makes of it.
    Excerpt excerpt;         ///< The line of the file, with a position only.
};

/// Takes findings, of which there may be more than fit into memory.
class FindingSink {
public:
    FindingSink() = default;
    FindingSink(const FindingSink&) = delete;
    FindingSink& operator=(const FindingSink&) = delete;
    virtual ~FindingSink() = default;

    /// Something was found. Answers whether add() shall be called with it.
    virtual bool wants(FindingCode code) = 0;

    virtual void add(const Finding& finding) = 0;

    /// How much of a file is checked, called now and then.
    /// @param part from 0 to 1
    virtual void progress(double /*part*/) {}
};

#endif
