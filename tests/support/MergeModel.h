/// @file
/// A model of merging that is independent of the library's: it puts together, list by list, what a
/// merged tree consists of, instead of adding child after child.

#ifndef QENXML_TESTS_SUPPORT_MERGEMODEL_H
#define QENXML_TESTS_SUPPORT_MERGEMODEL_H

#include "tests/support/PlainTree.h"

namespace plain {

/// What @p record is after `record.merge(other)`.
Field merged(const Field& record, const Field& other);
Farm merged(const Farm& record, const Farm& other);
Grower merged(const Grower& record, const Grower& other);

} // namespace plain

#endif
