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

/// The formats of the elements that are lists, records or parts of them.
namespace format {
const ElementFormat& recPackage();
const ElementFormat& grower();
const ElementFormat& farm();
const ElementFormat& field();
const ElementFormat& fieldCentroid();
const ElementFormat& recommendations();
const ElementFormat& rec();
const ElementFormat& operation();
const ElementFormat& season();
const ElementFormat& recData();
const ElementFormat& recStats();

/// All of them.
const std::vector<const ElementFormat*>& all();
} // namespace format

/// The elements in which a name is read, as an element or as an attribute: "Rec or Field"; empty
/// when there are none.
std::string locationsOf(std::string_view name);

#endif
