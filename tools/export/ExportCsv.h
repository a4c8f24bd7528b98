#ifndef QENXML_TOOLS_EXPORT_EXPORTCSV_H
#define QENXML_TOOLS_EXPORT_EXPORTCSV_H

#include <memory>
#include <string>
#include <string_view>

#include "tools/export/ExportFormat.h"
#include "tools/export/TableLayout.h"
#include "tools/output/Output.h"

/// A table with a row per rec, as a spreadsheet opens it: comma-separated values (RFC 4180) in
/// UTF-8.
std::unique_ptr<ExportFormat> makeCsvExport(TextSink sink, const TableLayout& layout);

/// A text of a package as a cell. What a spreadsheet would take for a formula gets an apostrophe
/// before it, for a formula can send the table away: at the beginning of the text, and where
/// another cell begins for programs that split lines at semicolons or tabs. What is no valid UTF-8,
/// and control characters, which spreadsheets refuse, are replaced.
std::string csvText(std::string_view text, char delimiter = ',');

#endif
