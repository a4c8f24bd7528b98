#ifndef QENXML_TOOLS_REPORT_REPORTFINDINGS_H
#define QENXML_TOOLS_REPORT_REPORTFINDINGS_H

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
    void writeMore(const FindingGroup& group) const;

    const ReportData& data_;
    const TextSink& sink_;
};

#endif
