#include "tools/text/SpeltDate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "tools/text/CalendarDate.h"
#include "tools/text/TextCursor.h"

namespace {

bool isForeign(char c) {
    constexpr unsigned char asciiEnd = 0x80;
    return static_cast<unsigned char>(c) >= asciiEnd;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isForeign(c);
}

/// A number in a text.
struct Group {
    int value;
    std::size_t digits;
};

/// What a text has that may be a date.
struct Parts {
    std::vector<Group> groups; ///< The first ones, without those of times.
    bool hasWord = false;      ///< That may be the name of a month.
    bool hasForeign = false;   ///< A letter that is not of ASCII, which may be a digit.
    bool timesExist = true;
};

/// Takes the rest of a time, from its first colon on.
void takeTime(TextCursor& cursor, std::string_view hours, Parts& parts) {
    constexpr std::array limits = {24, 59, 60};
    std::string_view number = hours;
    for (const int limit : limits) {
        int value = 0;
        TextCursor(number).take(std::min<std::size_t>(number.size(), 4), value);
        parts.timesExist = parts.timesExist && value <= limit;
        if (!cursor.take(":"))
            break;
        number = cursor.takeAll(isDigit);
    }
    if (cursor.take(".,"))
        cursor.takeAll(isDigit);
    if (cursor.take("+-")) // the zone
        cursor.takeAll([](char c) { return isDigit(c) || c == ':'; });
}

Parts partsOf(std::string_view text) {
    constexpr std::size_t mostDigits = 8;
    constexpr std::size_t mostGroups = 6;
    constexpr std::size_t shortestWord = 3;
    Parts parts;
    TextCursor cursor(text);
    while (!cursor.atEnd()) {
        const std::string_view digits = cursor.takeAll(isDigit);
        if (cursor.front() == ':' && !digits.empty()) {
            takeTime(cursor, digits, parts);
        } else if (!digits.empty() && parts.groups.size() < mostGroups) {
            Group group = {0, digits.size()};
            TextCursor(digits).take(std::min(digits.size(), mostDigits), group.value);
            parts.groups.push_back(group);
        }
        const std::string_view word = cursor.takeAll(isLetter);
        parts.hasWord = parts.hasWord || word.size() >= shortestWord;
        parts.hasForeign = parts.hasForeign || std::any_of(word.begin(), word.end(), isForeign);
        cursor.takeAll([](char c) { return !isDigit(c) && !isLetter(c); });
    }
    return parts;
}

int yearOf(const Group& group) {
    constexpr int century = 2000;
    return group.digits <= 2 ? century + group.value : group.value;
}

bool isDayOfMonth(const Group& group) {
    return group.digits <= 2 && group.value >= 1 && group.value <= 31;
}

bool isMonth(const Group& group) {
    return group.digits <= 2 && group.value >= 1 && group.value <= 12;
}

bool isYear(const Group& group) {
    return group.digits == 4 && group.value >= 1000 && group.value < 3000;
}

/// Whether three numbers are a date in one of the usual orders.
bool isDate(const Group& a, const Group& b, const Group& c) {
    if (a.digits > 2)
        return exists({a.value, b.value, c.value});
    return exists({yearOf(c), b.value, a.value}) || exists({yearOf(c), a.value, b.value}) ||
           exists({yearOf(a), b.value, c.value});
}

/// Whether a number is a day without anything in between, or a year.
bool isDate(const Group& group) {
    constexpr int twoDigits = 100;
    constexpr int fourDigits = 10'000;
    if (group.digits < 8)
        return isYear(group) || group.digits == 6;
    const int end = group.value % fourDigits;
    const int begin = group.value / fourDigits;
    const bool yearFirst = exists({begin, end / twoDigits, end % twoDigits});
    if (group.digits > 8)
        return yearFirst && (group.digits == 12 || group.digits == 14);
    return yearFirst || exists({end, begin % twoDigits, begin / twoDigits}) ||
           exists({end, begin / twoDigits, begin % twoDigits});
}

DateKind kindOf(const Parts& parts) {
    const std::vector<Group>& groups = parts.groups;
    const auto spelt = [](bool isDate, DateKind otherwise) {
        return isDate ? DateKind::Spelt : otherwise;
    };
    if (groups.empty())
        return spelt(parts.hasForeign, DateKind::None);
    const Group& a = groups[0];
    if (groups.size() == 1)
        return spelt(isDate(a) || (parts.hasWord && isDayOfMonth(a)), DateKind::None);
    const Group& b = groups[1];
    if (parts.hasWord)
        return spelt(std::any_of(groups.begin(), groups.end(), isDayOfMonth), DateKind::Impossible);
    if (groups.size() == 2)
        return spelt((isYear(a) && (isMonth(b) || b.digits == 3)) ||
                         (isMonth(a) && (isYear(b) || b.digits <= 2)) ||
                         (isMonth(b) && a.digits <= 2),
                     DateKind::None);
    const Group& c = groups[2];
    const bool tooLong = a.digits > 4 || b.digits > 2 || c.digits > 4;
    return spelt(isDate(a, b, c), tooLong ? DateKind::None : DateKind::Impossible);
}

/// Whether it is a week, such as "2026-W47-5".
bool isWeek(std::string_view text) {
    TextCursor cursor(text);
    int year = 0;
    int week = 0;
    if (!cursor.take(4, year))
        return false;
    cursor.take("-");
    return cursor.take("Ww") && cursor.take(2, week) && week >= 1 && week <= 53;
}

} // namespace

DateKind kindOfSpeltDate(std::string_view text) {
    if (isWeek(text))
        return DateKind::Spelt;
    const Parts parts = partsOf(text);
    const DateKind kind = kindOf(parts);
    return kind == DateKind::Spelt && !parts.timesExist ? DateKind::Impossible : kind;
}
