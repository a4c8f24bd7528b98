/// @file
/// The one table of the package format: which attributes and elements are read, as what, and into
/// what. The readers take its rows while compiling; PackageElements.h has them as lists.

#ifndef QENXML_PARSER_INTERNAL_PACKAGEFORMAT_H
#define QENXML_PARSER_INTERNAL_PACKAGEFORMAT_H

#include <cstddef>
#include <string>
#include <tuple>
#include <type_traits>

#include <boost/uuid/uuid.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenRec.h"
#include "parser/TagNames.h"

namespace qenxml::format {

/// What a value is read as.
enum class Kind {
    Text,
    Name, ///< The text that a record is called by.
    Identifier,
    Integer,
    Number
};

/// What follows where an identifier is absent or empty: nil, or an error.
enum class Need { Optional, Mandatory };

/// Which text of an element counts where a program made text nodes without a value: the first, or
/// the first that has one. In a file there are no such nodes.
enum class Access { FirstText, FirstValue };

/// A row of the table: an attribute, or an element that holds a text.
/// @tparam Value how the reader hands it over: texts belong to the document
template <class Value>
struct Row {
    TagName name = nullptr;
    Kind kind = Kind::Text;
    Need need = Need::Optional;
    Access access = Access::FirstText;
};

constexpr Row<const char*> text(TagName name) {
    return {name, Kind::Text};
}

constexpr Row<const char*> recordName(TagName name) {
    return {name, Kind::Name, Need::Optional, Access::FirstValue};
}

constexpr Row<boost::uuids::uuid> identifier(TagName name) {
    return {name, Kind::Identifier, Need::Mandatory};
}

constexpr Row<boost::uuids::uuid> optionalIdentifier(TagName name) {
    return {name, Kind::Identifier};
}

constexpr Row<int> integer(TagName name) {
    return {name, Kind::Integer};
}

constexpr Row<double> number(TagName name) {
    return {name, Kind::Number};
}

template <class Value>
constexpr Row<Value> byFirstValue(Row<Value> row) {
    row.access = Access::FirstValue;
    return row;
}

/// A row with the member that its value goes into.
template <class Value, class Record, class Member>
struct Bound {
    static_assert(std::is_same_v<Value, Member> ||
                      (std::is_same_v<Value, const char*> && std::is_same_v<Member, std::string>),
                  "The row is of another kind than the member");

    Row<Value> row;
    Member Record::*member;
};

template <class Value, class Member, class Record>
constexpr Bound<Value, Record, Member> bind(Row<Value> row, Member Record::*member) {
    return {row, member};
}

/// A kind of product data, with the arguments of its constructor behind the identifier of the rec.
/// A product is read when all of them are there, and else not at all.
template <class Product, class... Rows>
struct ProductFormat {
    using Type = Product;
    static constexpr std::size_t size = sizeof...(Rows);

