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
    return std::apply([](const auto&... row) { return std::array{datum(row)...}; }, rows);
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

/// What an element is to people and hosts.
enum class Record { None, Grower, Farm, Field, Rec };

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

/// The data and elements of each element; @ref element has the elements themselves.
namespace list {

inline constexpr std::array growerAttributes = {datum(growerId)};
inline constexpr std::array growerValues = {datum(growerName)};
inline constexpr std::array farmAttributes = {datum(farmId)};
inline constexpr std::array farmValues = {datum(farmName)};
inline constexpr std::array fieldAttributes = {datum(fieldId)};
inline constexpr auto fieldValues = data(format::fieldValues);
inline constexpr auto centroidValues = data(format::centroidValues);
inline constexpr auto recAttributes = data(format::recAttributes);
inline constexpr auto recValues = data(format::recValues);
inline constexpr std::array operationAttributes = {datum(operationId)};
inline constexpr std::array operationValues = {datum(operationName)};
inline constexpr std::array seasonAttributes = {datum(seasonId)};
inline constexpr std::array seasonValues = {datum(seasonName)};
inline constexpr auto statisticsValues = data(format::statisticsValues);

template <const auto& product>
inline constexpr auto productValues = data(product.rows);

} // namespace list

namespace element {

template <const auto& product>
inline constexpr Element productElement = {
    product.name, Record::None, {}, list::productValues<product>, {}, nullptr, true};

template <const auto&... formats>
constexpr auto productElements(ProductList<formats...> /*products*/) {
    return std::array{&productElement<formats>...};
}

inline constexpr auto products = productElements(Products());
inline constexpr Element recData = {&TagNames::RecData_, Record::None, {}, {}, products};

inline constexpr Element operation = {&TagNames::Operation_, Record::None,
                                      list::operationAttributes, list::operationValues};
inline constexpr Element season = {&TagNames::Season_, Record::None, list::seasonAttributes,
                                   list::seasonValues};
inline constexpr Element recStats = {
    &TagNames::RecStats_, Record::None, {}, list::statisticsValues};

inline constexpr std::array recParts = {&operation, &season, &recData, &recStats};
inline constexpr Element rec = {&TagNames::Rec_, Record::Rec, list::recAttributes, list::recValues,
                                recParts};

inline constexpr Element recommendations = {
    &TagNames::Recommendations_, Record::None, {}, {}, {}, &rec};
inline constexpr Element fieldCentroid = {
    &TagNames::FieldCentroid_, Record::None, {}, list::centroidValues};

inline constexpr std::array fieldParts = {&fieldCentroid, &recommendations};
inline constexpr Element field = {&TagNames::Field_, Record::Field, list::fieldAttributes,
                                  list::fieldValues, fieldParts};
inline constexpr Element farm = {&TagNames::Farm_, Record::Farm, list::farmAttributes,
                                 list::farmValues, {},           &field};
inline constexpr Element grower = {
    &TagNames::Grower_, Record::Grower, list::growerAttributes, list::growerValues, {}, &farm};
inline constexpr Element recPackage = {&TagNames::RecPackage_, Record::None, {}, {}, {}, &grower};

} // namespace element

} // namespace qenxml::format

#endif
