#ifndef QENXML_TOOLS_FILES_ORIGINALNAME_H
#define QENXML_TOOLS_FILES_ORIGINALNAME_H

#include <optional>
#include <string>
#include <string_view>

/// The name that a package had before it was copied or renamed, when its UUID is still in the name
/// of the file: "UUID (1).xml", "{UUID}.xml", "UUID.xml.txt" ... It has the form of the name of a
/// package.
std::optional<std::string> originalName(std::string_view path);

#endif
