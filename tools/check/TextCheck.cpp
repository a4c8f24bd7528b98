#include "tools/check/TextCheck.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "tools/check/References.h"
#include "tools/text/Escape.h"

namespace {

using Details = CheckReport::Details;

/// What is said of a reference.
struct Fate {
    ReferenceFate fate;
    FindingCode code;
    const char* predicate;
};

constexpr std::array fates = {
    Fate{ReferenceFate::EndsValue, FindingCode::ReferenceToNul, "ends the value"},
    Fate{ReferenceFate::GivesNoText, FindingCode::ReferenceToNoCharacter,
         "stands for no character"},
    Fate{ReferenceFate::GivesOther, FindingCode::ControlCharacter,
         "stands for a character that XML does not allow"},
    Fate{ReferenceFate::Stands, FindingCode::ReferenceUnknown, "is no reference that XML knows"}};

const Fate& fateOf(const OddReference& reference) {
    return *std::find_if(fates.begin(), fates.end(),
                         [&](const Fate& other) { return other.fate == reference.fate; });
}

Details describe(const OddReference& reference, std::string_view value) {
    const std::string text = escapeExcerpt(reference.text);
    const std::string more =
        reference.more > 0 ? fmt::format("; {} more of the kind follow", reference.more) : "";
    Details details{fmt::format("\"{}\" {}{}", text, fateOf(reference).predicate, more), Kept{}};
    if (reference.fate == ReferenceFate::EndsValue)
        details.consequence = ReadAs{escapeExcerpt(value)};
    if (reference.fate == ReferenceFate::Stands)
        details.consequence = ReadAs{text};
    return details;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r';
}

} // namespace

void checkCharacters(CheckReport& report, Extent extent, std::string_view value,
                     std::string_view step) {
    const std::string_view written = report.source().text().substr(extent.offset, extent.length);
    for (const OddReference& reference : oddReferences(written))
        report.add(fateOf(reference).code,
                   Extent{extent.offset + reference.offset, reference.text.size()}, step,
                   [&] { return describe(reference, value); });
    const auto* const control = std::find_if(written.begin(), written.end(), isControl);
    if (control == written.end())
        return;
    const auto offset = static_cast<std::size_t>(control - written.begin());
    report.add(FindingCode::ControlCharacter, Extent{extent.offset + offset, 1}, step, [&] {
        return Details{fmt::format("the value holds the control character {}",
                                   escape(written.substr(offset, 1))),
                       Kept{}};
    });
}
