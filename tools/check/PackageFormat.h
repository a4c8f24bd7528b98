/// @file
/// Which elements and attributes the library reads, and what it takes them for: its own table, with
/// what `qenxml check` says when something of it cannot be read.

#ifndef QENXML_TOOLS_CHECK_PACKAGEFORMAT_H
#define QENXML_TOOLS_CHECK_PACKAGEFORMAT_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parser/internal/PackageElements.h"
#include "tools/check/FindingCodes.h"

/// An attribute, or an element that is there once.
struct DatumFormat {
    const char* name = nullptr;
    qenxml::format::Kind kind = qenxml::format::Kind::Text;
    /// Of an identifier: what it means when the library cannot read it. None where it reads it only
    /// under conditions.
    std::optional<FindingCode> fault = std::nullopt;
    bool mayBeEmpty = false;                       ///< Of an identifier.
    const struct ElementFormat* element = nullptr; ///< Of one that holds other elements.
};

/// An element.
struct ElementFormat {
    const char* name = nullptr;
    std::vector<DatumFormat> attributes;
    std::vector<DatumFormat> children;
    const ElementFormat* item = nullptr; ///< What it has a list of, if it has one.
    const char* record = nullptr;        ///< What people call it, if it is a record.
};

/// The format of an element of the library's table.
const ElementFormat& formatOf(const qenxml::format::Element& element);

template <const auto& element>
const ElementFormat& formatOf() {
    static const ElementFormat& format = formatOf(qenxml::format::elementOf<element>);
    return format;
}

/// The formats of the elements that are lists, records or parts of them.
namespace format {
inline constexpr auto recPackage = formatOf<qenxml::format::recPackage>;
inline constexpr auto grower = formatOf<qenxml::format::grower>;
inline constexpr auto farm = formatOf<qenxml::format::farm>;
inline constexpr auto field = formatOf<qenxml::format::field>;
inline constexpr auto fieldCentroid = formatOf<qenxml::format::fieldCentroid>;
inline constexpr auto recommendations = formatOf<qenxml::format::recommendations>;
inline constexpr auto rec = formatOf<qenxml::format::rec>;
inline constexpr auto operation = formatOf<qenxml::format::operation>;
inline constexpr auto season = formatOf<qenxml::format::season>;
inline constexpr auto recData = formatOf<qenxml::format::recData>;
inline constexpr auto recStats = formatOf<qenxml::format::recStats>;

/// All of them.
const std::vector<const ElementFormat*>& all();
} // namespace format

/// The elements in which a name is read, as an element or as an attribute: "Rec or Field"; empty
/// when there are none.
std::string locationsOf(std::string_view name);

#endif
