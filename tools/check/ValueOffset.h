#ifndef QENXML_TOOLS_CHECK_VALUEOFFSET_H
#define QENXML_TOOLS_CHECK_VALUEOFFSET_H

#include <cstddef>
#include <string_view>

/// The offset in a source of a byte of a value. The value may take more bytes there than it is read
/// as: line ends of two bytes are read as one, and "&#32;" as a space.
///
/// @param begin offset in the source of the value
/// @param index of the byte in the value
std::size_t sourceOffset(std::string_view source, std::size_t begin, std::size_t index);

#endif
