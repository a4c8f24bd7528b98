#ifndef QENXML_TOOLS_CHECK_PLAINXML_H
#define QENXML_TOOLS_CHECK_PLAINXML_H

#include <string_view>

/// Whether a file is XML of the simplest kind, as nearly all packages are: in UTF-8, with one root
/// element, and nothing in it but elements, few attributes, and texts without references. No reader
/// of XML refuses such a file, unless an end tag is wrong, which loading it finds. So the second
/// reader, which takes as long as all else, need not be asked.
bool isPlainXml(std::string_view bytes);

#endif
