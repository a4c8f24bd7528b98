#ifndef QENXML_TOOLS_EXPORT_EXPORTFORMAT_H
#define QENXML_TOOLS_EXPORT_EXPORTFORMAT_H

#include <string>

#include "tools/input/PackageReading.h"
#include "tools/records/MergedGrowers.h"

/// A format of `qenxml export`. It is written while packages are read, so that no more than one of
/// them is in memory.
class ExportFormat {
public:
    ExportFormat() = default;
    ExportFormat(const ExportFormat&) = delete;
    ExportFormat& operator=(const ExportFormat&) = delete;
    virtual ~ExportFormat() = default;

    /// @param merged whether the growers of all packages come together, after the packages
    virtual void begin(bool merged) = 0;

    /// Takes what is wrong with the next package; null when the format has no place for that.
    ///
    /// @param file what the file of the package is called
    virtual FindingSink* findings(const std::string& /*file*/) { return nullptr; }

    /// A package with its growers, or without them when they come later.
    ///
    /// @return what the reader should know about it, safe to print; mostly nothing
    virtual std::string package(PackageReading& reading) = 0;

    /// The merged growers. What comes back is as in package().
    virtual std::string merged(MergedGrowers& merged) = 0;

    virtual void end() = 0;
};

#endif
