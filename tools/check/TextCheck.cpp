#include "tools/check/TextCheck.h"

#include <algorithm>

#include <fmt/format.h>

#include "tools/check/References.h"
#include "tools/text/Escape.h"

namespace {

using Details = CheckReport::Details;

FindingCode codeOf(ReferenceFate fate) {
    switch (fate) {
    case ReferenceFate::EndsValue:
        return FindingCode::ReferenceToNul;
    case ReferenceFate::GivesNoText:
        return FindingCode::ReferenceToNoCharacter;
    case ReferenceFate::GivesOther:
        return FindingCode::ControlCharacter;
    case ReferenceFate::Stands:
        break;
    }
    return FindingCode::ReferenceUnknown;
}

/// What is said of a reference of a fate.
const char* predicate(ReferenceFate fate) {
    switch (fate) {
    case ReferenceFate::EndsValue:
        return "ends the value";
    case ReferenceFate::GivesNoText:
        return "stands for no character";
    case ReferenceFate::GivesOther:
        return "stands for a character that XML does not allow";
    case ReferenceFate::Stands:
        break;
    }
    return "is no reference that XML knows";
}

Details describe(const OddReference& reference, std::string_view value) {
    const std::string text = escapeExcerpt(reference.text);
    const std::string more =
        reference.more > 0 ? fmt::format("; {} more of the kind follow", reference.more) : "";
    Details details{fmt::format("\"{}\" {}{}", text, predicate(reference.fate), more), Kept{}};
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
        report.add(codeOf(reference.fate),
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
