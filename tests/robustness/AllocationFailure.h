/// @file
/// What every operation of the library does when memory runs out, at each allocation that it makes:
/// std::bad_alloc comes out, nothing is lost, nothing is released twice, and what the operation
/// worked on is as it was or, where it says so, between two whole steps.

#ifndef QENXML_TESTS_ROBUSTNESS_ALLOCATIONFAILURE_H
#define QENXML_TESTS_ROBUSTNESS_ALLOCATIONFAILURE_H

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/robustness/AllocationPoints.h"
#include "tests/robustness/LongRecords.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"

class AllocationFailure : public ::testing::Test {
protected:
    test::WatchedXmlMemory watch_; // before everything that holds a document
    test::TemporaryFolder folder_;
};

namespace test {

inline const RecType allKinds[] = {RecTypeNone, RecTypeCommercialFertilizer,
                                   RecTypeCustomFertilizer, RecTypePlanting, RecTypePesticide};

inline const char* nameOf(RecType kind) {
    constexpr std::array names = {"no product data", "commercial fertilizer", "custom fertilizer",
                                  "planting", "pesticide"};
    return names.at(static_cast<std::size_t>(kind));
}

/// An operation that makes a value and changes nothing else.
template <class Value>
void expectMakes(const std::string& operation, std::size_t minimum, const std::string& expected,
                 const std::function<void(std::optional<Value>&)>& make) {
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        std::optional<Value> value;
        attempt.run([&] { make(value); });
        EXPECT_EQ(!attempt.outOfMemory(), value.has_value());
        if (attempt.outOfMemory())
            make(value);
        EXPECT_EQ(expected, text(*value));
    });
}

/// A getter or look-up that returns a value made of allocated memory.
template <class Record, class Getter>
void expectGets(const std::string& operation, std::size_t minimum, Record& record, Getter getter) {
    using Value = std::decay_t<decltype(std::invoke(getter, record))>;
    const std::string before = text(record);
    Value expected = std::invoke(getter, record);
    expectMakes<Value>(operation, minimum, text(expected), [&](std::optional<Value>& value) {
        value.emplace(std::invoke(getter, record));
    });
    EXPECT_EQ(before, text(record));
}

/// The copy constructor.
template <class Record>
void expectCopies(const std::string& record, std::size_t minimum, Record& original) {
    const std::string before = text(original);
    expectMakes<Record>(record + " copied", minimum, before, [&](std::optional<Record>& copy) {
        copy.emplace(std::as_const(original));
    });
    EXPECT_EQ(before, text(original));
}

/// An operation that changes nothing when memory runs out.
template <class Record>
void expectAllOrNothing(const std::string& operation, std::size_t minimum, const Record& original,
                        const std::function<void(Record&)>& change) {
    Record record(original);
    const std::string before = text(record);
    change(record);
    const std::string after = text(record);
    ASSERT_NE(before, after);
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        Record target(original);
        attempt.run([&] { change(target); });
        EXPECT_EQ(attempt.outOfMemory() ? before : after, text(target));
        if (attempt.outOfMemory()) {
            change(target);
            EXPECT_EQ(after, text(target));
        }
    });
}

/// Product data of a certain class.
template <class Data>
Data dataOf(RecType kind, const std::string& version) {
    return static_cast<Data&>(*longData(kind, 1, version));
}

/// A field with recs of all kinds, one of them twice.
inline QenField manyRecs(const std::string& version, unsigned first) {
    return longField(30, version, {first, first + 1, first + 2, first + 3, first + 4, first + 5},
                     {first, first + 1});
}

} // namespace test

#endif
