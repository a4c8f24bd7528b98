// Converts any bytes to an identifier and compares with a second formulation of the rules: one that
// goes character by character and has no tables.

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <boost/uuid/uuid.hpp>

#include "fuzz/Require.h"
#include "parser/internal/Identifier.h"

namespace {

unsigned digitValue(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A') + 10;
    return 255;
}

std::optional<boost::uuids::uuid> convert(std::string_view text) {
    std::size_t at = 0;
    const auto skip = [&](char c) {
        const bool there = at < text.size() && text[at] == c;
        at += there ? 1 : 0;
        return there;
    };
    const bool braced = skip('{');
    bool hyphened = false;
    boost::uuids::uuid uuid{};
    for (unsigned digit = 0; digit < 32; ++digit) {
        if (digit == 8)
            hyphened = skip('-');
        if (hyphened && (digit == 12 || digit == 16 || digit == 20) && !skip('-'))
            return std::nullopt;
        if (at == text.size())
            return std::nullopt;
        unsigned char& byte = uuid.begin()[digit / 2];
        const unsigned value = digitValue(text[at++]);
        byte = static_cast<unsigned char>(digit % 2 == 0 ? value : (unsigned{byte} << 4U | value));
    }
    if (braced && !skip('}'))
        return std::nullopt;
    return uuid;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::optional<boost::uuids::uuid> converted;
    try {
        converted = qenxml::uuidFromText(text);
    } catch (const std::runtime_error& error) {
        require(std::string_view(error.what()) == "invalid uuid string", "the text of the error");
    }
    require(converted == convert(text), "both conversions agree");
    return 0;
}
