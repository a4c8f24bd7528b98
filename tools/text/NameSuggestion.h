#ifndef QENXML_TOOLS_TEXT_NAMESUGGESTION_H
#define QENXML_TOOLS_TEXT_NAMESUGGESTION_H

#include <string_view>
#include <vector>

/// The one of some names that a misspelt one most likely stands for; empty when none is near. Case
/// and a prefix ("p:Farm") count little.
std::string_view nearestName(std::string_view misspelt, const std::vector<const char*>& names);

#endif
