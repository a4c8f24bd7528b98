#ifndef QENXML_TOOLS_UNREADABLEIDENTIFIER_H
#define QENXML_TOOLS_UNREADABLEIDENTIFIER_H

#include <optional>
#include <string>

#include <pugixml.hpp>

/// The identifier that stopped the reading of a package.
struct UnreadableIdentifier {
    pugi::xml_node node;     ///< Where to look for it in the file.
    std::string description; ///< What is wrong with it, safe to print.
};

/// Finds the identifier that stops the library when it reads a package: missing, empty or not a
/// UUID. Nothing when the package can be read.
///
/// @param package the element RecPackage
std::optional<UnreadableIdentifier> findUnreadableIdentifier(pugi::xml_node package);

#endif
