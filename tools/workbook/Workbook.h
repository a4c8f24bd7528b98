#ifndef QENXML_TOOLS_WORKBOOK_WORKBOOK_H
#define QENXML_TOOLS_WORKBOOK_WORKBOOK_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tools/export/OutputFields.h"
#include "tools/files/TemporaryName.h"
#include "tools/output/Output.h"

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

/// A value of a cell, and whether it is a text that may say a date.
struct WorkbookCell {
    OutputValue value;
    bool isDate = false;
};

/// A workbook for spreadsheets (Office Open XML), written row by row into temporary files, so that
/// it may be of any length. Each table has a row of titles that stays in sight, with filters, and
/// goes on in further sheets where a sheet is full.
///
/// Numbers are numbers, days and times of ISO 8601 are such, and texts are texts whatever they
/// begin with. What XML cannot hold in a text is replaced; a text that is too long for a cell is
/// cut.
class Workbook {
public:
    static constexpr std::size_t mostRows = 1'048'576; ///< Of a sheet, by the format.

    /// @param rowsPerSheet with that of the titles
    explicit Workbook(std::size_t rowsPerSheet = mostRows);

    /// @return its index
    std::size_t addTable(std::string name, std::vector<std::string> titles);

    void addRow(std::size_t table, const std::vector<WorkbookCell>& cells);

    /// Writes it. Nothing can be added any more.
    ///
    /// @throws std::bad_alloc as everything before it
    /// @throws std::runtime_error likewise, when there is no room for temporary files
    void finish(const TextSink& sink);

private:
    struct Close {
        void operator()(lxw_workbook* workbook) const;
    };

    /// The sheets of a table.
    struct Table {
        std::string name;
        std::vector<std::string> titles;
        std::size_t sheets = 0;
        lxw_worksheet* sheet = nullptr; ///< The last one.
        std::size_t row = 0;            ///< The next one of it.
    };

    void addSheet(Table& table);
    void endSheet(Table& table);

    TemporaryName file_;
    std::size_t rowsPerSheet_;
    std::string folder_;
    std::unique_ptr<lxw_workbook, Close> workbook_;
    lxw_format* title_ = nullptr;
    lxw_format* day_ = nullptr;
    lxw_format* time_ = nullptr;
    std::vector<Table> tables_;
    std::size_t bytes_ = 0; ///< Of the rows of sheets that are complete.
};

/// A text as a cell can hold it.
std::string workbookText(std::string_view text);

#endif
