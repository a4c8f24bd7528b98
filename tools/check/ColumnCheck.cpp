#include "tools/check/ColumnCheck.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/PlausibilityLimits.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

/// How many characters a text has. In a DBF file each takes one byte or more, depending on its
/// encoding.
std::size_t characters(std::string_view text) {
    constexpr unsigned continuationMask = 0xC0;
    constexpr unsigned continuation = 0x80;
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & continuationMask) != continuation;
    }));
}

} // namespace

void checkColumn(CheckReport& report, pugi::xml_node recDbfCol) {
    const std::string_view name = recDbfCol.text().as_string();
    if (trimmed(name).empty())
        return;
    const bool hasBlank = name.find_first_of(" \t\r\n") != std::string_view::npos;
    const std::size_t length = characters(name);
    if (!hasBlank && length <= plausible::columnLength)
        return;
    report.add(FindingCode::DbfColumn, recDbfCol, tag::RecDBFCol, [&] {
        std::string found = fmt::format("{} {} ", tag::RecDBFCol, quoted(name));
        found += hasBlank
                     ? "has a blank, which no name of a DBF column has"
                     : fmt::format("has {} characters; the name of a DBF column has {} at most",
                                   length, plausible::columnLength);
        return CheckReport::Details{std::move(found), Kept{}};
    });
}
