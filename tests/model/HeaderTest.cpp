// A host that walks recs includes one header. This file includes no other of the library.

#include "model/QenRec.h"

#include <gtest/gtest.h>

namespace {

TEST(QenRecHeader, IsEnoughToGiveARecProductDataAndToReadItsKind) {
    QenRec rec;
    rec.setRecData(new QenRecData(boost::uuids::uuid{{1}}, RecTypeNone));
    EXPECT_EQ(rec.recData()->recType(), RecTypeNone);
    delete rec.recData();
    rec.setRecData(nullptr);
}

} // namespace
