// Merging while memory runs out.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/robustness/AllocationFailure.h"

namespace {

using test::Attempt;
using test::text;
using test::tryEveryAllocation;

/// A merge. @p others are versions of what is merged that end ever later, from one without
/// children to the whole; after a failure the record is as if one of them had been merged.
///
/// @param differentFailures in how many of these states the record must have been found
template <class Record>
void expectMergesStepByStep(const std::string& operation, std::size_t minimum,
                            const Record& original, const std::vector<Record>& others,
                            std::ptrdiff_t differentFailures) {
    Record whole(others.back());
    const std::string wholeBefore = text(whole);
    std::vector<std::string> states;
    for (const Record& other : others) {
        Record target(original);
        target.merge(other);
        states.push_back(text(target));
    }
    Record unmerged(original);
    ASSERT_EQ(text(unmerged), states.front());
    ASSERT_EQ(states.size(), std::set<std::string>(states.begin(), states.end()).size());

    std::vector<bool> found(states.size());
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        Record target(original);
        attempt.run([&] { target.merge(whole); });
        if (attempt.outOfMemory()) {
            const auto state = std::find(states.begin(), states.end(), text(target));
            ASSERT_TRUE(state != states.end()) << text(target);
            found[static_cast<std::size_t>(state - states.begin())] = true;
            target.merge(whole);
        }
        EXPECT_EQ(states.back(), text(target));
    });
    EXPECT_EQ(wholeBefore, text(whole));
    EXPECT_TRUE(found.front());
    EXPECT_GE(std::count(found.begin(), found.end(), true), differentFailures);
}

std::vector<unsigned> firstOf(const std::vector<unsigned>& numbers, std::size_t count) {
    return {numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(count)};
}

/// Versions of a list that end ever later, from the empty one to the whole.
template <class Child>
std::vector<std::vector<Child>> beginnings(const std::vector<Child>& children) {
    std::vector<std::vector<Child>> result(1);
    for (const Child& child : children) {
        result.push_back(result.back());
        result.back().push_back(child);
    }
    return result;
}

std::vector<QenField> incomingFields() {
    return {test::longField(31, "incoming", {13, 14}, {21, 22}), // held
            test::longField(34, "incoming", {16}, {23}),
            test::longField(30, "incoming", {11, 17}, {24}), // held
            test::longField(35, "incoming", {}, {}),
            test::longField(34, "latest", {16, 18}, {})}; // a second one with this identifier
}

std::vector<QenField> presentFields() {
    return {test::longField(30, "present", {10, 11}, {20}),
            test::longField(31, "present", {13, 19}, {21, 21}),
            test::longField(32, "present", {}, {})};
}

} // namespace

TEST_F(AllocationFailure, AFailedMergeOfFieldsStopsBetweenRecsOrGeometries) {
    const std::vector<unsigned> recs = {12, 20, 21, 22, 23, 24, 13};
    const std::vector<unsigned> geometries = {20, 30, 31, 32, 33};
    std::vector<QenField> others;
    for (std::size_t count = 1; count < recs.size(); ++count) // the first rec is there already
        others.push_back(test::longField(30, "incoming", firstOf(recs, count), {}));
    for (std::size_t count = 2; count <= geometries.size(); ++count)
        others.push_back(test::longField(30, "incoming", recs, firstOf(geometries, count)));
    expectMergesStepByStep("QenField::merge", 80,
                           test::longField(30, "present", {10, 12, 13}, {20}), others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfFarmsStopsBetweenFields) {
    std::vector<QenFarm> others;
    for (const std::vector<QenField>& fields : beginnings(incomingFields()))
        others.push_back(test::longFarm(40, "incoming", fields));
    expectMergesStepByStep("QenFarm::merge", 200, test::longFarm(40, "present", presentFields()),
                           others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfGrowersStopsBetweenFarms) {
    const QenGrower present = test::longGrower(
        50, "present",
        {test::longFarm(40, "present", {presentFields()[0], presentFields()[2]}),
         test::longFarm(41, "present", {}),
         test::longFarm(42, "present", {test::longField(31, "present", {13}, {21})})});
    const std::vector<QenField> fields = beginnings(incomingFields())[2];
    std::vector<QenGrower> others;
    for (const std::vector<QenFarm>& farms : beginnings<QenFarm>(
             {test::longFarm(42, "incoming", fields), test::longFarm(43, "incoming", {fields[1]}),
              test::longFarm(40, "incoming", {incomingFields()[2]}),
              test::longFarm(43, "latest", {test::longField(34, "latest", {18}, {21})})}))
        others.push_back(test::longGrower(50, "incoming", farms));
    expectMergesStepByStep("QenGrower::merge", 200, present, others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfAnotherIdentifierChangesNothing) {
    const QenGrower other = test::longGrower(
        51, "incoming", {test::longFarm(40, "incoming", {incomingFields().front()})});
    const QenGrower original = test::longGrower(50, "present", {});
    QenGrower unchanged(original);
    tryEveryAllocation("QenGrower::merge of another grower", 30, [&](Attempt& attempt) {
        QenGrower target(original);
        attempt.run([&] { target.merge(other); });
        EXPECT_EQ(text(unchanged), text(target));
    });
}
