#include "tools/check/DateCheck.h"

#include <string_view>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/text/DateText.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

void checkOrder(CheckReport& report, pugi::xml_node edited, const DateText& editDate) {
    const char* const creation = edited.parent().child(tag::CreationDate).text().as_string();
    const DateText creationDate = readDate(creation);
    if (editDate.kind != DateKind::Iso || creationDate.kind != DateKind::Iso ||
        !isBefore(editDate.span, creationDate.span))
        return;
    report.add(FindingCode::DateOrder, edited, tag::EditDate, [&] {
        return Details{fmt::format("{} {} is before {} {}", tag::EditDate,
                                   quotedText(edited.text().as_string()), tag::CreationDate,
                                   quotedText(creation)),
                       Kept{}};
    });
}

} // namespace

void checkDate(CheckReport& report, pugi::xml_node child) {
    const std::string_view name = child.name();
    if (name != tag::FieldGeometryDate && name != tag::CreationDate && name != tag::EditDate)
        return;
    const char* const text = child.text().as_string();
    if (trimmed(text).empty())
        return;
    const DateText date = readDate(text);
    if (date.kind == DateKind::None || date.kind == DateKind::Impossible)
        report.add(FindingCode::NotADate, child, child.name(), [&] {
            return Details{fmt::format("{} {} {}", child.name(), quotedText(text),
                                       date.kind == DateKind::None
                                           ? "holds no date"
                                           : "is no day or time that there is"),
                           Kept{}};
        });
    else if (name == tag::EditDate)
        checkOrder(report, child, date);
}
