/// @file
/// Reading attributes and children that hold a text or a number, by the table of the format.

#ifndef QENXML_PARSER_INTERNAL_ELEMENTREADER_H
#define QENXML_PARSER_INTERNAL_ELEMENTREADER_H

#include <optional>
#include <tuple>

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

/// Reads what the table says of an element, the texts of children as xml_node::text() gives them.
/// What is missing, or holds no text, reads as the empty text, 0 or 0.0. Texts belong to the
/// document. Everything may be asked for once only. An identifier that cannot be read is
/// std::runtime_error "invalid uuid string".
///
/// As the element is a template argument, and what is done with each row is inlined, it is as if
/// the rows were written out in the readers: 2 % of the instructions of reading a package.
template <const auto& element>
class ElementReader {
public:
    ElementReader(const TagNames& names, pugi::xml_node node, Origin origin)
        : names_(names), node_(node), children_(node), origin_(origin) {}

    /// The values of the attributes, as a tuple.
    auto attributes() const {
        return std::apply(
            [this](const auto&... row)
                __attribute__((always_inline)) { return std::tuple{this->attribute(row)...}; },
            element.attributes);
    }

    /// The values of the children, as a tuple.
    auto values() {
        return std::apply(
            [this](const auto&... row)
                __attribute__((always_inline)) { return std::tuple{this->value(row)...}; },
            element.values);
    }

    /// Likewise, with identifiers that wait to be converted.
    auto unconverted() {
        return std::apply(
            [this](const auto&... row)
                __attribute__((always_inline)) { return std::tuple{this->unconverted(row)...}; },
            element.values);
    }

    /// True as long as every child that was asked for was there.
    bool complete() const { return children_.foundAll(); }

    /// Reads the attributes into the members that they are bound to.
    template <class Record>
    void readAttributes(Record& record) const {
        std::apply(
            [&](const auto&... bound) __attribute__((always_inline)) {
                ((record.*bound.member = this->attribute(bound.row)), ...);
            },
            element.attributes);
    }

    /// Reads the values of the children into the members that they are bound to.
    template <class Record>
    void readValues(Record& record) {
        std::apply(
            [&](const auto&... bound)
                __attribute__((always_inline)) { (readInto(record, bound), ...); },
            element.values);
    }

    /// The child that is one of the parts, or an empty node.
    template <const auto& inner>
    pugi::xml_node part() {
        static_assert(format::contains<inner>(element.parts), "The table has no such part");
        return child(inner.name);
    }

    /// The first child that is an item of the list, or an empty node.
    pugi::xml_node firstItem() const { return firstItem(element.item); }

private:
    template <const auto& item>
    pugi::xml_node firstItem(format::Elements<item> /*list*/) const {
        return node_.child((names_.*item.name).c_str());
    }

    boost::uuids::uuid attribute(format::Row<boost::uuids::uuid> row) const {
        const char* const text = node_.attribute((names_.*row.name).c_str()).as_string();
        if (row.need == format::Need::Optional && *text == '\0')
            return {};
        return uuidFromText(text);
    }

    int attribute(format::Row<int> row) const {
        return node_.attribute((names_.*row.name).c_str()).as_int();
    }

    pugi::xml_node child(TagName name) { return children_.child((names_.*name).c_str()); }

    const char* value(format::Row<const char*> row) { return text(row); }
    double value(format::Row<double> row) { return numberFromText(text(row)); }
    boost::uuids::uuid value(format::Row<boost::uuids::uuid> row) {
        return uuidFromText(text(row));
    }

    int value(format::Row<int> row) {
        const pugi::xml_node child = this->child(row.name);
        if (const std::optional<int> number = shortInteger(textOf(child, row.access)))
            return *number;
        return child.text().as_int();
    }

    template <class Value>
    Value unconverted(format::Row<Value> row) {
        return value(row);
    }

    UnconvertedIdentifier unconverted(format::Row<boost::uuids::uuid> row) { return {text(row)}; }

    template <class Record, class Value, class Member>
    [[gnu::always_inline]] void readInto(Record& record,
                                         const format::Bound<Value, Record, Member>& bound) {
        // A text is moved in as a string of its own: assigning characters to an empty string
        // reserves more memory than they take.
        record.*bound.member = Member(value(bound.row));
    }

    template <class Value>
    const char* text(format::Row<Value> row) {
        return textOf(child(row.name), row.access);
    }

    const char* textOf(pugi::xml_node child, format::Access access) const {
        // child_value() is the faster one, but it passes over text nodes without a value.
        return access == format::Access::FirstValue || origin_ == Origin::File
                   ? child.child_value()
                   : child.text().as_string();
    }

    const TagNames& names_;
    pugi::xml_node node_;
    ChildCursor children_;
    Origin origin_;
};

} // namespace qenxml

#endif
