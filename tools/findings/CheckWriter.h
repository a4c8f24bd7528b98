#ifndef QENXML_TOOLS_FINDINGS_CHECKWRITER_H
#define QENXML_TOOLS_FINDINGS_CHECKWRITER_H

#include <string>

#include "tools/check/Finding.h"

/// How much of what is found people want to see.
enum class Detail {
    Sum,        ///< One line.
    Statistics, ///< Which files cannot be read, and how often each code was found.
    Findings,   ///< The findings, too.
    AllFiles    ///< And the files without findings.
};

/// What a check will write.
struct CheckScope {
    bool isOne = true; ///< There is only one file.
    Detail detail = Detail::Findings;
};

/// A format of `qenxml check`. It is written while packages are checked, so that no more of the
/// findings are in memory than it needs.
class CheckWriter {
public:
    CheckWriter() = default;
    CheckWriter(const CheckWriter&) = delete;
    CheckWriter& operator=(const CheckWriter&) = delete;
    virtual ~CheckWriter() = default;

    virtual void begin() {}

    /// @param path how the file is called, as it was given
    /// @return takes the findings of the file, until endFile()
    virtual FindingSink& beginFile(const std::string& path) = 0;

    virtual void endFile() = 0;

    virtual void end() {}
};

#endif
