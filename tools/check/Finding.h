#ifndef QENXML_TOOLS_CHECK_FINDING_H
#define QENXML_TOOLS_CHECK_FINDING_H

#include <optional>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "tools/check/Consequence.h"
#include "tools/check/FindingCodes.h"
#include "tools/text/SourceText.h"

/// A record of a package.
struct RecordName {
    const char* kind;                     ///< What it is: "farm".
    std::string name;                     ///< May be empty.
    std::optional<boost::uuids::uuid> id; ///< None where it cannot be read.
};

/// Something that is wrong, or likely wrong, with a package. All texts of the package in it are
/// escaped, so that every text is valid UTF-8 in one line.
struct Finding {
    FindingCode code;
    std::string found;                     ///< What is wrong.
    Consequence consequence;               ///< What reading makes of it.
    std::optional<Location> location = {}; ///< None when it is about no part of the file.
    std::string path = {};                 ///< Of the element or attribute; empty when in none.
    std::vector<RecordName> records = {};  ///< Those that it stands in, the outermost first.

    Severity severity() const { return kindOf(code).severity; }
};

/// Takes findings, of which there may be more than fit into memory. Of each finding it is given
/// either all, or the code alone.
class FindingSink {
public:
    virtual ~FindingSink() = default;

    /// Whether all of the next finding of a code is of use.
    virtual bool wants(FindingCode code) const = 0;

    virtual void add(const Finding& finding) = 0;

    /// One more was found of a code of which it wants no more than that.
    virtual void addCode(FindingCode /*code*/) {}

    /// Gives a finding that is there anyway, in the one way or the other.
    void offer(const Finding& finding) {
        if (wants(finding.code))
            add(finding);
        else
            addCode(finding.code);
    }

    /// How much of a file is checked, called now and then.
    /// @param part from 0 to 1
    virtual void progress(double /*part*/) {}

protected:
    FindingSink() = default;
    FindingSink(const FindingSink&) = default;
    FindingSink(FindingSink&&) = default;
    FindingSink& operator=(const FindingSink&) = default;
    FindingSink& operator=(FindingSink&&) = default;
};

#endif
