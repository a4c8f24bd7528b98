#include "tools/records/MergedGrowers.h"

#include <utility>

void MergedGrowers::add(std::vector<QenGrower> growers, std::vector<GrowerGaps> gaps) {
    gaps.resize(growers.size());
    for (std::size_t i = 0; i < growers.size(); ++i) {
        const auto [index, isNew] = indices_.try_emplace(growers[i].id(), growers_.size());
        if (isNew) {
            growers_.push_back(std::move(growers[i]));
            gaps_.push_back(std::move(gaps[i]));
        } else {
            growers_[index->second].merge(std::move(growers[i]));
            gaps_[index->second].merge(std::move(gaps[i]));
        }
    }
}
