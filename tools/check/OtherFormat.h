#ifndef QENXML_TOOLS_CHECK_OTHERFORMAT_H
#define QENXML_TOOLS_CHECK_OTHERFORMAT_H

#include <optional>
#include <string_view>

#include "tools/check/FirstAid.h"

/// What to do about a file that is no XML.
inline constexpr const char* haveXmlWritten =
    "packages are XML files: have one written by the program that holds the data";

/// What a file is that is of another format than packages, by how it begins or by the name of its
/// root; nothing when it may be a package.
///
/// @param text of the file, in UTF-8 if it is XML
std::optional<FirstAid> otherFormat(std::string_view text);

#endif
