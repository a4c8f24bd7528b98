/// @file
/// What texts say of dates.

#ifndef QENXML_TOOLS_TEXT_DATETEXT_H
#define QENXML_TOOLS_TEXT_DATETEXT_H

#include <string_view>

/// What a text is as a date.
enum class DateKind {
    None,       ///< It holds none.
    Impossible, ///< It has the form of one, but there is no such day or time.
    Spelt,      ///< A person takes it for one.
    Iso         ///< A day, or a day with a time, as ISO 8601 has them.
};

/// When something was, in seconds since the beginning of the year 1970.
struct TimeSpan {
    double begin;
    double end;   ///< The same for a time; a day takes 24 hours.
    bool hasZone; ///< Otherwise it is a local time somewhere.
};

struct DateText {
    DateKind kind = DateKind::None;
    TimeSpan span = {}; ///< Of one as in ISO 8601.
};

/// Reads a date. White space around it does no harm.
///
/// ISO 8601 is read as it is: with hyphens and colons or without, with or without seconds, their
/// fraction, and the zone; a blank may stand for the "T". Of all other spellings only that is
/// refused which no reading makes a date.
DateText readDate(std::string_view text);

/// Whether one is before the other, wherever on earth they are when they do not say.
bool isBefore(const TimeSpan& a, const TimeSpan& b);

#endif
