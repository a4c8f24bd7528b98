/// @file
/// What outputs say of records: the only list of it, in the order of the columns of a table.

#ifndef QENXML_TOOLS_EXPORT_OUTPUTFIELDS_H
#define QENXML_TOOLS_EXPORT_OUTPUTFIELDS_H

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/QenFieldGeometry.h"
#include "model/QenGrower.h"
#include "model/QenRecData.h"
#include "tools/records/MissingNumbers.h"

/// The records that a value may come from; null for those that are not at hand.
struct OutputContext {
    const std::string* file = nullptr;           ///< What the file of the package is called.
    const boost::uuids::uuid* package = nullptr; ///< Its identity.
    QenGrower* grower = nullptr;
    QenFarm* farm = nullptr;
    QenField* field = nullptr;
    QenFieldGeometry* geometry = nullptr;
    LLA centroid{};
    QenRec* rec = nullptr;
    MissingNumbers missing{}; ///< Of the rec, its product and the centroid.
};

/// What a record has; nothing where the package does not give it.
using OutputValue = std::variant<std::monostate, std::string, double, int, bool>;

enum class Owner { Package, Grower, Farm, Field, Geometry, Centroid, Rec, Product };

/// What a field of the output is called where; null where it does not occur.
struct OutputNames {
    const char* key;    ///< In a tree, among those of its owner.
    const char* column; ///< Of a table with a row per rec.
};

struct OutputField {
    Owner owner;
    OutputNames names;
    const char* number; ///< What the package calls the number that it is, if it is one.

    /// None where the product is of a kind that has no such field, or there is none. The record
    /// must be at hand.
    std::function<std::optional<OutputValue>(const OutputContext&)> read;

    /// Of the number: "%", or the key of the field of the same owner that says it in words, with
    /// "Id" that of its code; null where it has none.
    const char* unit = nullptr;
    bool isDate = false; ///< Whether it is a text that mostly says a date.

    /// As @ref read, with nothing for a number that is missing, and none where the record is not at
    /// hand.
    std::optional<OutputValue> value(const OutputContext& context) const;

    /// What a cell of its column holds: nothing also for an empty text, for tables have one way to
    /// say that nothing is known.
    OutputValue cell(const OutputContext& context) const;
};

const std::vector<OutputField>& outputFields();

/// Those of them that tables have.
const std::vector<OutputField>& outputColumns();

#endif
