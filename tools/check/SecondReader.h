#ifndef QENXML_TOOLS_CHECK_SECONDREADER_H
#define QENXML_TOOLS_CHECK_SECONDREADER_H

#include <cstddef>
#include <optional>
#include <string>

#include <pugixml.hpp>

/// Where a program that follows the standard of XML ends reading a file, and why.
struct Refusal {
    std::size_t offset = 0; ///< In the text of the file in UTF-8.
    std::string reason;     ///< In words, to follow what is wrong.
};

/// What a second reader of XML, which follows the standard to the letter, makes of a file.
struct SecondReading {
    std::optional<Refusal> refusal;
    /// Somewhere in a DOCTYPE that declares something or names a file that does. What it declares
    /// in itself is not read, as that may take any time, nor what comes after it.
    std::optional<std::size_t> doctype;
};

/// Reads a file again.
///
/// @param bytes    as they are in the file
/// @param encoding what the library takes the file for
/// @throws std::bad_alloc
SecondReading readAgain(const std::string& bytes, pugi::xml_encoding encoding);

#endif
