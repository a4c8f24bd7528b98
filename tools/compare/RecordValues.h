/// @file
/// What of two records is compared, and how a value of one is written.

#ifndef QENXML_TOOLS_COMPARE_RECORDVALUES_H
#define QENXML_TOOLS_COMPARE_RECORDVALUES_H

#include <cstdint>
#include <string>
#include <vector>

#include "tools/compare/RecordList.h"

/// A value of a record.
struct RecordValue {
    const char* name;  ///< As the format json of `qenxml export` calls it.
    OutputValue value; ///< None where the package does not give it, or the record has no such.
    std::string unit;  ///< Of a number, as the package gives it; may be empty.
};

/// All values of a record that are compared, in a fixed order. What says where it stands comes
/// first: the identifier of the record around it. The record's own identifier is none of them, nor
/// is the package that it comes from.
std::vector<RecordValue> comparedValues(const RecordView& record);

/// A hash of those values: what has another hash differs.
std::uint64_t contentHash(const RecordView& record);

/// A value that is not the same in two records.
struct ValueChange {
    RecordValue from;
    RecordValue to;
};

/// What differs between two records of a kind, in the order of comparedValues(). A unit is a value
/// of its own.
std::vector<ValueChange> changesBetween(const RecordView& from, const RecordView& to);

/// "32400 seeds/ac", "\"Corn\"" or "none", safe to print.
std::string valueText(const RecordValue& value);

#endif
