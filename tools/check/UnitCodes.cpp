#include "tools/check/UnitCodes.h"

#include <algorithm>

#include <fmt/format.h>

#include "tools/check/Units.h"
#include "tools/text/Words.h"

namespace {

constexpr std::size_t mostUnits = 100;
constexpr std::size_t longestText = 60;

} // namespace

const UnitCodes::Unit* UnitCodes::contradiction(int code, std::string_view text) const {
    const auto found = std::find_if(units_.begin(), units_.end(), [&](const Unit& unit) {
        return unit.code == code ? !isSameUnit(unit.text, text)
                                 : isSameText(unit.text, text) && !isAmbiguousUnit(text);
    });
    return found == units_.end() ? nullptr : &*found;
}

void UnitCodes::check(CheckReport& report, pugi::xml_node child) {
    if (units_.size() == mostUnits || std::string_view(child.name()) != textName_)
        return;
    const std::string_view text = trimmed(child.text().as_string());
    const int code = child.parent().child(codeName_).text().as_int();
    if (text.empty() || text.size() > longestText || code == 0)
        return;
    const auto isKnown = [&](const Unit& unit) { return unit.code == code && unit.text == text; };
    if (std::any_of(units_.begin(), units_.end(), isKnown))
        return;
    if (const Unit* const other = contradiction(code, text))
        report.add(FindingCode::UnitCode, child, textName_, [&] {
            const std::size_t line = report.line(other->offset);
            std::string found =
                other->code == code
                    ? fmt::format("{} {} is {} here and {} at line {}", codeName_, code,
                                  quoted(text), quoted(other->text), line)
                    : fmt::format("{} {} has the {} {} here and {} at line {}", textName_,
                                  quoted(text), codeName_, code, other->code, line);
            return CheckReport::Details{std::move(found), Kept{}};
        });
    units_.push_back({code, std::string(text), report.source().extent(child).offset});
}
