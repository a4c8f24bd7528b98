#ifndef QENXML_TOOLS_TEXT_ENCODING_H
#define QENXML_TOOLS_TEXT_ENCODING_H

#include <string>
#include <string_view>

#include <pugixml.hpp>

/// The encoding that pugixml takes the content of a file for. It does not say so before it has
/// loaded it.
pugi::xml_encoding encodingOf(const std::string& bytes);

/// What people call an encoding: "UTF-8".
const char* encodingName(pugi::xml_encoding encoding);

/// The encoding that the XML declaration names with which a text begins, behind its byte-order mark
/// if it has one; empty when it names none.
std::string_view declaredEncoding(std::string_view text);

/// A file in an encoding, or a part of one, converted as pugixml does.
std::string toUtf8(std::string bytes, pugi::xml_encoding encoding);

#endif
