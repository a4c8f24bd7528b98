#include "tools/records/ProductText.h"

#include <array>
#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "model/CommercialFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "parser/internal/TagConstants.h"

namespace tag = qenxml::tag;

namespace {

/// Texts with commas between them; empty ones are left out.
template <std::size_t N>
std::string list(const std::array<std::string, N>& parts) {
    std::string result;
    for (const std::string& part : parts) {
        if (!result.empty() && !part.empty())
            result += ", ";
        result += part;
    }
    return result;
}

/// What is called for each kind of product.
template <class Result, class Planting, class Fertilizer, class Blend, class Mix>
Result byKind(QenRecData* data, Planting planting, Fertilizer fertilizer, Blend blend, Mix mix) {
    switch (data == nullptr ? RecTypeNone : data->recType()) {
    case RecTypePlanting:
        return planting(static_cast<PlantingRec&>(*data));
    case RecTypeCommercialFertilizer:
        return fertilizer(static_cast<CommercialFertilizerRec&>(*data));
    case RecTypeCustomFertilizer:
        return blend(static_cast<CustomFertilizerRec&>(*data));
    case RecTypePesticide:
        return mix(static_cast<PesticideRec&>(*data));
    case RecTypeNone:
        break;
    }
    return Result();
}

} // namespace

std::string textOrCode(const std::string& text, int code) {
    if (!text.empty())
        return text;
    return code == 0 || code == -1 ? "" : fmt::format("code {}", code);
}

std::string productKind(QenRecData* data) {
    const auto always = [](const char* kind) { return [kind](QenRecData&) { return kind; }; };
    return byKind<std::string>(data, always("planting"), always("fertilizer"), always("blend"),
                               always("pesticide mix"));
}

std::string productName(QenRecData* data) {
    return byKind<std::string>(
        data,
        [](PlantingRec& planting) {
            return list(std::array{textOrCode(planting.cropName(), planting.cropId()),
                                   textOrCode(planting.companyName(), planting.companyId()),
                                   textOrCode(planting.varietyName(), planting.varietyId())});
        },
        [](CommercialFertilizerRec& fertilizer) {
            return textOrCode(fertilizer.productName(), fertilizer.productId());
        },
        [](CustomFertilizerRec& blend) { return blend.productName(); },
        [](PesticideRec& mix) { return mix.pesticideMixName(); });
}

std::optional<Unit> productUnit(QenRecData* data) {
    const auto unit = [](auto& product) { return Unit{product.uom(), product.uomId()}; };
    return byKind<std::optional<Unit>>(data, unit, unit, unit, unit);
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
