#include "tools/check/PackageFormat.h"

#include <fmt/format.h>

#include "parser/TagNames.h"

namespace tag = qenxml::tag;

namespace format {

const ElementFormat& recPackage() {
    static const ElementFormat format = {tag::RecPackage, {}, {}, &grower()};
    return format;
}

const ElementFormat& grower() {
    static const ElementFormat format = {
        tag::Grower,
        {{tag::GrowerID, ValueKind::Identifier, FindingCode::GrowerId}},
        {{tag::GrowerName, ValueKind::Name}},
        &farm(),
        "grower"};
    return format;
}

const ElementFormat& farm() {
    static const ElementFormat format = {
        tag::Farm,
        {{tag::FarmID, ValueKind::Identifier, FindingCode::FarmId}},
        {{tag::FarmName, ValueKind::Name}},
        &field(),
        "farm"};
    return format;
}

const ElementFormat& field() {
    static const ElementFormat format = {
        tag::Field,
        {{tag::FieldID, ValueKind::Identifier, FindingCode::FieldId}},
        {{tag::FieldName, ValueKind::Name},
         {tag::FieldGeometryID, ValueKind::Identifier, FindingCode::FieldGeometryId},
         {tag::FieldGeometryDate},
         {tag::FieldGeometry, ValueKind::Identifier, FindingCode::GeometryFileId},
         {tag::FieldCentroid, ValueKind::Element, std::nullopt, false, &fieldCentroid()},
         {tag::Recommendations, ValueKind::Element, std::nullopt, false, &recommendations()}},
        nullptr,
        "field"};
    return format;
}

const ElementFormat& fieldCentroid() {
    static const ElementFormat format = {
        tag::FieldCentroid,
        {},
        {{tag::Latitude, ValueKind::Number}, {tag::Longitude, ValueKind::Number}}};
    return format;
}

const ElementFormat& recommendations() {
    static const ElementFormat format = {tag::Recommendations, {}, {}, &rec()};
    return format;
}

const ElementFormat& rec() {
    static const ElementFormat format = {
        tag::Rec,
        {{tag::RecID, ValueKind::Identifier, FindingCode::RecId},
         {tag::MgmtZoneID, ValueKind::Identifier, FindingCode::ManagementZoneId, true}},
        {{tag::RecName, ValueKind::Name},
         {tag::RecGeometry, ValueKind::Identifier, FindingCode::RecGeometryId},
         {tag::CreationDate},
         {tag::EditDate},
         {tag::RecDBFCol},
         {tag::Operation, ValueKind::Element, std::nullopt, false, &operation()},
         {tag::Season, ValueKind::Element, std::nullopt, false, &season()},
         {tag::RecData, ValueKind::Element, std::nullopt, false, &recData()},
         {tag::RecStats, ValueKind::Element, std::nullopt, false, &recStats()}},
        nullptr,
        "rec"};
    return format;
}

const ElementFormat& operation() {
    static const ElementFormat format = {
        tag::Operation,
        {{tag::OpID, ValueKind::Identifier, FindingCode::OperationId}},
        {{tag::OpName}}};
    return format;
}

const ElementFormat& season() {
    static const ElementFormat format = {
        tag::Season, {{tag::SeasonID, ValueKind::Integer}}, {{tag::SeasonName}}};
    return format;
}

const ElementFormat& recData() {
    static const ElementFormat format = {
        tag::RecData,
        {},
        {{tag::CommercialFertilizer, ValueKind::Element, std::nullopt, false,
          &commercialFertilizer()},
         {tag::CustomFertilizer, ValueKind::Element, std::nullopt, false, &customFertilizer()},
         {tag::Planting, ValueKind::Element, std::nullopt, false, &planting()}}};
    return format;
}

const ElementFormat& recStats() {
    static const ElementFormat format = {tag::RecStats,
                                         {},
                                         {{tag::MinimumRate, ValueKind::Number},
                                          {tag::MaximumRate, ValueKind::Number},
                                          {tag::AverageRate, ValueKind::Number},
                                          {tag::RateUOMID, ValueKind::Integer},
                                          {tag::RateUOM},
                                          {tag::Total, ValueKind::Number},
                                          {tag::TotalUOMID, ValueKind::Integer},
                                          {tag::TotalUOM},
                                          {tag::Area, ValueKind::Number},
                                          {tag::AreaUOMID, ValueKind::Integer},
                                          {tag::AreaUOM}}};
    return format;
}

const ElementFormat& commercialFertilizer() {
    static const ElementFormat format = {tag::CommercialFertilizer,
                                         {},
                                         {{tag::ProductID, ValueKind::Integer},
                                          {tag::ProductName},
                                          {tag::UOMID, ValueKind::Integer},
                                          {tag::UOM}}};
    return format;
}

const ElementFormat& customFertilizer() {
    // The library converts the identifier only when all of the product is there.
    static const ElementFormat format = {tag::CustomFertilizer,
                                         {},
                                         {{tag::ProductID, ValueKind::Identifier},
                                          {tag::ProductName},
                                          {tag::UOMID, ValueKind::Integer},
                                          {tag::UOM},
                                          {tag::SFertT_ID, ValueKind::Integer},
                                          {tag::SpGravity, ValueKind::Number},
                                          {tag::Pct_N, ValueKind::Number},
                                          {tag::Pct_P, ValueKind::Number},
                                          {tag::Pct_K, ValueKind::Number},
                                          {tag::Pct_Ca, ValueKind::Number},
                                          {tag::Pct_Mg, ValueKind::Number},
                                          {tag::Pct_S, ValueKind::Number},
                                          {tag::Pct_Fe, ValueKind::Number},
                                          {tag::Pct_Mn, ValueKind::Number},
                                          {tag::Pct_Zn, ValueKind::Number},
                                          {tag::Pct_Cu, ValueKind::Number},
                                          {tag::Pct_B, ValueKind::Number},
                                          {tag::Pct_Mo, ValueKind::Number},
                                          {tag::Pct_Cl, ValueKind::Number}}};
    return format;
}

const ElementFormat& planting() {
    static const ElementFormat format = {tag::Planting,
                                         {},
                                         {{tag::CropID, ValueKind::Integer},
                                          {tag::CropName},
                                          {tag::CompanyID, ValueKind::Integer},
                                          {tag::CompanyName},
                                          {tag::VarietyID, ValueKind::Integer},
                                          {tag::VarietyName},
                                          {tag::UOMID, ValueKind::Integer},
                                          {tag::UOM}}};
    return format;
}

const std::vector<const ElementFormat*>& all() {
    static const std::vector<const ElementFormat*> formats = {&recPackage(),
                                                              &grower(),
                                                              &farm(),
                                                              &field(),
                                                              &fieldCentroid(),
                                                              &recommendations(),
                                                              &rec(),
                                                              &operation(),
                                                              &season(),
                                                              &recData(),
                                                              &commercialFertilizer(),
                                                              &customFertilizer(),
                                                              &planting(),
                                                              &recStats()};
    return formats;
}

} // namespace format

std::string placesOf(std::string_view name) {
    std::string places;
    const auto add = [&](const char* how, const ElementFormat& format) {
        places += places.empty() ? "" : " or ";
        places += fmt::format("{} {}", how, format.name);
    };
    for (const ElementFormat* format : format::all()) {
        for (const DatumFormat& attribute : format->attributes)
            if (name == attribute.name)
                add("as an attribute of", *format);
        for (const DatumFormat& child : format->children)
            if (name == child.name)
                add("in", *format);
        if (format->item != nullptr && name == format->item->name)
            add("in", *format);
    }
    return places;
}
