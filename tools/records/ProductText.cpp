#include "tools/records/ProductText.h"

#include <array>
#include <initializer_list>

#include <fmt/format.h>

#include "model/internal/RecDataVisit.h"
#include "parser/internal/TagConstants.h"

namespace tag = qenxml::tag;

namespace {

/// What a kind of product is called by people and by programs.
struct KindName {
    const char* text = "";
    const char* key = "";
};

KindName nameOf(PlantingRec& /*planting*/) {
    return {"planting", "planting"};
}

KindName nameOf(CommercialFertilizerRec& /*fertilizer*/) {
    return {"fertilizer", "commercialFertilizer"};
}

KindName nameOf(CustomFertilizerRec& /*blend*/) {
    return {"blend", "customFertilizer"};
}

KindName nameOf(PesticideRec& /*mix*/) {
    return {"pesticide mix", "pesticide"};
}

std::string inOneName(std::initializer_list<std::string> parts) {
    std::string name;
    for (const std::string& part : parts) {
        if (!name.empty() && !part.empty())
            name += ", ";
        name += part;
    }
    return name;
}

std::string productName(PlantingRec& planting) {
    return inOneName({textOrCode(planting.cropName(), planting.cropId()),
                      textOrCode(planting.companyName(), planting.companyId()),
                      textOrCode(planting.varietyName(), planting.varietyId())});
}

std::string productName(CommercialFertilizerRec& fertilizer) {
    return textOrCode(fertilizer.productName(), fertilizer.productId());
}

std::string productName(CustomFertilizerRec& blend) {
    return blend.productName();
}

std::string productName(PesticideRec& mix) {
    return mix.pesticideMixName();
}

std::string productTitle(PlantingRec& planting) {
    return inOneName({planting.cropName(), planting.companyName(), planting.varietyName()});
}

std::string productTitle(CommercialFertilizerRec& fertilizer) {
    return fertilizer.productName();
}

template <class Product>
std::string productTitle(Product& product) {
    return productName(product);
}

/// What is called with the product, if there is one.
template <class Result, class Visitor>
Result visit(QenRecData* data, Visitor visitor) {
    return data == nullptr ? Result() : qenxml::visitRecData(*data, visitor, Result());
}

KindName kindName(QenRecData* data) {
    return visit<KindName>(data, [](auto& product) { return nameOf(product); });
}

} // namespace

std::string textOrCode(const std::string& text, int code) {
    if (!text.empty())
        return text;
    return code == 0 || code == -1 ? "" : fmt::format("code {}", code);
}

std::string productKind(QenRecData* data) {
    return kindName(data).text;
}

std::string productKindKey(QenRecData* data) {
    return kindName(data).key;
}

std::string productName(QenRecData* data) {
    return visit<std::string>(data, [](auto& product) { return productName(product); });
}

std::string productTitle(QenRecData* data) {
    return visit<std::string>(data, [](auto& product) { return productTitle(product); });
}

std::string blendContent(CustomFertilizerRec& blend, const MissingNumbers& missing) {
    struct Nutrient {
        const char* symbol;
        const char* name;
        double percentage;
    };
    const std::array<Nutrient, 13> percentages = {{{"N", tag::Pct_N, blend.pct_N()},
                                                   {"P", tag::Pct_P, blend.pct_P()},
                                                   {"K", tag::Pct_K, blend.pct_K()},
                                                   {"Ca", tag::Pct_Ca, blend.pct_Ca()},
                                                   {"Mg", tag::Pct_Mg, blend.pct_Mg()},
                                                   {"S", tag::Pct_S, blend.pct_S()},
                                                   {"Fe", tag::Pct_Fe, blend.pct_Fe()},
                                                   {"Mn", tag::Pct_Mn, blend.pct_Mn()},
                                                   {"Zn", tag::Pct_Zn, blend.pct_Zn()},
                                                   {"Cu", tag::Pct_Cu, blend.pct_Cu()},
                                                   {"B", tag::Pct_B, blend.pct_B()},
                                                   {"Mo", tag::Pct_Mo, blend.pct_Mo()},
                                                   {"Cl", tag::Pct_Cl, blend.pct_Cl()}}};
    std::string nutrients;
    bool allKnown = true;
    for (const auto& [symbol, name, percentage] : percentages) {
        allKnown = allKnown && !missing.contains(name);
        if (percentage != 0.0)
            nutrients += fmt::format("{}{} {}%", nutrients.empty() ? "" : ", ", symbol, percentage);
    }
    if (nutrients.empty() && allKnown)
        nutrients = "no nutrients";
    if (missing.contains(tag::SpGravity))
        return nutrients;
    return fmt::format("specific gravity {}{}{}", blend.spGravity(), nutrients.empty() ? "" : "; ",
                       nutrients);
}
