/// @file
/// The names of all elements and attributes of the package format: their only home. Only
/// QenXmlParser holds a table of them; what is in namespace qenxml is not for hosts.

#ifndef QENXML_PARSER_TAGNAMES_H
#define QENXML_PARSER_TAGNAMES_H

#include <string>

// TAG(name of the member without "_", text in the package), in the order of the table. The texts
// are exact, case included; "PestcideByPercent" and "PestcideByAmount" are spelt so in packages.
// "ProductID" and "ProductName" stand twice: for fertilizers and for the lines of a pesticide mix.
//
// From "PesticideProductID" to "Carrier" the names belong to pesticide mixes, of which only
// "PesticideMixName" is read.
#define QENXML_TAG_NAMES(TAG)                                                                      \
    TAG(RecPackage, "RecPackage")                                                                  \
    TAG(Grower, "Grower")                                                                          \
    TAG(GrowerName, "GrowerName")                                                                  \
    TAG(GrowerID, "GrowerID")                                                                      \
    TAG(Farm, "Farm")                                                                              \
    TAG(FarmName, "FarmName")                                                                      \
    TAG(FarmID, "FarmID")                                                                          \
    TAG(Field, "Field")                                                                            \
    TAG(FieldName, "FieldName")                                                                    \
    TAG(FieldID, "FieldID")                                                                        \
    TAG(FieldGeometryID, "FieldGeometryID")                                                        \
    TAG(FieldGeometryDate, "FieldGeometryDate")                                                    \
    TAG(FieldGeometry, "FieldGeometry")                                                            \
    TAG(FieldCentroid, "FieldCentroid")                                                            \
    TAG(Latitude, "Latitude")                                                                      \
    TAG(Longitude, "Longitude")                                                                    \
    TAG(Recommendations, "Recommendations")                                                        \
    TAG(Rec, "Rec")                                                                                \
    TAG(RecName, "RecName")                                                                        \
    TAG(RecID, "RecID")                                                                            \
    TAG(MgmtZoneID, "MgmtZoneID")                                                                  \
    TAG(RecGeometry, "RecGeometry")                                                                \
    TAG(CreationDate, "CreationDate")                                                              \
    TAG(EditDate, "EditDate")                                                                      \
    TAG(RecDBFCol, "RecDBFCol")                                                                    \
    TAG(Operation, "Operation")                                                                    \
    TAG(OpID, "OpID")                                                                              \
    TAG(OpName, "OpName")                                                                          \
    TAG(Season, "Season")                                                                          \
    TAG(SeasonID, "SeasonID")                                                                      \
    TAG(SeasonName, "SeasonName")                                                                  \
    TAG(RecData, "RecData")                                                                        \
    TAG(ProductID, "ProductID")                                                                    \
    TAG(ProductName, "ProductName")                                                                \
    TAG(UOMID, "UOMID")                                                                            \
    TAG(UOM, "UOM")                                                                                \
    TAG(Percent, "Percent")                                                                        \
    TAG(Amount, "Amount")                                                                          \
    TAG(CommercialFertilizer, "CommercialFertilizer")                                              \
    TAG(CustomFertilizer, "CustomFertilizer")                                                      \
    TAG(SFertT_ID, "SFertT_ID")                                                                    \
    TAG(SpGravity, "SpGravity")                                                                    \
    TAG(Pct_N, "Pct_N")                                                                            \
    TAG(Pct_P, "Pct_P")                                                                            \
    TAG(Pct_K, "Pct_K")                                                                            \
    TAG(Pct_Ca, "Pct_Ca")                                                                          \
    TAG(Pct_Mg, "Pct_Mg")                                                                          \
    TAG(Pct_S, "Pct_S")                                                                            \
    TAG(Pct_Fe, "Pct_Fe")                                                                          \
    TAG(Pct_Mn, "Pct_Mn")                                                                          \
    TAG(Pct_Zn, "Pct_Zn")                                                                          \
    TAG(Pct_Cu, "Pct_Cu")                                                                          \
    TAG(Pct_B, "Pct_B")                                                                            \
    TAG(Pct_Mo, "Pct_Mo")                                                                          \
    TAG(Pct_Cl, "Pct_Cl")                                                                          \
    TAG(Planting, "Planting")                                                                      \
    TAG(CropID, "CropID")                                                                          \
    TAG(CropName, "CropName")                                                                      \
    TAG(CompanyID, "CompanyID")                                                                    \
    TAG(CompanyName, "CompanyName")                                                                \
    TAG(VarietyID, "VarietyID")                                                                    \
    TAG(VarietyName, "VarietyName")                                                                \
    TAG(PesticideProductID, "ProductID")                                                           \
    TAG(PesticideProductName, "ProductName")                                                       \
    TAG(RegCodeID, "RegCodeID")                                                                    \
    TAG(RegCode, "RegCode")                                                                        \
    TAG(Pesticide, "Pesticide")                                                                    \
    TAG(PestcideByPercent, "PestcideByPercent")                                                    \
    TAG(PestcideByAmount, "PestcideByAmount")                                                      \
    TAG(PesticideMixName, "PesticideMixName")                                                      \
    TAG(Herbicide, "Herbicide")                                                                    \
    TAG(Insecticide, "Insecticide")                                                                \
    TAG(Fungicide, "Fungicide")                                                                    \
    TAG(Additive, "Additive")                                                                      \
    TAG(GrowthRegulator, "GrowthRegulator")                                                        \
    TAG(Carrier, "Carrier")                                                                        \
    TAG(RecStats, "RecStats")                                                                      \
    TAG(MinimumRate, "MinimumRate")                                                                \
    TAG(MaximumRate, "MaximumRate")                                                                \
    TAG(AverageRate, "AverageRate")                                                                \
    TAG(RateUOMID, "RateUOMID")                                                                    \
    TAG(RateUOM, "RateUOM")                                                                        \
    TAG(Total, "Total")                                                                            \
    TAG(TotalUOMID, "TotalUOMID")                                                                  \
    TAG(TotalUOM, "TotalUOM")                                                                      \
    TAG(Area, "Area")                                                                              \
    TAG(AreaUOMID, "AreaUOMID")                                                                    \
    TAG(AreaUOM, "AreaUOM")

namespace qenxml {

/// The table of names that a parser holds and passes to every look-up; never changed once it is
/// constructed. The members end in "_", so that no macro of a host ("Total") changes them.
struct TagNames {
#define QENXML_TAG_MEMBER(name, text) std::string name##_ = text;
    QENXML_TAG_NAMES(QENXML_TAG_MEMBER)
#undef QENXML_TAG_MEMBER
};

/// Where in the table a name stands.
using TagName = std::string TagNames::*;

} // namespace qenxml

#endif
