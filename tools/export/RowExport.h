#ifndef QENXML_TOOLS_EXPORT_ROWEXPORT_H
#define QENXML_TOOLS_EXPORT_ROWEXPORT_H

#include <optional>
#include <string>
#include <vector>

#include "tools/export/ExportFormat.h"
#include "tools/export/OutputFields.h"
#include "tools/records/RecordWalk.h"

/// A format that is a table: a row per rec, with the columns of outputColumns().
class RowExport : public ExportFormat {
public:
    std::string package(PackageReading& reading) final;
    std::string merged(MergedGrowers& merged) final;

protected:
    /// A rec with all around it.
    virtual void writeRec(const OutputContext& context) = 0;

    /// A boundary of a field. By itself it is not written.
    ///
    /// @param context without a rec; without a boundary for a field that has none
    /// @param recs    how many recs the field has
    virtual void writeBoundary(const OutputContext& /*context*/, std::size_t /*recs*/) {}

    /// What the reader should know about the last package, as package() returns it.
    virtual std::string remark() { return ""; }

private:
    void write(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
               const OutputContext& origin);
    void write(const FieldContext& around, OutputContext context);
};

#endif
