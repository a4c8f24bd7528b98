#include "tools/text/CalendarDate.h"

#include <array>
#include <cstddef>

namespace {

bool isLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

} // namespace

bool exists(const CalendarDate& date) {
    constexpr std::array days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (date.year < 1 || date.month < 1 || date.month > 12 || date.day < 1)
        return false;
    const bool leapDay = date.month == 2 && isLeapYear(date.year);
    return date.day <= days.at(static_cast<std::size_t>(date.month - 1)) + (leapDay ? 1 : 0);
}

int daysSince1970(const CalendarDate& date) {
    // Years are counted from March on, so that the leap day is the last one.
    const int year = date.month > 2 ? date.year : date.year - 1;
    const int month = (date.month + 9) % 12;
    const int days = 365 * year + year / 4 - year / 100 + year / 400;
    constexpr int daysUntil1970 = 719468;
    return days + (153 * month + 2) / 5 + date.day - 1 - daysUntil1970;
}
