#include "tools/report/ReportData.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"
#include "tools/records/RecordWalk.h"
#include "tools/report/GroupedNumber.h"

namespace tag = qenxml::tag;

RecordCounts& RecordCounts::operator+=(const RecordCounts& other) {
    growers += other.growers;
    farms += other.farms;
    fields += other.fields;
    recs += other.recs;
    recsWithoutProduct += other.recsWithoutProduct;
    return *this;
}

bool isWhole(const ReportPackage& package) {
    // Where reading succeeds, the check finds no error, unless it could not read the file.
    return !package.reading.failure && package.findings.counts().of(Severity::Error) == 0;
}

bool isReadable(const ReportPackage& package) {
    return !isLost(package.reading) || package.findings.counts().of(FindingCode::Unreadable) == 0;
}

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

RecordCounts countRecords(std::vector<QenGrower>& growers) {
    RecordCounts counts;
    counts.growers = growers.size();
    for (QenGrower& grower : growers) {
        counts.farms += grower.farms().size();
        for (QenFarm& farm : grower.farms()) {
            counts.fields += farm.fields().size();
            for (QenField& field : farm.fields()) {
                counts.recs += field.recs().size();
                for (QenRec& rec : field.recs())
                    counts.recsWithoutProduct += rec.recData() == nullptr ? 1 : 0;
            }
        }
    }
    return counts;
}
