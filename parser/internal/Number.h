/// @file
/// Conversion of text to numbers.

#ifndef QENXML_PARSER_INTERNAL_NUMBER_H
#define QENXML_PARSER_INTERNAL_NUMBER_H

#include <new>
#include <optional>

#include <locale.h> // NOLINT(modernize-deprecated-headers): strtod_l() and its locales are POSIX
#include <stdlib.h> // NOLINT(modernize-deprecated-headers)

namespace qenxml {

/// The number at the front of @p text, by the rules of strtod() in the "C" locale: white space is
/// skipped; decimal, hexadecimal, "inf" and "nan" are read; what follows the number is ignored; a
/// text without a number is 0.0, one out of range an infinity or the nearest small number.
///
/// The decimal point is a point, whatever locale the host has set: the conversion of the XML
/// library follows that locale and would read "12.75" as 12 where the comma is in use.
double numberFromText(const char* text);

/// strtod() in the "C" locale, without touching that of the process or the thread.
inline double decodeNumber(const char* text, char** end) {
    const locale_t locale = newlocale(LC_ALL_MASK, "C", locale_t{});
    if (locale == locale_t{})
        throw std::bad_alloc();
    const double number = strtod_l(text, end, locale);
    freelocale(locale);
    return number;
}

/// The whole number that @p text is, when it is one of up to nine digits and nothing else; the
/// XML library reads it as the same, but takes 0.3 % more of the instructions of a package.
std::optional<int> shortInteger(const char* text);

} // namespace qenxml

#endif
