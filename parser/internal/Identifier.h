/// @file
/// Conversion of identifier text to UUIDs.

#ifndef QENXML_PARSER_INTERNAL_IDENTIFIER_H
#define QENXML_PARSER_INTERNAL_IDENTIFIER_H

#include <string_view>

#include <boost/uuid/uuid.hpp>

namespace qenxml {

/// The UUID that @p text spells.
///
/// Packages come with identifiers written in several ways, and with damaged ones, which must give
/// the same UUID in every program that reads them. Hence the exact rules:
///
/// - 32 digits, two for each of the 16 bytes, the first of them the high half.
/// - A leading "{" is skipped and asks for a "}" after the last digit.
/// - A "-" after the 8th digit is skipped and asks for one after the 12th, 16th and 20th digit as
///   well. Without it there, no hyphen is skipped anywhere.
/// - A digit is one of 0-9, a-f and A-F. Any other character in the place of a digit, a hyphen
///   included, does not fail: it counts as 255, and the byte is formed as `first << 4 | second`,
///   cut to 8 bits.
/// - What follows the last digit, or the closing brace, is ignored.
///
/// @throws std::runtime_error "invalid uuid string", which is a boost::exception as well, for a
///         text that is empty or ends too early, or lacks a hyphen or brace that it must have
boost::uuids::uuid uuidFromText(std::string_view text);

} // namespace qenxml

#endif
