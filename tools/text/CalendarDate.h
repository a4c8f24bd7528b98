#ifndef QENXML_TOOLS_TEXT_CALENDARDATE_H
#define QENXML_TOOLS_TEXT_CALENDARDATE_H

/// A day of the calendar.
struct CalendarDate {
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Whether there is such a day.
bool exists(const CalendarDate& date);

/// How many days after the first one of 1970 it is.
int daysSince1970(const CalendarDate& date);

#endif
