#include "tools/records/MergedGrowers.h"

#include <utility>

void MergedGrowers::add(std::vector<QenGrower> growers) {
    for (QenGrower& grower : growers) {
        const auto [index, isNew] = indices_.try_emplace(grower.id(), growers_.size());
        if (isNew)
            growers_.push_back(std::move(grower));
        else
            growers_[index->second].merge(std::move(grower));
    }
}
