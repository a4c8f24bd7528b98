#ifndef QENXML_TOOLS_FILES_PACKAGEUUID_H
#define QENXML_TOOLS_FILES_PACKAGEUUID_H

#include <optional>
#include <string>

#include <boost/uuid/uuid.hpp>

#include "parser/internal/PackageName.h"

/// The form of a package file's name, for messages.
inline constexpr const char* packageNameForm = "00112233-4455-6677-8899-aabbccddeeff.xml";

using qenxml::shortestPackagePath;

/// The UUID that the library makes of the text of an identifier; nothing when it refuses the text.
std::optional<boost::uuids::uuid> uuidOf(const std::string& text);

/// The UUID of the package in a file, which is taken from its path; nothing when there is none in
/// it.
std::optional<boost::uuids::uuid> packageUuid(const std::string& path);

/// Whether the UUID of the package stands in the path as it should. The library takes other
/// characters for digits too, so that nearly any long path gives some UUID.
bool isNamedByUuid(const std::string& path);

#endif
