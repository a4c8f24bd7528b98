/// @file
/// The one table of the package format: which attributes and elements are read, from which element,
/// as what, and into what. The readers take it while compiling; PackageElements.h has it as lists.

#ifndef QENXML_PARSER_INTERNAL_PACKAGEFORMAT_H
#define QENXML_PARSER_INTERNAL_PACKAGEFORMAT_H

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

/// What an element is to people and hosts.
enum class Record { None, Grower, Farm, Field, Rec };

/// Elements of the table, as a type.
template <const auto&... elements>
struct Elements {};

template <const auto& element, const auto&... elements>
constexpr bool contains(Elements<elements...> /*elements*/) {
    return ((elements.name == element.name) || ...);
}

/// An element of the table: what is read from it, in the order in which packages have it.
/// @tparam ProductData of a product: its class, of which the values are the constructor's arguments
///                     behind the identifier of the rec. Such an element is read when all of its
///                     values are there, and else not at all.
template <class Attributes, class Values, class Parts, class Item, class ProductData = void>
struct ElementFormat {
    using Product = ProductData;
    static constexpr bool isProduct = !std::is_void_v<Product>;

    TagName name = nullptr;
    Record record = Record::None;
    Attributes attributes{}; ///< The first of a record is its identifier.
    Values values{};         ///< The children that hold a value. The first of a record is its name.
    Parts parts{};           ///< The children that hold others, each there once.
    Item item{};             ///< What it has a list of, if anything.
};

template <class... Rows>
constexpr std::tuple<Rows...> rows(Rows... rows) {
    return {rows...};
}

template <class Attributes, class Values, class Parts = Elements<>, class Item = Elements<>>
constexpr ElementFormat<Attributes, Values, Parts, Item>
element(TagName name, Record record, Attributes attributes, Values values, Parts parts = {},
        Item item = {}) {
    return {name, record, attributes, values, parts, item};
}

template <class Product, class... Rows>
constexpr ElementFormat<std::tuple<>, std::tuple<Rows...>, Elements<>, Elements<>, Product>
product(TagName name, Rows... rows) {
    return {name, Record::None, {}, {rows...}};
}

// The table, from the innermost elements to the root.

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

/// Read only when a host asks for it: it is not among the parts of RecData.
inline constexpr auto pesticide =
    product<PesticideRec>(&TagNames::Pesticide_, text(&TagNames::PesticideMixName_),
                          integer(&TagNames::UOMID_), text(&TagNames::UOM_));

inline constexpr auto recData =
    element(&TagNames::RecData_, Record::None, rows(), rows(),
            Elements<commercialFertilizer, customFertilizer, planting>());

inline constexpr auto operation =
    element(&TagNames::Operation_, Record::None,
            rows(bind(identifier(&TagNames::OpID_), &RecDescription::operationId)),
            rows(bind(text(&TagNames::OpName_), &RecDescription::operationName)));

inline constexpr auto season =
    element(&TagNames::Season_, Record::None,
            rows(bind(integer(&TagNames::SeasonID_), &RecDescription::seasonId)),
            rows(bind(text(&TagNames::SeasonName_), &RecDescription::seasonName)));

inline constexpr auto recStats =
    element(&TagNames::RecStats_, Record::None, rows(),
            rows(bind(number(&TagNames::MinimumRate_), &RecStatistics::minimumRate),
                 bind(number(&TagNames::MaximumRate_), &RecStatistics::maximumRate),
                 bind(number(&TagNames::AverageRate_), &RecStatistics::averageRate),
                 bind(integer(&TagNames::RateUOMID_), &RecStatistics::rateUomId),
                 bind(text(&TagNames::RateUOM_), &RecStatistics::rateUom),
                 bind(number(&TagNames::Total_), &RecStatistics::total),
                 bind(integer(&TagNames::TotalUOMID_), &RecStatistics::totalUomId),
                 bind(text(&TagNames::TotalUOM_), &RecStatistics::totalUom),
                 bind(number(&TagNames::Area_), &RecStatistics::area),
                 bind(integer(&TagNames::AreaUOMID_), &RecStatistics::areaUomId),
                 bind(text(&TagNames::AreaUOM_), &RecStatistics::areaUom)));

inline constexpr auto rec =
    element(&TagNames::Rec_, Record::Rec,
            rows(bind(identifier(&TagNames::RecID_), &RecDescription::id),
                 bind(optionalIdentifier(&TagNames::MgmtZoneID_), &RecDescription::mgmtZoneId)),
            rows(bind(recordName(&TagNames::RecName_), &RecDescription::name),
                 bind(identifier(&TagNames::RecGeometry_), &RecDescription::recGeometry),
                 bind(text(&TagNames::CreationDate_), &RecDescription::creationDate),
                 bind(text(&TagNames::EditDate_), &RecDescription::editDate),
                 bind(text(&TagNames::RecDBFCol_), &RecDescription::recDbfCol)),
            Elements<operation, season, recData, recStats>());

inline constexpr auto recommendations = element(&TagNames::Recommendations_, Record::None, rows(),
                                                rows(), Elements<>(), Elements<rec>());

inline constexpr auto fieldCentroid =
    element(&TagNames::FieldCentroid_, Record::None, rows(),
            rows(number(&TagNames::Latitude_), number(&TagNames::Longitude_)));

inline constexpr auto field = element(
    &TagNames::Field_, Record::Field, rows(identifier(&TagNames::FieldID_)),
    rows(recordName(&TagNames::FieldName_), byFirstValue(identifier(&TagNames::FieldGeometryID_)),
         byFirstValue(text(&TagNames::FieldGeometryDate_)),
         byFirstValue(identifier(&TagNames::FieldGeometry_))),
    Elements<fieldCentroid, recommendations>());

inline constexpr auto farm =
    element(&TagNames::Farm_, Record::Farm, rows(identifier(&TagNames::FarmID_)),
            rows(recordName(&TagNames::FarmName_)), Elements<>(), Elements<field>());

inline constexpr auto grower =
    element(&TagNames::Grower_, Record::Grower, rows(identifier(&TagNames::GrowerID_)),
            rows(recordName(&TagNames::GrowerName_)), Elements<>(), Elements<farm>());

inline constexpr auto recPackage =
    element(&TagNames::RecPackage_, Record::None, rows(), rows(), Elements<>(), Elements<grower>());

} // namespace qenxml::format

#endif
