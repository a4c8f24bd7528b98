#include "tools/records/MergedFarm.h"

#include <utility>

MergedFarm::MergedFarm(QenFarm farm) {
    add(std::move(farm));
}

void MergedFarm::add(QenFarm version) {
    Fields newest;
    for (QenField& field : version.fields()) {
        const auto [place, isNew] = places_.try_emplace(field.id());
        if (isNew) {
            place->second = newest.insert(newest.end(), std::move(field));
        } else {
            place->second->merge(std::move(field));
            newest.splice(newest.end(), fields_, place->second);
        }
    }
    fields_.splice(fields_.begin(), newest);
    farm_ = QenFarm(version.name(), version.id(), version.growerId());
}

QenFarm MergedFarm::take() {
    for (QenField& field : fields_)
        farm_.fields().push_back(std::move(field));
    fields_.clear();
    places_.clear();
    return std::exchange(farm_, {});
}
