#include "tools/check/IdentifierReading.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

} // namespace

IdentifierReading readIdentifier(std::string_view text) {
    IdentifierReading reading;
    const auto countWrongDigit = [&](std::size_t offset) {
        if (characterStart(text, offset) == offset && reading.wrongDigits++ == 0)
            reading.wrongOffset = offset;
    };
    const auto explained = qenxml::explainIdentifier(text, countWrongDigit);
    reading.fault = explained.fault;
    reading.digits = explained.digits;
    reading.faultOffset = explained.end;
    reading.value = explained.value;
    if (text.find_first_not_of(whiteSpace, explained.end) != std::string_view::npos)
        reading.ignored = text.substr(characterStart(text, explained.end));
    return reading;
}

std::string describeFault(const IdentifierReading& identifier, std::string_view text) {
    const std::string quoted = fmt::format("\"{}\"", escapeExcerpt(text));
    switch (identifier.fault) {
    case IdentifierReading::Fault::Empty:
        return "is empty";
    case IdentifierReading::Fault::TooShort:
        return fmt::format("{} is too short: it ends after {} of 32 digits", quoted,
                           identifier.digits);
    case IdentifierReading::Fault::HyphenMissing:
        return fmt::format("{} lacks the hyphen after its {}th digit: with one after the 8th digit "
                           "there must be four",
                           quoted, identifier.digits);
    case IdentifierReading::Fault::BraceMissing:
        return fmt::format("{} lacks the closing brace after its last digit", quoted);
    case IdentifierReading::Fault::None:
        break;
    }
    return fmt::format("{} is readable", quoted);
}
