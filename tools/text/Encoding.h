#ifndef QENXML_TOOLS_TEXT_ENCODING_H
#define QENXML_TOOLS_TEXT_ENCODING_H

#include <string>

#include <pugixml.hpp>

/// The encoding that pugixml takes the content of a file for. It does not say so before it has
/// loaded it.
pugi::xml_encoding encodingOf(const std::string& bytes);

/// A file in an encoding, or a part of one, converted as pugixml does.
std::string toUtf8(std::string bytes, pugi::xml_encoding encoding);

#endif
