#include "tools/files/PackageUuid.h"

#include <cstddef>
#include <locale>

#include <boost/algorithm/string/predicate.hpp>
#include <boost/uuid/uuid_io.hpp>

#include "parser/internal/Identifier.h"

std::optional<boost::uuids::uuid> uuidOf(const std::string& text) {
    const auto identifier = qenxml::explainIdentifier(text, [](std::size_t) {});
    return identifier.fault == qenxml::ExplainedIdentifier::Fault::None
               ? std::optional(identifier.value)
               : std::nullopt;
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
