/// @file
/// Reading attributes and children that hold a text or a number, by rows of the format.

#ifndef QENXML_PARSER_INTERNAL_VALUECHILDREN_H
#define QENXML_PARSER_INTERNAL_VALUECHILDREN_H

#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "parser/TagNames.h"
#include "parser/internal/ChildCursor.h"
#include "parser/internal/Identifier.h"
#include "parser/internal/Number.h"
#include "parser/internal/PackageFormat.h"

namespace qenxml {

/// Where nodes come from.
enum class Origin {
    File,   ///< From the document of the parser: each text node has a value.
    Unknown ///< From a caller, whose program may have made text nodes without a value.
};

/// The identifier in an attribute.
/// @throws std::runtime_error "invalid uuid string"
inline boost::uuids::uuid attributeValue(const TagNames& names, pugi::xml_node node,
                                         format::Row<boost::uuids::uuid> row) {
    const char* const text = node.attribute((names.*row.name).c_str()).as_string();
    if (row.need == format::Need::Optional && *text == '\0')
        return {};
    return uuidFromText(text);
}

inline int attributeValue(const TagNames& names, pugi::xml_node node, format::Row<int> row) {
    return node.attribute((names.*row.name).c_str()).as_int();
}

/// The text of an identifier that waits to be converted.
struct UnconvertedIdentifier {
    const char* text;
};

/// @throws std::runtime_error "invalid uuid string"
inline boost::uuids::uuid converted(UnconvertedIdentifier identifier) {
    return uuidFromText(identifier.text);
}

/// All else is converted already.
template <class Value>
const Value& converted(const Value& value) {
    return value;
}

// Several rows are template arguments below, and what is done with each of them is inlined, as if
// the rows were written out in the readers: 2 % of the instructions of reading a package.

template <const auto& rows>
using RowNumbers =
    std::make_index_sequence<std::tuple_size_v<std::remove_reference_t<decltype(rows)>>>;

/// Reads the attributes of some rows into the members that they are bound to.
template <const auto& rows, class Record, std::size_t... I>
void readAttributes(const TagNames& names, pugi::xml_node node, Record& record,
                    std::index_sequence<I...> /*rows*/) {
    ((record.*std::get<I>(rows).member = attributeValue(names, node, std::get<I>(rows).row)), ...);
}

template <const auto& rows, class Record>
void readAttributes(const TagNames& names, pugi::xml_node node, Record& record) {
    readAttributes<rows>(names, node, record, RowNumbers<rows>());
}

/// Looks children of an element up by name and reads what they hold, as xml_node::text() gives it.
/// What is missing, or holds no text, reads as the empty text, 0 or 0.0. Texts belong to the
/// document. Each name must be asked for once only.
class ValueChildren {
public:
    ValueChildren(const TagNames& names, pugi::xml_node parent, Origin origin)
        : names_(names), children_(parent), origin_(origin) {}

    /// The first child of a name, or an empty node.
    pugi::xml_node element(TagName name) { return children_.child((names_.*name).c_str()); }

    const char* value(format::Row<const char*> row) { return text(row); }

    double value(format::Row<double> row) { return numberFromText(text(row)); }

    int value(format::Row<int> row) {
        const pugi::xml_node child = element(row.name);
        if (const std::optional<int> number = shortInteger(textOf(child, row.access)))
            return *number;
        return child.text().as_int();
    }

    /// @throws std::runtime_error "invalid uuid string"
    boost::uuids::uuid value(format::Row<boost::uuids::uuid> row) {
        return uuidFromText(text(row));
    }

    /// The values of some rows, as a tuple.
    template <const auto& rows>
    auto values() {
        return values<rows>(RowNumbers<rows>());
    }

    /// The values of the rows of a product, as a tuple, with identifiers that wait to be converted.
    template <const auto& product>
    auto unconverted() {
        return unconverted<product>(std::make_index_sequence<product.size>());
    }

    /// Reads the children of some rows into the members that they are bound to.
    template <const auto& rows, class Record>
    void readInto(Record& record) {
        readInto<rows>(record, RowNumbers<rows>());
    }

    /// True as long as every child that was asked for was there.
    bool complete() const { return children_.foundAll(); }

private:
    template <const auto& rows, std::size_t... I>
    auto values(std::index_sequence<I...> /*rows*/) {
        return std::tuple{value(std::get<I>(rows))...};
    }

    template <const auto& product, std::size_t... I>
    auto unconverted(std::index_sequence<I...> /*rows*/) {
        return std::tuple{unconverted(std::get<I>(product.rows))...};
    }

    template <const auto& rows, class Record, std::size_t... I>
    void readInto(Record& record, std::index_sequence<I...> /*rows*/) {
        (readInto(record, std::get<I>(rows)), ...);
    }

    template <class Record, class Value, class Member>
    [[gnu::always_inline]] void readInto(Record& record,
                                         const format::Bound<Value, Record, Member>& bound) {
        // A text is moved in as a string of its own: assigning characters to an empty string
        // reserves more memory than they take.
        record.*bound.member = Member(value(bound.row));
    }

    template <class Value>
    Value unconverted(format::Row<Value> row) {
        return value(row);
    }

    UnconvertedIdentifier unconverted(format::Row<boost::uuids::uuid> row) { return {text(row)}; }

    template <class Value>
    const char* text(format::Row<Value> row) {
        return textOf(element(row.name), row.access);
    }

    const char* textOf(pugi::xml_node child, format::Access access) const {
        // child_value() is the faster one, but it passes over text nodes without a value.
        return access == format::Access::FirstValue || origin_ == Origin::File
                   ? child.child_value()
                   : child.text().as_string();
    }

    const TagNames& names_;
    ChildCursor children_;
    Origin origin_;
};

} // namespace qenxml

#endif
