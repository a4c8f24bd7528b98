/// @file
/// Numbers as people read them in a page: 1250640 as "1 250 640", with narrow spaces that do not
/// break. A comma or a point between the groups would be a decimal sign to half of the readers. No
/// digit is left out.

#ifndef QENXML_TOOLS_REPORT_GROUPEDNUMBER_H
#define QENXML_TOOLS_REPORT_GROUPEDNUMBER_H

#include <cstddef>
#include <string>
#include <string_view>

/// The text of a number in groups.
std::string grouped(std::string number);

/// The whole number, as numberText() writes it.
std::string groupedText(double number);

std::string groupedText(std::size_t number);

/// A number of things: "1 rec", "2 recs".
std::string groupedQuantity(std::size_t number, std::string_view noun);

#endif
