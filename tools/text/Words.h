/// @file
/// How sentences say numbers, enumerations and texts of others.

#ifndef QENXML_TOOLS_TEXT_WORDS_H
#define QENXML_TOOLS_TEXT_WORDS_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// "rec" for one, "recs" for any other number.
std::string plural(std::size_t number, std::string_view noun);

/// "1 rec", "2,000 recs".
std::string quantity(std::size_t number, std::string_view noun);

/// "the rec before it is", "the 2 recs before it are".
std::string thoseBefore(std::size_t number, std::string_view noun);

/// The digits of a number before its decimal point in groups of three.
std::string grouped(std::string number, std::string_view separator);

/// "Word" for "word".
std::string capitalised(std::string_view word);

/// "a, b and c".
std::string joined(const std::vector<std::string>& words, std::string_view last = " and ");

/// A text without the white space around it.
std::string_view trimmed(std::string_view text);

/// A text in quotation marks, as escapeExcerpt() shows it.
std::string quoted(std::string_view text);

/// As quoted(), but without the white space around it, unless there is nothing else.
std::string quotedText(std::string_view text);

#endif
