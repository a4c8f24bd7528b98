/// @file
/// What the readers onto plain structs share: which child or attribute goes into which member, and
/// the conversions. Written for speed and for generated packages, which are complete and in order:
/// errors, repeated children and a name after its siblings are not looked for.

#ifndef QENXML_BENCH_PLAINELEMENTS_H
#define QENXML_BENCH_PLAINELEMENTS_H

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "parser/internal/TagConstants.h"
#include "tests/support/PlainTree.h"

namespace plain {

/// Value of a hexadecimal digit by its character; 0 for all others.
inline constexpr std::array<std::uint8_t, 256> digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    for (std::uint8_t i = 0; i < 10; ++i)
        values[static_cast<std::size_t>('0') + i] = i;
    for (std::uint8_t i = 0; i < 6; ++i) {
        values[static_cast<std::size_t>('a') + i] = static_cast<std::uint8_t>(10 + i);
        values[static_cast<std::size_t>('A') + i] = static_cast<std::uint8_t>(10 + i);
    }
    return values;
}();

inline void read(boost::uuids::uuid& id, const char* text) {
    constexpr std::size_t length = 36;
    if (std::strlen(text) < length)
        return;
    const auto* digit = reinterpret_cast<const unsigned char*>(text);
    for (std::size_t i = 0; i < 16; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            ++digit; // the hyphen
        id.data[i] = static_cast<std::uint8_t>(digitValues[digit[0]] << 4U | digitValues[digit[1]]);
        digit += 2;
    }
}

inline void read(std::string& value, const char* text) {
    value = text;
}

inline void read(int& value, const char* text) {
    std::from_chars(text, text + std::strlen(text), value);
}

inline void read(double& value, const char* text) {
    std::from_chars(text, text + std::strlen(text), value);
}

/// A child element or an attribute, and the member that its text goes into.
template <class Record>
struct Member {
    const char* name;
    void (*read)(Record& record, const char* text);
};

/// Puts a text into the member that it belongs to. The name is looked for from @p next on, which
/// becomes the place behind it, so that in order each name is compared once.
template <class Record, std::size_t N>
void readMember(const std::array<Member<Record>, N>& members, std::size_t& next, Record& record,
                const char* name, const char* text) {
    for (std::size_t i = 0; i < N; ++i) {
        if (next >= N)
            next = 0;
        const Member<Record>& member = members[next++];
        if (std::strcmp(member.name, name) == 0) {
            member.read(record, text);
            return;
        }
    }
}

template <auto MemberPointer, class Record>
void readInto(Record& record, const char* text) {
    read(record.*MemberPointer, text);
}

/// A package has one geometry per field.
template <auto MemberPointer>
void readIntoGeometry(Field& field, const char* text) {
    read(field.geometries.front().*MemberPointer, text);
}

namespace tag = qenxml::tag;

inline constexpr std::array growerAttributes = {
    Member<Grower>{tag::GrowerID, readInto<&Grower::id>}};

inline constexpr std::array growerChildren = {
    Member<Grower>{tag::GrowerName, readInto<&Grower::name>}};

inline constexpr std::array farmAttributes = {Member<Farm>{tag::FarmID, readInto<&Farm::id>}};

inline constexpr std::array farmChildren = {Member<Farm>{tag::FarmName, readInto<&Farm::name>}};

inline constexpr std::array fieldAttributes = {Member<Field>{tag::FieldID, readInto<&Field::id>}};

inline constexpr std::array fieldChildren = {
    Member<Field>{tag::FieldName, readInto<&Field::name>},
    Member<Field>{tag::FieldGeometryID, readIntoGeometry<&Geometry::id>},
    Member<Field>{tag::FieldGeometryDate, readIntoGeometry<&Geometry::date>},
    Member<Field>{tag::FieldGeometry, readIntoGeometry<&Geometry::file>}};

inline constexpr std::array centroidChildren = {
    Member<Field>{tag::Latitude, readIntoGeometry<&Geometry::latitude>},
    Member<Field>{tag::Longitude, readIntoGeometry<&Geometry::longitude>}};

inline constexpr std::array recAttributes = {Member<Rec>{tag::RecID, readInto<&Rec::id>},
                                             Member<Rec>{tag::MgmtZoneID, readInto<&Rec::zoneId>}};

inline constexpr std::array recChildren = {
    Member<Rec>{tag::RecName, readInto<&Rec::name>},
    Member<Rec>{tag::RecGeometry, readInto<&Rec::geometry>},
    Member<Rec>{tag::CreationDate, readInto<&Rec::creationDate>},
    Member<Rec>{tag::EditDate, readInto<&Rec::editDate>},
    Member<Rec>{tag::RecDBFCol, readInto<&Rec::dbfCol>}};

inline constexpr std::array operationAttributes = {
    Member<Rec>{tag::OpID, readInto<&Rec::operationId>}};

inline constexpr std::array operationChildren = {
    Member<Rec>{tag::OpName, readInto<&Rec::operationName>}};

inline constexpr std::array seasonAttributes = {
    Member<Rec>{tag::SeasonID, readInto<&Rec::seasonId>}};

inline constexpr std::array seasonChildren = {
    Member<Rec>{tag::SeasonName, readInto<&Rec::seasonName>}};

