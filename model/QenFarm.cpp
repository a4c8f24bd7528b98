#include "model/QenFarm.h"

#include <utility>

#include "model/internal/ChildList.h"

QenFarm::QenFarm() = default;

QenFarm::QenFarm(const std::string& name, const boost::uuids::uuid& id,
                 const boost::uuids::uuid& growerId)
    : name_(name), id_(id), growerId_(growerId) {}

std::string QenFarm::name() const {
    return name_;
}

void QenFarm::setName(std::string name) {
    name_ = std::move(name);
}

boost::uuids::uuid QenFarm::id() {
    return id_;
}

boost::uuids::uuid QenFarm::growerId() const {
    return growerId_;
}

std::vector<QenField>& QenFarm::fields() {
    return fields_;
}

bool QenFarm::operator==(const QenFarm& other) const {
    return id_ == other.id_;
}

bool QenFarm::operator!=(const QenFarm& other) const {
    return !(*this == other);
}

void QenFarm::addField(QenField field) {
    qenxml::replaceOrAppend(fields_, field);
}

void QenFarm::merge(QenFarm other) {
    // A field absorbs a copy, so that the present one is whole should memory run out on the way.
    const auto absorbCopy = [](QenField& field, const QenField& present) { field.merge(present); };
    if (*this == other)
        qenxml::mergeChildren(fields_, other.fields_, absorbCopy);
}
