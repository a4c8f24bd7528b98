/// @file
/// How the path of a file holds the UUID of its package.

#ifndef QENXML_PARSER_INTERNAL_PACKAGENAME_H
#define QENXML_PARSER_INTERNAL_PACKAGENAME_H

#include <cstddef>
#include <string_view>

#include "parser/internal/Identifier.h"

namespace qenxml {

/// The UUID and four bytes that are not looked at: ".xml".
inline constexpr std::size_t shortestPackagePath = identifierLength + 4;

/// The part of a path where the UUID stands.
/// @throws std::out_of_range when the path is too short
inline std::string_view packageIdentifier(std::string_view path) {
    // For a short path the position wraps around to one far beyond the end, which substr() rejects.
    return path.substr(path.size() - shortestPackagePath, identifierLength);
}

} // namespace qenxml

#endif
