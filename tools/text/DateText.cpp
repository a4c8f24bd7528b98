#include "tools/text/DateText.h"

#include <cstddef>
#include <optional>

#include "tools/text/CalendarDate.h"
#include "tools/text/SpeltDate.h"
#include "tools/text/TextCursor.h"
#include "tools/text/Words.h"

namespace {

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;

/// A time of day as ISO 8601 has it.
struct Time {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    double fraction = 0;
    double length = hour; ///< That of its last part.
    bool hasZone = false;
    int zoneSign = 1;
    int zoneHours = 0;
    int zoneMinutes = 0;

    bool exists() const {
        constexpr int leapSecond = 60;
        const bool midnight = hours == 24 && minutes == 0 && seconds == 0 && fraction == 0;
        return (hours < 24 || midnight) && minutes < 60 && seconds <= leapSecond &&
               zoneHours <= 14 && zoneMinutes < 60;
    }

    double inSeconds() const {
        return (hours - zoneSign * zoneHours) * hour + (minutes - zoneSign * zoneMinutes) * minute +
               seconds + fraction;
    }
};

/// Reads the zone behind a time, if there is one.
bool readZone(TextCursor& cursor, Time& time) {
    cursor.take(" ");
    time.hasZone = !cursor.atEnd();
    if (!time.hasZone || cursor.take("Zz"))
        return true;
    time.zoneSign = cursor.front() == '-' ? -1 : 1;
    if (!cursor.take("+-") || !cursor.take(2, time.zoneHours))
        return false;
    return (!cursor.take(":") && cursor.atEnd()) || cursor.take(2, time.zoneMinutes);
}

bool readTime(TextCursor& cursor, Time& time) {
    if (!cursor.take(2, time.hours))
        return false;
    cursor.take(":");
    if (!cursor.take(2, time.minutes))
        return readZone(cursor, time);
    time.length = minute;
    cursor.take(":");
    if (cursor.take(2, time.seconds))
        time.length = 0;
    if (cursor.take(".,")) {
        double worth = time.length == 0 ? 1 : minute;
        for (const char digit : cursor.takeAll(isDigit))
            time.fraction += (digit - '0') * (worth /= 10);
        time.length = 0;
    }
    return readZone(cursor, time);
}

/// Reads what has the form of ISO 8601. Without hyphens, a day that does not exist has another
/// form.
std::optional<DateText> readIso(std::string_view text) {
    TextCursor cursor(text);
    CalendarDate date;
    if (!cursor.take(4, date.year))
        return std::nullopt;
    const bool hyphens = cursor.take("-");
    if (!cursor.take(2, date.month) || (hyphens && !cursor.take("-")) || !cursor.take(2, date.day))
        return std::nullopt;
    Time time;
    const bool hasTime = cursor.take("Tt ");
    if ((hasTime && !readTime(cursor, time)) || !cursor.atEnd())
        return std::nullopt;
    if (!exists(date) && !hyphens)
        return std::nullopt;
    if (!exists(date) || !time.exists())
        return DateText{DateKind::Impossible};
    const double begin = daysSince1970(date) * day + time.inSeconds();
    return DateText{DateKind::Iso, {begin, begin + (hasTime ? time.length : day), time.hasZone}};
}

} // namespace

DateText readDate(std::string_view text) {
    text = trimmed(text);
    const std::optional<DateText> iso = readIso(text);
    return iso ? *iso : DateText{kindOfSpeltDate(text)};
}

bool isBefore(const TimeSpan& a, const TimeSpan& b) {
    constexpr double widestZone = 14 * hour;
    return a.end + (a.hasZone == b.hasZone ? 0 : widestZone) < b.begin;
}
