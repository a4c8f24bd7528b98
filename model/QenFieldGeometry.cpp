#include "model/QenFieldGeometry.h"

QenFieldGeometry::QenFieldGeometry(const boost::uuids::uuid& geometryId,
                                   const std::string& geometryDate,
                                   const boost::uuids::uuid& geometry, const LLA& centroid)
    : geometryId_(geometryId),
      geometryDate_(geometryDate),
      geometry_(geometry),
      centroid_(centroid) {}

boost::uuids::uuid QenFieldGeometry::geometryId() {
    return geometryId_;
}

std::string QenFieldGeometry::geometryDate() {
    return geometryDate_;
}

boost::uuids::uuid QenFieldGeometry::geometry() {
    return geometry_;
}

LLA QenFieldGeometry::centroid() {
    return centroid_;
}

bool QenFieldGeometry::operator==(const QenFieldGeometry& other) const {
    return geometryId_ == other.geometryId_;
}
