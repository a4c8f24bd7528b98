#include "tools/workbook/ExportXlsx.h"

#include <utility>

#include "tools/export/RowExport.h"
#include "tools/findings/FindingText.h"

namespace {

/// Whether a column is about more than a rec.
bool isAround(const OutputField& column) {
    return column.owner != Owner::Rec && column.owner != Owner::Product;
}

std::vector<std::string> recTitles() {
    std::vector<std::string> titles;
    for (const OutputField& column : outputColumns())
        titles.emplace_back(column.names.column);
    return titles;
}

std::vector<std::string> fieldTitles() {
    std::vector<std::string> titles;
    for (const OutputField& column : outputColumns()) {
        if (isAround(column))
            titles.emplace_back(column.names.column);
    }
    titles.emplace_back("recs");
    return titles;
}

std::vector<WorkbookCell> cellsOf(const Finding& finding, const std::string& file) {
    const FindingKind& kind = kindOf(finding.code);
    OutputValue line;
    OutputValue column;
    if (finding.location) {
        line = static_cast<int>(finding.location->begin.line);
        column = static_cast<int>(finding.location->begin.column);
    }
    // Not by a list in braces, which is copied: with the standard library of g++ 12, a program ends
    // that runs out of memory while it copies such a value.
    std::vector<WorkbookCell> cells;
    cells.push_back({file});
    cells.push_back({std::string(wordFor(kind.severity))});
    cells.push_back({std::string(kind.code)});
    cells.push_back({line});
    cells.push_back({column});
    cells.push_back({finding.found});
    cells.push_back({consequenceText(finding)});
    cells.push_back({finding.path});
    cells.push_back({recordsText(finding)});
    return cells;
}

class XlsxExport : public RowExport {
public:
    XlsxExport(TextSink sink, std::size_t rowsPerSheet)
        : sink_(std::move(sink)),
          workbook_(rowsPerSheet),
          recs_(workbook_.addTable("recs", recTitles())),
          fields_(workbook_.addTable("fields", fieldTitles())),
          findings_(workbook_) {}

    void begin(bool /*merged*/) override {}

    FindingSink* findings(const std::string& file) override {
        findings_.beginFile(file);
        return &findings_;
    }

    void end() override { workbook_.finish(sink_); }

private:
    /// The table of findings.
    class Findings : public FindingSink {
    public:
        explicit Findings(Workbook& workbook)
            : workbook_(workbook),
              table_(workbook.addTable("findings",
                                       {"file", "severity", "code", "line", "column",
                                        "what is wrong", "what comes of it", "path", "records"})) {}

        void beginFile(const std::string& file) { file_ = file; }
        bool wants(FindingCode /*code*/) const override { return true; }
        void add(const Finding& finding) override {
            workbook_.addRow(table_, cellsOf(finding, file_));
        }

    private:
        Workbook& workbook_;
        std::size_t table_;
        std::string file_;
    };

    void writeRec(const OutputContext& context) override {
        std::vector<WorkbookCell> cells;
        for (const OutputField& column : outputColumns())
            cells.push_back({column.cell(context), column.isDate});
        workbook_.addRow(recs_, cells);
    }

    void writeBoundary(const OutputContext& context, std::size_t recs) override {
        std::vector<WorkbookCell> cells;
        for (const OutputField& column : outputColumns()) {
            if (isAround(column))
                cells.push_back({column.cell(context), column.isDate});
        }
        cells.push_back({static_cast<int>(recs)});
        workbook_.addRow(fields_, cells);
    }

    TextSink sink_;
    Workbook workbook_;
    std::size_t recs_;
    std::size_t fields_;
    Findings findings_;
};

} // namespace

std::unique_ptr<ExportFormat> makeXlsxExport(TextSink sink) {
    return makeXlsxExportInSheets(std::move(sink), Workbook::mostRows);
}

std::unique_ptr<ExportFormat> makeXlsxExportInSheets(TextSink sink, std::size_t rowsPerSheet) {
    return std::make_unique<XlsxExport>(std::move(sink), rowsPerSheet);
}
