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

/// The first control character of a text, of one byte or two; empty when there is none.
std::string_view firstControl(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool isWhiteSpace = byte == '\t' || byte == '\n' || byte == '\r';
        if ((byte < ' ' && !isWhiteSpace) || byte == 0x7F)
            return text.substr(i, 1);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        if (byte == 0xC2 && next >= 0x80 && next < 0xA0)
            return text.substr(i, 2);
    }
    return {};
}

} // namespace

void checkCharacters(CheckReport& report, Extent extent, std::string_view step) {
    const std::string_view text = report.source().text();
    const std::string_view control = firstControl(text.substr(extent.offset, extent.length));
    if (control.empty())
        return;
    const auto offset = static_cast<std::size_t>(control.data() - text.data());
    report.add(FindingCode::ControlCharacter, Extent{offset, control.size()}, step, [&] {
        return Details{fmt::format("the value holds the control character {}", escape(control)),
                       Kept{}};
    });
}

void checkReferences(CheckReport& report, Extent extent, std::string_view value,
                     std::string_view step) {
    const std::string_view written = report.source().text().substr(extent.offset, extent.length);
    for (const OddReference& reference : oddReferences(written))
        report.add(fateOf(reference).code,
                   Extent{extent.offset + reference.offset, reference.text.size()}, step,
                   [&] { return describe(reference, value); });
}
