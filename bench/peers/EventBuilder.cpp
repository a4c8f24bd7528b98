#include "bench/peers/EventBuilder.h"

#include <string_view>

#include "bench/PlainElements.h"

namespace plain {

void EventBuilder::open(const char* name) {
    const Level level = opened(name);
    levels_.push_back(level);
    text_.clear();
    if (level != Level::Value)
        next_ = 0;
}

void EventBuilder::close(const char* name) {
    const Level closed = levels_.back();
    levels_.pop_back();
    if (closed == Level::Value)
        value(name);
}

EventBuilder::Level EventBuilder::opened(const char* name) {
    const std::string_view element = name;
    switch (levels_.back()) {
    case Level::Document:
        return Level::Package;
    case Level::Package:
        growers_.emplace_back();
        return Level::Grower;
    case Level::Grower:
        if (element != tag::Farm)
            return Level::Value;
        newFarm(grower());
        return Level::Farm;
    case Level::Farm:
        if (element != tag::Field)
            return Level::Value;
        newField(farm());
        return Level::Field;
    case Level::Field:
        if (element == tag::FieldCentroid)
            return Level::Centroid;
        return element == tag::Recommendations ? Level::Recommendations : Level::Value;
    case Level::Recommendations:
        newRec(field(), package_);
        return Level::Rec;
    case Level::Rec:
        return openedInRec(name);
    case Level::Data:
        return openedInData(name);
    default:
        return Level::Value;
    }
}

EventBuilder::Level EventBuilder::openedInRec(const char* name) const {
    const std::string_view element = name;
    if (element == tag::Operation)
        return Level::Operation;
    if (element == tag::Season)
        return Level::Season;
    if (element == tag::RecData)
        return Level::Data;
    return element == tag::RecStats ? Level::Statistics : Level::Value;
}

EventBuilder::Level EventBuilder::openedInData(const char* name) {
    const std::string_view element = name;
    if (element == tag::CommercialFertilizer) {
        newProduct<CommercialFertilizer>(rec());
        return Level::CommercialFertilizer;
    }
    if (element == tag::CustomFertilizer) {
        newProduct<CustomFertilizer>(rec());
        return Level::CustomFertilizer;
    }
    newProduct<Planting>(rec());
    return Level::Planting;
}

void EventBuilder::attribute(const char* name, const char* value) {
    std::size_t next = 0;
    switch (levels_.back()) {
    case Level::Grower:
        return readMember(growerAttributes, next, grower(), name, value);
    case Level::Farm:
        return readMember(farmAttributes, next, farm(), name, value);
    case Level::Field:
        return readMember(fieldAttributes, next, field(), name, value);
    case Level::Rec:
        return readMember(recAttributes, next, rec(), name, value);
    case Level::Operation:
        return readMember(operationAttributes, next, rec(), name, value);
    case Level::Season:
        return readMember(seasonAttributes, next, rec(), name, value);
    default:
        return;
    }
}

void EventBuilder::value(const char* name) {
    const char* const text = text_.c_str();
    switch (levels_.back()) {
    case Level::Grower:
        return readMember(growerChildren, next_, grower(), name, text);
    case Level::Farm:
        return readMember(farmChildren, next_, farm(), name, text);
    case Level::Field:
        return readMember(fieldChildren, next_, field(), name, text);
    case Level::Centroid:
        return readMember(centroidChildren, next_, field(), name, text);
    case Level::Rec:
        return readMember(recChildren, next_, rec(), name, text);
    case Level::Operation:
        return readMember(operationChildren, next_, rec(), name, text);
    case Level::Season:
        return readMember(seasonChildren, next_, rec(), name, text);
    case Level::Statistics:
        return readMember(statisticsChildren, next_, rec(), name, text);
    case Level::CommercialFertilizer:
        return readMember(commercialFertilizerChildren, next_, product<CommercialFertilizer>(),
                          name, text);
    case Level::CustomFertilizer:
        return readMember(customFertilizerChildren, next_, product<CustomFertilizer>(), name, text);
    case Level::Planting:
        return readMember(plantingChildren, next_, product<Planting>(), name, text);
    default:
        return;
    }
}

} // namespace plain
