#ifndef QENXML_TOOLS_WORKBOOK_CELLDATE_H
#define QENXML_TOOLS_WORKBOOK_CELLDATE_H

#include <optional>
#include <string_view>

#include "tools/text/CalendarDate.h"

/// A day, or a day and a time, as a spreadsheet has them.
struct CellDate {
    CalendarDate day;
    bool hasTime = false;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Reads "2026-02-11" or "2026-02-11T09:24:00". Of anything else, zones and fractions included, a
/// cell would say less than the text.
std::optional<CellDate> cellDate(std::string_view text);

#endif
