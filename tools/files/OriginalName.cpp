#include "tools/files/OriginalName.h"

#include <boost/uuid/uuid_io.hpp>

#include "parser/internal/Identifier.h"

namespace {

bool isDigit(char c) {
    return qenxml::digitValue(static_cast<unsigned char>(c)) < 16;
}

/// The name of the package whose UUID, with hyphens or without, a text begins with.
std::optional<std::string> nameFrom(std::string_view text) {
    bool isExact = true;
    const auto uuid = qenxml::explainIdentifier(text, [&](std::size_t) { isExact = false; });
    const bool goesOn = uuid.end < text.size() && isDigit(text[uuid.end]);
    if (uuid.fault != qenxml::ExplainedIdentifier::Fault::None || !isExact || goesOn)
        return std::nullopt;
    return to_string(uuid.value) + ".xml";
}

} // namespace

std::optional<std::string> originalName(std::string_view path) {
    bool isInsideDigits = false;
    for (std::string_view rest = path.substr(path.rfind('/') + 1); !rest.empty();
         rest.remove_prefix(1)) {
        if (auto name = isInsideDigits ? std::nullopt : nameFrom(rest))
            return name;
        isInsideDigits = isDigit(rest.front());
    }
    return std::nullopt;
}
