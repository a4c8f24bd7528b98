/// @file
/// A package with a number in every place where the format has one, and what is read of them.

#ifndef QENXML_TESTS_ROBUSTNESS_NUMBERPACKAGE_H
#define QENXML_TESTS_ROBUSTNESS_NUMBERPACKAGE_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "tests/support/PackageText.h"

namespace test {

/// So long that a string of it takes memory.
inline const std::string longWords = "some words of over 15 bytes";

// Elements whose numbers are all spelt @p text.

inline std::string commercialFertilizer(const std::string& text) {
    return element("CommercialFertilizer", elements({"ProductID", "UOMID"}, text) +
                                               elements({"ProductName", "UOM"}, longWords));
}

inline std::string customFertilizer(const std::string& text) {
    return element("CustomFertilizer",
                   element("ProductID", uuidText(41)) +
                       elements({"ProductName", "UOM"}, longWords) +
                       elements({"UOMID", "SFertT_ID", "SpGravity", "Pct_N", "Pct_P", "Pct_K",
                                 "Pct_Ca", "Pct_Mg", "Pct_S", "Pct_Fe", "Pct_Mn", "Pct_Zn",
                                 "Pct_Cu", "Pct_B", "Pct_Mo", "Pct_Cl"},
                                text));
}

inline std::string planting(const std::string& text) {
    return element("Planting",
                   elements({"CropID", "CompanyID", "VarietyID", "UOMID"}, text) +
                       elements({"CropName", "CompanyName", "VarietyName", "UOM"}, longWords));
}

inline std::string pesticide(const std::string& text) {
    return element("Pesticide",
                   element("UOMID", text) + elements({"PesticideMixName", "UOM"}, longWords));
}

/// The element of a kind of product data; none for no kind.
inline std::string productWithNumbers(RecType kind, const std::string& text) {
    switch (kind) {
    case RecTypeCommercialFertilizer:
        return commercialFertilizer(text);
    case RecTypeCustomFertilizer:
        return customFertilizer(text);
    case RecTypePlanting:
        return planting(text);
    case RecTypePesticide:
        return pesticide(text);
    default:
        break;
    }
    return "";
}

inline std::string recWithNumbers(unsigned number, RecType kind, const std::string& text) {
    return rec(
        number,
        elements({"RecName", "CreationDate", "EditDate", "RecDBFCol"}, longWords) +
            element("Operation", "OpID", 51, element("OpName", longWords)) + "<Season SeasonID=\"" +
            text + "\">" + element("SeasonName", longWords) + "</Season>" +
            element("RecData", productWithNumbers(kind, text)) +
            element("RecStats", elements({"MinimumRate", "MaximumRate", "AverageRate", "RateUOMID",
                                          "Total", "TotalUOMID", "Area", "AreaUOMID"},
                                         text) +
                                    elements({"RateUOM", "TotalUOM", "AreaUOM"}, longWords)));
}

inline std::string fieldWithRecs(unsigned number, const std::string& recs,
                                 const std::string& text) {
    return field(number, elements({"FieldName", "FieldGeometryDate"}, longWords) +
                             element("FieldCentroid", elements({"Latitude", "Longitude"}, text)) +
                             recommendations(recs));
}

/// A field with a rec of each kind of product data that is read.
inline std::string fieldWithNumbers(const std::string& text) {
    return fieldWithRecs(21,
                         recWithNumbers(31, RecTypeCustomFertilizer, text) +
                             recWithNumbers(32, RecTypeCommercialFertilizer, text) +
                             recWithNumbers(33, RecTypePlanting, text),
                         text);
}

inline std::string farmWithNumbers(const std::string& text) {
    return farm(11, element("FarmName", longWords) + fieldWithNumbers(text));
}

inline std::string growerWithNumbers(const std::string& text) {
    return grower(1, element("GrowerName", longWords) + farmWithNumbers(text));
}

/// All that was read of such elements, each with the name of its place.
struct Numbers {
    template <class Value>
    struct Place {
        std::string name;
        Value value;
    };
    std::vector<Place<double>> doubles;
    std::vector<Place<int>> integers; ///< All but the seasons.
    std::vector<int> seasons;         ///< A negative one reads as -1.

    void add(CommercialFertilizerRec& data) {
        integers.push_back({"commercial ProductID", data.productId()});
        integers.push_back({"commercial UOMID", data.uomId()});
    }

    void add(CustomFertilizerRec& data) {
        integers.push_back({"custom UOMID", data.uomId()});
        integers.push_back({"SFertT_ID", data.sFertT_ID()});
        doubles.push_back({"SpGravity", data.spGravity()});
        doubles.push_back({"Pct_N", data.pct_N()});
        doubles.push_back({"Pct_P", data.pct_P()});
        doubles.push_back({"Pct_K", data.pct_K()});
        doubles.push_back({"Pct_Ca", data.pct_Ca()});
        doubles.push_back({"Pct_Mg", data.pct_Mg()});
        doubles.push_back({"Pct_S", data.pct_S()});
        doubles.push_back({"Pct_Fe", data.pct_Fe()});
        doubles.push_back({"Pct_Mn", data.pct_Mn()});
        doubles.push_back({"Pct_Zn", data.pct_Zn()});
        doubles.push_back({"Pct_Cu", data.pct_Cu()});
        doubles.push_back({"Pct_B", data.pct_B()});
        doubles.push_back({"Pct_Mo", data.pct_Mo()});
        doubles.push_back({"Pct_Cl", data.pct_Cl()});
    }

    void add(PlantingRec& data) {
        integers.push_back({"CropID", data.cropId()});
        integers.push_back({"CompanyID", data.companyId()});
        integers.push_back({"VarietyID", data.varietyId()});
        integers.push_back({"planting UOMID", data.uomId()});
    }

    void add(PesticideRec& data) { integers.push_back({"pesticide UOMID", data.uomId()}); }

    void add(QenRecData& data) {
        if (auto* custom = dynamic_cast<CustomFertilizerRec*>(&data))
            add(*custom);
        else if (auto* commercial = dynamic_cast<CommercialFertilizerRec*>(&data))
            add(*commercial);
        else
            add(dynamic_cast<PlantingRec&>(data));
    }

    void add(QenRec& rec) {
        doubles.push_back({"MinimumRate", rec.minimumRate()});
        doubles.push_back({"MaximumRate", rec.maximumRate()});
        doubles.push_back({"AverageRate", rec.averageRate()});
        doubles.push_back({"Total", rec.total()});
        doubles.push_back({"Area", rec.area()});
        integers.push_back({"RateUOMID", rec.rateUomId()});
        integers.push_back({"TotalUOMID", rec.totalUomId()});
        integers.push_back({"AreaUOMID", rec.areaUomId()});
        seasons.push_back(rec.seasonId());
        add(*rec.recData());
    }

    void add(QenField& field) {
        const LLA centroid = field.geometries().at(0).centroid();
        doubles.push_back({"Latitude", centroid.latitude});
        doubles.push_back({"Longitude", centroid.longitude});
        for (QenRec& rec : field.recs())
            add(rec);
    }

    void add(QenFarm& farm) {
        for (QenField& field : farm.fields())
            add(field);
    }

    void add(QenGrower& grower) {
        for (QenFarm& farm : grower.farms())
            add(farm);
    }
};

} // namespace test

#endif
