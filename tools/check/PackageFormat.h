/// @file
/// Which elements and attributes the library reads, and what it takes them for.

#ifndef QENXML_TOOLS_CHECK_PACKAGEFORMAT_H
#define QENXML_TOOLS_CHECK_PACKAGEFORMAT_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/check/FindingCodes.h"

enum class ValueKind {
    Text,
    Name, ///< The text that a record is called by.
    Identifier,
    Integer,
    Number,
    Element ///< Holds other elements.
};

/// An attribute, or an element that is there once.
struct DatumFormat {
    const char* name = nullptr;
    ValueKind kind = ValueKind::Text;
    /// Of an identifier: what it means when the library cannot read it. None where it reads it only
    /// under conditions.
    std::optional<FindingCode> fault = std::nullopt;
    bool mayBeEmpty = false; ///< Of an identifier.
    const struct ElementFormat* element = nullptr;
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
const ElementFormat& commercialFertilizer();
const ElementFormat& customFertilizer();
const ElementFormat& planting();

/// All of them.
const std::vector<const ElementFormat*>& all();
} // namespace format

/// The elements in which a name is read, as an element or as an attribute: "Rec or Field"; empty
/// when there are none.
std::string placesOf(std::string_view name);

#endif
