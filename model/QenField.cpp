#include "model/QenField.h"

#include <algorithm>
#include <utility>

#include <boost/uuid/uuid_io.hpp>

QenField::QenField() = default;

QenField::QenField(const std::string& name, const boost::uuids::uuid& id,
                   const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId)
    : id_(id), growerId_(growerId), farmId_(farmId), name_(name) {}

QenField::QenField(const std::string& name, const boost::uuids::uuid& id,
                   const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
                   const std::string& geometryDate, const boost::uuids::uuid& geometryId,
                   const boost::uuids::uuid& geometry, LLA& centroid)
    : QenField(name, id, growerId, farmId) {
    geometries_.emplace_back(geometryId, geometryDate, geometry, centroid);
}

QenField::QenField(const QenField& other) = default;
QenField::QenField(QenField&& other) noexcept = default;
QenField& QenField::operator=(QenField&& other) noexcept = default;
QenField::~QenField() = default;

QenField& QenField::operator=(const QenField& other) {
    // Not member by member: the list would assign rec to rec, which leaves the earlier product data
    // without an owner.
    if (this != &other)
        *this = QenField(other);
    return *this;
}

std::string QenField::name() const {
    return name_;
}

void QenField::setName(std::string name) {
    name_ = std::move(name);
}

boost::uuids::uuid QenField::id() const {
    return id_;
}

boost::uuids::uuid QenField::growerId() const {
    return growerId_;
}

boost::uuids::uuid QenField::farmId() const {
    return farmId_;
}

const QenFieldGeometry* QenField::lastGeometry(const boost::uuids::uuid& geometryId) const {
    const auto found = std::find_if(
        geometries_.rbegin(), geometries_.rend(),
        [&](const QenFieldGeometry& geometry) { return geometry.geometryId_ == geometryId; });
    return found == geometries_.rend() ? nullptr : &*found;
}

std::string QenField::geometryDate(const boost::uuids::uuid& geometryId) const {
    const QenFieldGeometry* geometry = lastGeometry(geometryId);
    return geometry != nullptr ? geometry->geometryDate_ : std::string();
}

std::string QenField::geometryFileName(const boost::uuids::uuid& geometryId) const {
    const QenFieldGeometry* geometry = lastGeometry(geometryId);
    return geometry != nullptr ? to_string(geometry->geometry_) : std::string();
}

boost::uuids::uuid QenField::geometryFileId(const boost::uuids::uuid& geometryId) const {
    const QenFieldGeometry* geometry = lastGeometry(geometryId);
    return geometry != nullptr ? geometry->geometry_ : boost::uuids::uuid{};
}

LLA QenField::centroid(const boost::uuids::uuid& geometryId) const {
    const QenFieldGeometry* geometry = lastGeometry(geometryId);
    return geometry != nullptr ? geometry->centroid_ : LLA{};
}

std::vector<QenFieldGeometry> QenField::geometries() const {
    return geometries_;
}

std::vector<QenRec>& QenField::recs() {
    return recs_;
}

QenRec QenField::rec(boost::uuids::uuid recId) const {
    const auto found = std::find_if(recs_.begin(), recs_.end(), [&](const QenRec& rec) {
        return rec.recData_.get() != nullptr && rec.recData_.get()->recId() == recId;
    });
    return found != recs_.end() ? *found : QenRec();
}

bool QenField::operator==(const QenField& other) const {
    return id_ == other.id_;
}

bool QenField::operator!=(const QenField& other) const {
    return !(*this == other);
}

void QenField::addFieldGeometry(const QenFieldGeometry& geometry) {
    geometries_.push_back(geometry);
}

void QenField::addRec(QenRec rec) {
    const auto present = std::find(recs_.begin(), recs_.end(), rec);
    if (present != recs_.end())
        present->take(rec);
    else
        QenRec::appendEmpty(recs_).take(rec);
}

void QenField::merge(QenField other) {
    if (*this != other)
        return;
    for (QenRec& rec : other.recs_) {
        if (std::find(recs_.begin(), recs_.end(), rec) == recs_.end())
            QenRec::appendEmpty(recs_).take(rec);
    }
    for (QenFieldGeometry& geometry : other.geometries_) {
        if (std::find(geometries_.begin(), geometries_.end(), geometry) == geometries_.end())
            geometries_.push_back(std::move(geometry));
    }
}
