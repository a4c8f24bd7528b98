#include "tools/text/UriPath.h"

#include <iterator>

#include <fmt/format.h>

namespace {

/// Whether a byte stands for itself in the path of a URI. A ":" does not: in the first part of a
/// relative path it would end the name of a scheme.
bool isPlain(char c) {
    constexpr std::string_view others = "-._~/!$&'()*+,;=@";
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           others.find(c) != std::string_view::npos;
}

} // namespace

std::string uriOfPath(std::string_view path) {
    std::string uri = path.substr(0, 1) == "/" ? "file://" : "";
    for (const char c : path) {
        if (isPlain(c))
            uri += c;
        else
            fmt::format_to(std::back_inserter(uri), "%{:02X}", static_cast<unsigned char>(c));
    }
    return uri;
}
