#ifndef QENXML_TOOLS_CHECK_VALUEPLACE_H
#define QENXML_TOOLS_CHECK_VALUEPLACE_H

#include <cstddef>
#include <string_view>

/// Where in a source a byte of a value stands. The value may take more bytes there than it is read
/// as: line ends of two bytes are read as one, and "&#32;" as a space.
///
/// @param offset where in the source the value begins
/// @param place  of the byte in the value
std::size_t placeOfValue(std::string_view source, std::size_t offset, std::size_t place);

#endif