inline constexpr std::array statisticsChildren = {
    Member<Rec>{tag::MinimumRate, readInto<&Rec::minimumRate>},
    Member<Rec>{tag::MaximumRate, readInto<&Rec::maximumRate>},
    Member<Rec>{tag::AverageRate, readInto<&Rec::averageRate>},
    Member<Rec>{tag::RateUOMID, readInto<&Rec::rateUomId>},
    Member<Rec>{tag::RateUOM, readInto<&Rec::rateUom>},
    Member<Rec>{tag::Total, readInto<&Rec::total>},
    Member<Rec>{tag::TotalUOMID, readInto<&Rec::totalUomId>},
    Member<Rec>{tag::TotalUOM, readInto<&Rec::totalUom>},
    Member<Rec>{tag::Area, readInto<&Rec::area>},
    Member<Rec>{tag::AreaUOMID, readInto<&Rec::areaUomId>},
    Member<Rec>{tag::AreaUOM, readInto<&Rec::areaUom>}};

inline constexpr std::array commercialFertilizerChildren = {
    Member<CommercialFertilizer>{tag::ProductID, readInto<&CommercialFertilizer::productId>},
    Member<CommercialFertilizer>{tag::ProductName, readInto<&CommercialFertilizer::productName>},
    Member<CommercialFertilizer>{tag::UOMID, readInto<&CommercialFertilizer::uomId>},
    Member<CommercialFertilizer>{tag::UOM, readInto<&CommercialFertilizer::uom>}};

inline constexpr std::array customFertilizerChildren = {
    Member<CustomFertilizer>{tag::ProductID, readInto<&CustomFertilizer::productId>},
    Member<CustomFertilizer>{tag::ProductName, readInto<&CustomFertilizer::productName>},
    Member<CustomFertilizer>{tag::UOMID, readInto<&CustomFertilizer::uomId>},
    Member<CustomFertilizer>{tag::UOM, readInto<&CustomFertilizer::uom>},
    Member<CustomFertilizer>{tag::SFertT_ID, readInto<&CustomFertilizer::typeId>},
    Member<CustomFertilizer>{tag::SpGravity, readInto<&CustomFertilizer::gravity>},
    Member<CustomFertilizer>{tag::Pct_N, readInto<&CustomFertilizer::n>},
    Member<CustomFertilizer>{tag::Pct_P, readInto<&CustomFertilizer::p>},
    Member<CustomFertilizer>{tag::Pct_K, readInto<&CustomFertilizer::k>},
    Member<CustomFertilizer>{tag::Pct_Ca, readInto<&CustomFertilizer::ca>},
    Member<CustomFertilizer>{tag::Pct_Mg, readInto<&CustomFertilizer::mg>},
    Member<CustomFertilizer>{tag::Pct_S, readInto<&CustomFertilizer::s>},
    Member<CustomFertilizer>{tag::Pct_Fe, readInto<&CustomFertilizer::fe>},
    Member<CustomFertilizer>{tag::Pct_Mn, readInto<&CustomFertilizer::mn>},
    Member<CustomFertilizer>{tag::Pct_Zn, readInto<&CustomFertilizer::zn>},
    Member<CustomFertilizer>{tag::Pct_Cu, readInto<&CustomFertilizer::cu>},
    Member<CustomFertilizer>{tag::Pct_B, readInto<&CustomFertilizer::b>},
    Member<CustomFertilizer>{tag::Pct_Mo, readInto<&CustomFertilizer::mo>},
    Member<CustomFertilizer>{tag::Pct_Cl, readInto<&CustomFertilizer::cl>}};

inline constexpr std::array plantingChildren = {
    Member<Planting>{tag::CropID, readInto<&Planting::cropId>},
    Member<Planting>{tag::CropName, readInto<&Planting::cropName>},
    Member<Planting>{tag::CompanyID, readInto<&Planting::companyId>},
    Member<Planting>{tag::CompanyName, readInto<&Planting::companyName>},
    Member<Planting>{tag::VarietyID, readInto<&Planting::varietyId>},
    Member<Planting>{tag::VarietyName, readInto<&Planting::varietyName>},
    Member<Planting>{tag::UOMID, readInto<&Planting::uomId>},
    Member<Planting>{tag::UOM, readInto<&Planting::uom>}};

/// Gives a rec empty product data.
template <class Kind>
Kind& newProduct(Rec& rec) {
    Kind& product = rec.product.emplace<Kind>();
    product.recId = rec.id;
    return product;
}

// New children carry what they take over from those around them.

inline Farm& newFarm(Grower& grower) {
    Farm& farm = grower.farms.emplace_back();
    farm.growerId = grower.id;
    return farm;
}

inline Field& newField(Farm& farm) {
    Field& field = farm.fields.emplace_back();
    field.growerId = farm.growerId;
    field.farmId = farm.id;
    field.geometries.emplace_back();
    return field;
}

inline Rec& newRec(Field& field, const boost::uuids::uuid& package) {
    Rec& rec = field.recs.emplace_back();
    rec.fieldId = field.id;
    rec.fieldGeometryId = field.geometries.front().id;
    rec.package = package;
    return rec;
}

/// The identifier in the name of a package file.
inline boost::uuids::uuid packageOf(const std::string& path) {
    constexpr std::size_t lengthWithExtension = 40;
    boost::uuids::uuid package{};
    if (path.size() >= lengthWithExtension)
        read(package, path.c_str() + path.size() - lengthWithExtension);
    return package;
}

} // namespace plain

#endif
