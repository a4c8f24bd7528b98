#ifndef QENXML_TOOLS_WORKBOOK_EXPORTXLSX_H
#define QENXML_TOOLS_WORKBOOK_EXPORTXLSX_H

#include <memory>

#include "tools/export/ExportFormat.h"
#include "tools/output/Output.h"
#include "tools/workbook/Workbook.h"

/// A workbook with a table of recs, one of the boundaries of fields and one of all findings.
std::unique_ptr<ExportFormat> makeXlsxExport(TextSink sink);

/// The same.
///
/// @param rowsPerSheet of each table, with that of the titles
std::unique_ptr<ExportFormat> makeXlsxExportInSheets(TextSink sink, std::size_t rowsPerSheet);

#endif
