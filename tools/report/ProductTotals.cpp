#include "tools/report/ProductTotals.h"

#include <cmath>
#include <tuple>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"
#include "tools/records/RecordWalk.h"
#include "tools/report/GroupedNumber.h"

namespace tag = qenxml::tag;

bool ProductUnit::operator<(const ProductUnit& other) const {
    const bool none = kind.empty();
    const bool otherNone = other.kind.empty();
    return std::tie(none, kind, name, unit) <
           std::tie(otherNone, other.kind, other.name, other.unit);
}

void Sum::add(double number) {
    const double sum = sum_ + number;
    lost_ += std::abs(sum_) < std::abs(number) ? number - sum + sum_ : sum_ - sum + number;
    sum_ = sum;
    ++numbers_;
}

std::string Sum::text() const {
    if (numbers_ == 0)
        return "";
    if (numbers_ == 1 || !std::isfinite(sum_))
        return groupedText(sum_);
    return grouped(fmt::format("{:.15g}", sum_ + lost_));
}

void ProductTotals::add(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps) {
    forEachRec(growers, gaps, [this](const FieldContext& context, QenRec& rec) {
        const auto& [grower, farm, field, gapsOfGrower] = context;
        if (seen_.insert({grower.id(), farm.id(), field.id(), rec.id()}).second)
            add(rec, context.missingFrom(rec));
        else
            ++repeated_;
    });
}

void ProductTotals::add(QenRec& rec, const MissingNumbers& missing) {
    const std::string unit = textOrCode(rec.totalUom(), rec.totalUomId());
    ProductTotal& sum = totals_[{productKind(rec.recData()), productName(rec.recData()), unit}];
    ++sum.recs;
    if (missing.contains(tag::Total))
        ++sum.recsWithoutTotal;
    else
        sum.total.add(rec.total());
    if (!missing.contains(tag::Area))
        sum.areas[textOrCode(rec.areaUom(), rec.areaUomId())].add(rec.area());
}
