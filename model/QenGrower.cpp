#include "model/QenGrower.h"

#include <utility>

#include "model/internal/ChildList.h"

QenGrower::QenGrower() = default;

QenGrower::QenGrower(const std::string& name, const boost::uuids::uuid& id)
    : name_(name), id_(id) {}

std::string QenGrower::name() const {
    return name_;
}

void QenGrower::setName(std::string name) {
    name_ = std::move(name);
}

boost::uuids::uuid QenGrower::id() const {
    return id_;
}

std::vector<QenFarm>& QenGrower::farms() {
    return farms_;
}

bool QenGrower::operator==(const QenGrower& other) const {
    return id_ == other.id_;
}

bool QenGrower::operator!=(const QenGrower& other) const {
    return !(*this == other);
}

void QenGrower::addFarm(QenFarm farm) {
    qenxml::replaceOrAppend(farms_, farm);
}

void QenGrower::merge(QenGrower other) {
    if (*this != other)
        return;
    // As QenFarm::merge(), but the fields of the incoming farm are this operation's own: what is
    // in the copy of the present farm absorbs them, and need not copy them once more.
    const auto absorbField = [](QenField& field, QenField& own) { field.merge(std::move(own)); };
    const auto absorbFarm = [&](QenFarm& farm, QenFarm present) {
        qenxml::mergeChildren(farm.fields(), present.fields(), absorbField);
    };
    qenxml::mergeChildren(farms_, other.farms_, absorbFarm);
}
