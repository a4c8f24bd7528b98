#include "tools/PackageUuid.h"

#include <cstddef>
#include <stdexcept>

#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"

std::optional<boost::uuids::uuid> uuidOf(const std::string& text) {
    // The library converts identifiers only while it reads an element, so it gets one to read.
    pugi::xml_document document;
    pugi::xml_node grower = document.append_child(qenxml::tag::Grower);
    grower.append_attribute(qenxml::tag::GrowerID).set_value(text.c_str());
    try {
        return QenXmlParser().parseGrowerNode(grower).id();
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

std::optional<boost::uuids::uuid> packageUuid(const std::string& path) {
    constexpr std::size_t uuidLength = 36;
    constexpr std::size_t extensionLength = 4;
    if (path.size() < uuidLength + extensionLength)
        return std::nullopt;
    return uuidOf(path.substr(path.size() - uuidLength - extensionLength, uuidLength));
}
