/// @file
/// The table of the package format as a tree of elements, for all who walk it while running: what
/// each element holds, and which of it is mandatory.

#ifndef QENXML_PARSER_INTERNAL_PACKAGEELEMENTS_H
#define QENXML_PARSER_INTERNAL_PACKAGEELEMENTS_H

#include <array>
#include <cstddef>
#include <tuple>

#include "parser/internal/PackageFormat.h"

namespace qenxml::format {

/// A row of the table without its type and member.
struct Datum {
    TagName name;
    Kind kind;
    Need need;
};

template <class Value>
constexpr Datum datum(Row<Value> row) {
    return {row.name, row.kind, row.need};
}

template <class Value, class Record, class Member>
constexpr Datum datum(Bound<Value, Record, Member> bound) {
    return datum(bound.row);
}

template <class... Rows>
constexpr auto data(const std::tuple<Rows...>& rows) {
    return std::apply(
        [](const auto&... row) { return std::array<Datum, sizeof...(row)>{datum(row)...}; }, rows);
}

/// A list of constants.
template <class Item>
class List {
public:
    constexpr List() = default;
    template <std::size_t N>
    constexpr List(const std::array<Item, N>& items) : items_(items.data()), size_(N) {}

    constexpr const Item* begin() const { return items_; }
    constexpr const Item* end() const { return items_ + size_; }
    constexpr std::size_t size() const { return size_; }

private:
    const Item* items_ = nullptr;
    std::size_t size_ = 0;
};

/// An element that holds others. The first of its attributes, and of its values, is identifier and
/// name where it is a record.
struct Element {
    TagName name = nullptr;
    Record record = Record::None;
    List<Datum> attributes{};
    List<Datum> values{};          ///< The children that hold a value.
    List<const Element*> parts{};  ///< The children that hold others, each there once.
    const Element* item = nullptr; ///< What it has a list of.
    bool isProduct = false;        ///< Read only when all of its values are there.
};

template <class Formats>
struct ElementList;

/// The constants that the lists of an element are made of.
template <const auto& format>
struct Lists {
    static constexpr auto attributes = data(format.attributes);
    static constexpr auto values = data(format.values);
    static constexpr auto parts = ElementList<decltype(format.parts)>::all();
    static constexpr auto items = ElementList<decltype(format.item)>::all();
};

/// An element of the table.
template <const auto& format>
inline constexpr Element elementOf = {format.name,
                                      format.record,
                                      Lists<format>::attributes,
                                      Lists<format>::values,
                                      Lists<format>::parts,
                                      Lists<format>::items.empty() ? nullptr
                                                                   : Lists<format>::items.front(),
                                      format.isProduct};

template <const auto&... formats>
struct ElementList<Elements<formats...>> {
    static constexpr std::array<const Element*, sizeof...(formats)> all() {
        return {&elementOf<formats>...};
    }
};

} // namespace qenxml::format

#endif
