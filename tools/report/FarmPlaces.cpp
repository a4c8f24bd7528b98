#include "tools/report/FarmPlaces.h"

#include "tools/records/Centroid.h"
#include "tools/report/Html.h"
#include "tools/text/Escape.h"

void FarmPlaces::add(const FieldContext& context) {
    for (QenFieldGeometry& geometry : context.field.geometries()) {
        if (isPlace(geometry.centroid(), context.missingFrom(geometry)))
            add(context, geometry.centroid());
        else
            ++withoutPlace_;
    }
}

void FarmPlaces::add(const FieldContext& context, const LLA& centroid) {
    const Key key(context.grower.id(), context.farm.id());
    const std::size_t index = indexes_.try_emplace(key, indexes_.size()).first->second;
    if (index >= mostFarms)
        return;
    if (index == farms_.size())
        farms_.push_back({context.grower.name(), context.farm.name(), {}});
    if (seen_.insert({index, context.field.id(), centroid.latitude, centroid.longitude}).second)
        farms_[index].points.push_back({escape(shortName(context.field.name())), centroid});
}
