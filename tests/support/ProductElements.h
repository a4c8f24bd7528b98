/// @file
/// The kinds of product data, each with the table of its element: the one home of what tests know
/// of all of them.

#ifndef QENXML_TESTS_SUPPORT_PRODUCTELEMENTS_H
#define QENXML_TESTS_SUPPORT_PRODUCTELEMENTS_H

#include <memory>
#include <tuple>
#include <vector>

#include <pugixml.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"
#include "tests/support/ElementSample.h"
#include "tests/support/PackageText.h"

namespace test {

/// What the elements of products have in common.
/// @tparam parse reads one, for the rec that it is given
template <class Product, auto parse>
struct ProductElement {
    using Record = Product;

    static std::unique_ptr<Product> read(pugi::xml_node element) {
        return std::unique_ptr<Product>((QenXmlParser().*parse)(uuid(31), element));
    }
};

struct CommercialFertilizerElement
    : ProductElement<CommercialFertilizerRec, &QenXmlParser::parseCommercialFertilizerRecDataNode> {
    static constexpr const char* name = "CommercialFertilizer";
    static constexpr RecType kind = RecTypeCommercialFertilizer;

    static std::vector<Datum<Record>> data() {
        // clang-format off
        return {
            {"ProductID",   Access::FirstText, Type::Integer, "501",  noRecord, "0", value(&Record::productId)},
            {"ProductName", Access::FirstText, Type::Text,    "Urea", noRecord, "",  value(&Record::productName)},
            {"UOMID",       Access::FirstText, Type::Integer, "502",  noRecord, "0", value(&Record::uomId)},
            {"UOM",         Access::FirstText, Type::Text,    "kg",   noRecord, "",  value(&Record::uom)},
        };
        // clang-format on
    }
};

struct CustomFertilizerElement
    : ProductElement<CustomFertilizerRec, &QenXmlParser::parseCustomFertilizerRecDataNode> {
    static constexpr const char* name = "CustomFertilizer";
    static constexpr RecType kind = RecTypeCustomFertilizer;

    static std::vector<Datum<Record>> data() {
        // clang-format off
        return {
            {"ProductID",   Access::FirstText, Type::Identifier, uuidText(41), noRecord, raises, value(&Record::productId)},
            {"ProductName", Access::FirstText, Type::Text,       "Our blend",  noRecord, "",     value(&Record::productName)},
            {"UOMID",       Access::FirstText, Type::Integer,    "601",        noRecord, "0",    value(&Record::uomId)},
            {"UOM",         Access::FirstText, Type::Text,       "l",          noRecord, "",     value(&Record::uom)},
            {"SFertT_ID",   Access::FirstText, Type::Integer,    "602",        noRecord, "0",    value(&Record::sFertT_ID)},
            {"SpGravity",   Access::FirstText, Type::Number,     "1.5",        noRecord, "0",    value(&Record::spGravity)},
            {"Pct_N",       Access::FirstText, Type::Number,     "10.5",       noRecord, "0",    value(&Record::pct_N)},
            {"Pct_P",       Access::FirstText, Type::Number,     "11.5",       noRecord, "0",    value(&Record::pct_P)},
            {"Pct_K",       Access::FirstText, Type::Number,     "12.5",       noRecord, "0",    value(&Record::pct_K)},
            {"Pct_Ca",      Access::FirstText, Type::Number,     "13.5",       noRecord, "0",    value(&Record::pct_Ca)},
            {"Pct_Mg",      Access::FirstText, Type::Number,     "14.5",       noRecord, "0",    value(&Record::pct_Mg)},
            {"Pct_S",       Access::FirstText, Type::Number,     "15.5",       noRecord, "0",    value(&Record::pct_S)},
            {"Pct_Fe",      Access::FirstText, Type::Number,     "16.5",       noRecord, "0",    value(&Record::pct_Fe)},
            {"Pct_Mn",      Access::FirstText, Type::Number,     "17.5",       noRecord, "0",    value(&Record::pct_Mn)},
            {"Pct_Zn",      Access::FirstText, Type::Number,     "18.5",       noRecord, "0",    value(&Record::pct_Zn)},
            {"Pct_Cu",      Access::FirstText, Type::Number,     "19.5",       noRecord, "0",    value(&Record::pct_Cu)},
            {"Pct_B",       Access::FirstText, Type::Number,     "20.5",       noRecord, "0",    value(&Record::pct_B)},
            {"Pct_Mo",      Access::FirstText, Type::Number,     "21.5",       noRecord, "0",    value(&Record::pct_Mo)},
            {"Pct_Cl",      Access::FirstText, Type::Number,     "22.5",       noRecord, "0",    value(&Record::pct_Cl)},
        };
        // clang-format on
    }
};

struct PlantingElement : ProductElement<PlantingRec, &QenXmlParser::parsePlantingRecDataNode> {
    static constexpr const char* name = "Planting";
    static constexpr RecType kind = RecTypePlanting;

    static std::vector<Datum<Record>> data() {
        // clang-format off
        return {
            {"CropID",      Access::FirstText, Type::Integer, "701",      noRecord, "0", value(&Record::cropId)},
            {"CropName",    Access::FirstText, Type::Text,    "Maize",    noRecord, "",  value(&Record::cropName)},
            {"CompanyID",   Access::FirstText, Type::Integer, "702",      noRecord, "0", value(&Record::companyId)},
            {"CompanyName", Access::FirstText, Type::Text,    "Seeds Co", noRecord, "",  value(&Record::companyName)},
            {"VarietyID",   Access::FirstText, Type::Integer, "703",      noRecord, "0", value(&Record::varietyId)},
            {"VarietyName", Access::FirstText, Type::Text,    "Early",    noRecord, "",  value(&Record::varietyName)},
            {"UOMID",       Access::FirstText, Type::Integer, "704",      noRecord, "0", value(&Record::uomId)},
            {"UOM",         Access::FirstText, Type::Text,    "seeds/ha", noRecord, "",  value(&Record::uom)},
        };
        // clang-format on
    }
};

struct PesticideElement : ProductElement<PesticideRec, &QenXmlParser::parsePesticideRecDataNode> {
    static constexpr const char* name = "Pesticide";
    static constexpr RecType kind = RecTypePesticide;

    static std::vector<Datum<Record>> data() {
        // clang-format off
        return {
            {"PesticideMixName", Access::FirstText, Type::Text,    "Weed mix", noRecord, "",  value(&Record::pesticideMixName)},
            {"UOMID",            Access::FirstText, Type::Integer, "801",      noRecord, "0", value(&Record::uomId)},
            {"UOM",              Access::FirstText, Type::Text,    "l/ha",     noRecord, "",  value(&Record::uom)},
        };
        // clang-format on
    }
};

using ProductElements = std::tuple<CommercialFertilizerElement, CustomFertilizerElement,
                                   PlantingElement, PesticideElement>;

} // namespace test

#endif
