#ifndef QENXML_TOOLS_FINDINGS_CHECKWRITER_H
#define QENXML_TOOLS_FINDINGS_CHECKWRITER_H

#include <string>

#include "tools/check/Finding.h"

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
