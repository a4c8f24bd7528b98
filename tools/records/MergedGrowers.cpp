#include "tools/records/MergedGrowers.h"

#include <utility>

void MergedGrowers::add(std::vector<QenGrower> growers) {
    for (QenGrower& grower : growers) {
        const auto [place, isNew] = places_.try_emplace(grower.id(), growers_.size());
        if (isNew)
            growers_.push_back(std::move(grower));
        else
            growers_[place->second].merge(std::move(grower));
    }
}
