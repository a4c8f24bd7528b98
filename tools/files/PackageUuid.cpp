#include "tools/files/PackageUuid.h"

#include <locale>
#include <new>
#include <stdexcept>

#include <boost/algorithm/string/predicate.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "parser/internal/TagConstants.h"

std::optional<boost::uuids::uuid> uuidOf(const std::string& text) {
    // The library converts identifiers only while it reads an element, so it gets one to read.
    pugi::xml_document document;
    pugi::xml_node grower = document.append_child(qenxml::tag::Grower);
    if (!grower.append_attribute(qenxml::tag::GrowerID).set_value(text.c_str()))
        throw std::bad_alloc(); // Nothing else fails here.
    try {
        return QenXmlParser().parseGrowerNode(grower).id();
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

namespace {

/// The part of a path where the UUID stands; empty when the path is too short.
std::string uuidText(const std::string& path) {
    if (path.size() < qenxml::shortestPackagePath)
        return {};
    return std::string(qenxml::packageIdentifier(path));
}

} // namespace

std::optional<boost::uuids::uuid> packageUuid(const std::string& path) {
    return uuidOf(uuidText(path));
}

bool isNamedByUuid(const std::string& path) {
    const std::optional<boost::uuids::uuid> uuid = packageUuid(path);
    return uuid &&
           boost::algorithm::iequals(to_string(*uuid), uuidText(path), std::locale::classic());
}
