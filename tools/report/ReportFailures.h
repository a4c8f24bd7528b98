#ifndef QENXML_TOOLS_REPORT_REPORTFAILURES_H
#define QENXML_TOOLS_REPORT_REPORTFAILURES_H

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

/// The section about packages that are not, or not completely, read: why, and what to do.
class ReportFailures {
public:
    ReportFailures(const ReportData& data, const TextSink& sink) : data_(data), sink_(sink) {}

    /// Whether there are any.
    bool any() const;

    void write() const;

private:
    using Packages = std::vector<const ReportPackage*>;

    void writeGroup(const Packages& packages) const;
    void write(const ReportPackage& package) const;

    const ReportData& data_;
    const TextSink& sink_;
};

#endif
