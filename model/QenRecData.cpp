#include "model/QenRecData.h"

QenRecData::QenRecData() : QenRecData(boost::uuids::uuid{}, RecTypeNone) {}

QenRecData::QenRecData(boost::uuids::uuid recId, RecType recType)
    : recId_(recId), recType_(recType) {}

QenRecData::~QenRecData() = default;

bool QenRecData::operator==(const QenRecData& other) const {
    return recId_ == other.recId_;
}

boost::uuids::uuid QenRecData::recId() {
    return recId_;
}

RecType QenRecData::recType() {
    return recType_;
}