    TagName name;
    std::tuple<Rows...> rows;
};

template <class Product, class... Rows>
constexpr ProductFormat<Product, Rows...> product(TagName name, Rows... rows) {
    return {name, {rows...}};
}

// Attributes and children of each element, in the order in which packages have them.

inline constexpr auto growerId = identifier(&TagNames::GrowerID_);
inline constexpr auto growerName = recordName(&TagNames::GrowerName_);

inline constexpr auto farmId = identifier(&TagNames::FarmID_);
inline constexpr auto farmName = recordName(&TagNames::FarmName_);

inline constexpr auto fieldId = identifier(&TagNames::FieldID_);
inline constexpr std::tuple fieldValues = {recordName(&TagNames::FieldName_),
                                           byFirstValue(identifier(&TagNames::FieldGeometryID_)),
                                           byFirstValue(text(&TagNames::FieldGeometryDate_)),
                                           byFirstValue(identifier(&TagNames::FieldGeometry_))};

inline constexpr std::tuple centroidValues = {number(&TagNames::Latitude_),
                                              number(&TagNames::Longitude_)};

inline constexpr std::tuple recAttributes = {
    bind(identifier(&TagNames::RecID_), &RecDescription::id),
    bind(optionalIdentifier(&TagNames::MgmtZoneID_), &RecDescription::mgmtZoneId)};
inline constexpr std::tuple recValues = {
    bind(recordName(&TagNames::RecName_), &RecDescription::name),
    bind(identifier(&TagNames::RecGeometry_), &RecDescription::recGeometry),
    bind(text(&TagNames::CreationDate_), &RecDescription::creationDate),
    bind(text(&TagNames::EditDate_), &RecDescription::editDate),
    bind(text(&TagNames::RecDBFCol_), &RecDescription::recDbfCol)};

inline constexpr auto operationId = identifier(&TagNames::OpID_);
inline constexpr auto operationName = text(&TagNames::OpName_);

inline constexpr auto seasonId = integer(&TagNames::SeasonID_);
inline constexpr auto seasonName = text(&TagNames::SeasonName_);

inline constexpr std::tuple statisticsValues = {
    bind(number(&TagNames::MinimumRate_), &RecStatistics::minimumRate),
    bind(number(&TagNames::MaximumRate_), &RecStatistics::maximumRate),
    bind(number(&TagNames::AverageRate_), &RecStatistics::averageRate),
    bind(integer(&TagNames::RateUOMID_), &RecStatistics::rateUomId),
    bind(text(&TagNames::RateUOM_), &RecStatistics::rateUom),
    bind(number(&TagNames::Total_), &RecStatistics::total),
    bind(integer(&TagNames::TotalUOMID_), &RecStatistics::totalUomId),
    bind(text(&TagNames::TotalUOM_), &RecStatistics::totalUom),
    bind(number(&TagNames::Area_), &RecStatistics::area),
    bind(integer(&TagNames::AreaUOMID_), &RecStatistics::areaUomId),
    bind(text(&TagNames::AreaUOM_), &RecStatistics::areaUom)};

inline constexpr auto commercialFertilizer = product<CommercialFertilizerRec>(
    &TagNames::CommercialFertilizer_, integer(&TagNames::ProductID_), text(&TagNames::ProductName_),
    integer(&TagNames::UOMID_), text(&TagNames::UOM_));

inline constexpr auto customFertilizer = product<CustomFertilizerRec>(
    &TagNames::CustomFertilizer_, identifier(&TagNames::ProductID_), text(&TagNames::ProductName_),
    integer(&TagNames::UOMID_), text(&TagNames::UOM_), integer(&TagNames::SFertT_ID_),
    number(&TagNames::SpGravity_), number(&TagNames::Pct_N_), number(&TagNames::Pct_P_),
    number(&TagNames::Pct_K_), number(&TagNames::Pct_Ca_), number(&TagNames::Pct_Mg_),
    number(&TagNames::Pct_S_), number(&TagNames::Pct_Fe_), number(&TagNames::Pct_Mn_),
    number(&TagNames::Pct_Zn_), number(&TagNames::Pct_Cu_), number(&TagNames::Pct_B_),
    number(&TagNames::Pct_Mo_), number(&TagNames::Pct_Cl_));

inline constexpr auto planting = product<PlantingRec>(
    &TagNames::Planting_, integer(&TagNames::CropID_), text(&TagNames::CropName_),
    integer(&TagNames::CompanyID_), text(&TagNames::CompanyName_), integer(&TagNames::VarietyID_),
    text(&TagNames::VarietyName_), integer(&TagNames::UOMID_), text(&TagNames::UOM_));

/// Read only when a host asks for it.
inline constexpr auto pesticide =
    product<PesticideRec>(&TagNames::Pesticide_, text(&TagNames::PesticideMixName_),
                          integer(&TagNames::UOMID_), text(&TagNames::UOM_));

template <const auto&... formats>
struct ProductList {};

/// What RecData is read for.
using Products = ProductList<commercialFertilizer, customFertilizer, planting>;

} // namespace qenxml::format

#endif
