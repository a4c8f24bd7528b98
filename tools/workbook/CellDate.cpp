#include "tools/workbook/CellDate.h"

#include <algorithm>
#include <cstddef>

namespace {

/// Whether a text has a form, in which "0" stands for any digit.
bool hasForm(std::string_view text, std::string_view form) {
    return std::equal(text.begin(), text.end(), form.begin(), form.end(),
                      [](char c, char f) { return f == '0' ? c >= '0' && c <= '9' : c == f; });
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits)
        value = value * 10 + (digit - '0');
    return value;
}

} // namespace

std::optional<CellDate> cellDate(std::string_view text) {
    constexpr int firstYear = 1900; // before it, spreadsheets know no days
    constexpr int hours = 24;
    constexpr int sixty = 60;
    const bool hasTime = hasForm(text, "0000-00-00T00:00:00");
    if (!hasTime && !hasForm(text, "0000-00-00"))
        return std::nullopt;
    const auto part = [text](std::size_t begin, std::size_t length) {
        return number(text.substr(begin, length));
    };
    CellDate date{{part(0, 4), part(5, 2), part(8, 2)}, hasTime};
    if (hasTime) {
        date.hour = part(11, 2);
        date.minute = part(14, 2);
        date.second = part(17, 2);
    }
    const bool isTime = date.hour < hours && date.minute < sixty && date.second < sixty;
    if (date.day.year < firstYear || !exists(date.day) || !isTime)
        return std::nullopt;
    return date;
}
