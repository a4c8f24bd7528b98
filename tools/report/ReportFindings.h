#ifndef QENXML_TOOLS_REPORT_REPORTFINDINGS_H
#define QENXML_TOOLS_REPORT_REPORTFINDINGS_H

#include <cstddef>

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// The section about what is wrong with packages: of each code what to do, and the first findings.
class ReportFindings {
public:
    ReportFindings(const ReportData& data, const TextSink& sink) : data_(data), sink_(sink) {}

    void write() const;

private:
    void write(FindingCode code) const;
    void write(const PackageFinding& found) const;
    /// @param more     how many there are besides
    /// @param packages in how many packages; 0 where that is not known
    void writeMore(std::size_t more, std::size_t packages) const;

    const ReportData& data_;
    const TextSink& sink_;
};

#endif
