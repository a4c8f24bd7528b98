#ifndef QENXML_TOOLS_REPORT_REPORTFIELDS_H
#define QENXML_TOOLS_REPORT_REPORTFIELDS_H

#include <cstddef>

#include "tools/output/Output.h"
#include "tools/records/RecordWalk.h"
#include "tools/report/ReportData.h"

/// The section that lists fields and their recs, by package.
class ReportFields {
public:
    ReportFields(ReportData& data, const TextSink& sink) : data_(data), sink_(sink) {}

    void write();

private:
    bool isFull() const {
        return fields_ >= ReportData::mostFields || recs_ >= ReportData::mostRecs;
    }

    void write(PackageRecords& records);
    void write(QenGrower& grower, const GrowerGaps& gaps);
    void write(const FieldContext& context);
    void writeRecs(const FieldContext& context);
    void writeRest();

    ReportData& data_;
    const TextSink& sink_;
    std::size_t fields_ = 0; // written so far
    std::size_t recs_ = 0;   // written so far
};

#endif
