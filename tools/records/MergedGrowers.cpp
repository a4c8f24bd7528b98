#include "tools/records/MergedGrowers.h"

#include <utility>

void MergedGrowers::add(std::vector<QenGrower> growers, std::vector<GrowerGaps> gaps) {
    gaps.resize(growers.size());
    for (std::size_t i = 0; i < growers.size(); ++i) {
        const auto [index, isNew] = indices_.try_emplace(growers[i].id(), growers_.size());
        if (isNew) {
            growers_.emplace_back(growers[i].name(), growers[i].id());
            farms_.emplace_back();
            gaps_.push_back(std::move(gaps[i]));
        } else {
            gaps_[index->second].merge(std::move(gaps[i]));
        }
        addFarms(farms_[index->second], growers[i]);
    }
}

std::vector<QenGrower>& MergedGrowers::growers() {
    for (std::size_t i = 0; i < farms_.size(); ++i) {
        for (MergedFarm& farm : farms_[i].farms)
            growers_[i].farms().push_back(farm.take());
    }
    farms_.clear();
    return growers_;
}

void MergedGrowers::addFarms(Farms& farms, QenGrower& grower) {
    for (QenFarm& farm : grower.farms()) {
        const auto [index, isNew] = farms.indices.try_emplace(farm.id(), farms.farms.size());
        if (isNew)
            farms.farms.emplace_back(std::move(farm));
        else
            farms.farms[index->second].add(std::move(farm));
    }
}
