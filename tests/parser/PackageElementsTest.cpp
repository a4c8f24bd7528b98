// The table of the format, written out a second time: a row that changes changes a line here.

#include "parser/internal/PackageElements.h"

#include <string>

#include <gtest/gtest.h>

namespace format = qenxml::format;

namespace {

const qenxml::TagNames names;

std::string kindOf(const format::Datum& datum) {
    switch (datum.kind) {
    case format::Kind::Text:
        return "text";
    case format::Kind::Name:
        return "name";
    case format::Kind::Identifier:
        return datum.need == format::Need::Mandatory ? "mandatory identifier" : "identifier";
    case format::Kind::Integer:
        return "integer";
    case format::Kind::Number:
        return "number";
    }
    return "";
}

std::string recordOf(const format::Element& element) {
    switch (element.record) {
    case format::Record::None:
        return element.isProduct ? " (product)" : "";
    case format::Record::Grower:
        return " (grower)";
    case format::Record::Farm:
        return " (farm)";
    case format::Record::Field:
        return " (field)";
    case format::Record::Rec:
        return " (rec)";
    }
    return "";
}

std::string outline(const format::Element& element, const std::string& indent = "") {
    const std::string below = indent + "  ";
    std::string text = indent + names.*element.name + recordOf(element) + "\n";
    for (const format::Datum& datum : element.attributes)
        text += below + "@" + names.*datum.name + " " + kindOf(datum) + "\n";
    for (const format::Datum& datum : element.values)
        text += below + names.*datum.name + " " + kindOf(datum) + "\n";
    for (const format::Element* part : element.parts)
        text += outline(*part, below);
    if (element.item != nullptr)
        text += below + "list of\n" + outline(*element.item, below);
    return text;
}

TEST(PackageElements, AreThoseOfThePackageFormat) {
    EXPECT_EQ(outline(format::elementOf<format::recPackage>), R"(RecPackage
  list of
  Grower (grower)
    @GrowerID mandatory identifier
    GrowerName name
    list of
    Farm (farm)
      @FarmID mandatory identifier
      FarmName name
      list of
      Field (field)
        @FieldID mandatory identifier
        FieldName name
        FieldGeometryID mandatory identifier
        FieldGeometryDate text
        FieldGeometry mandatory identifier
        FieldCentroid
          Latitude number
          Longitude number
        Recommendations
          list of
          Rec (rec)
            @RecID mandatory identifier
            @MgmtZoneID identifier
            RecName name
            RecGeometry mandatory identifier
            CreationDate text
            EditDate text
            RecDBFCol text
            Operation
              @OpID mandatory identifier
              OpName text
            Season
              @SeasonID integer
              SeasonName text
            RecData
              CommercialFertilizer (product)
                ProductID integer
                ProductName text
                UOMID integer
                UOM text
              CustomFertilizer (product)
                ProductID mandatory identifier
                ProductName text
                UOMID integer
                UOM text
                SFertT_ID integer
                SpGravity number
                Pct_N number
                Pct_P number
                Pct_K number
                Pct_Ca number
                Pct_Mg number
                Pct_S number
                Pct_Fe number
                Pct_Mn number
                Pct_Zn number
                Pct_Cu number
                Pct_B number
                Pct_Mo number
                Pct_Cl number
              Planting (product)
                CropID integer
                CropName text
                CompanyID integer
                CompanyName text
                VarietyID integer
                VarietyName text
                UOMID integer
                UOM text
            RecStats
              MinimumRate number
              MaximumRate number
              AverageRate number
              RateUOMID integer
              RateUOM text
              Total number
              TotalUOMID integer
              TotalUOM text
              Area number
              AreaUOMID integer
              AreaUOM text
)");
}

} // namespace
