#ifndef QENXML_TOOLS_TEXT_URIPATH_H
#define QENXML_TOOLS_TEXT_URIPATH_H

#include <string>
#include <string_view>

/// The path of a file as a URI: "a b/c.xml" is "a%20b/c.xml", "/a" is "file:///a". A path may hold
/// any bytes.
std::string uriOfPath(std::string_view path);

#endif
