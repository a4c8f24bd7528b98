/// @file
/// Merging records whose lists hold several children with one identifier. A host that changes the
/// lists itself can make such lists; adding children never does, geometries apart.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/QenGrower.h"
#include "tests/support/Uuids.h"

namespace {

using Texts = std::vector<std::string>;

QenRec rec(unsigned id, const std::string& name) {
    QenRec result;
    result.setId(test::uuid(id));
    result.setName(name);
    return result;
}

QenField field(unsigned id, const std::string& name, const std::vector<QenRec>& recs) {
    QenField result(name, test::uuid(id), {}, {});
    result.recs() = recs;
    return result;
}

QenFarm farm(unsigned id, const std::string& name, const std::vector<QenField>& fields) {
    QenFarm result(name, test::uuid(id), {});
    result.fields() = fields;
    return result;
}

/// The names of a field with those of its recs, of a farm with its fields: "farm(field(rec ))".
std::string namesOf(QenRec& record) {
    return record.name();
}

std::string namesOf(QenField& record);
std::string namesOf(QenFarm& record);

template <class Children>
std::string namesOf(const std::string& name, Children& children) {
    std::string result = name + "(";
    for (auto& child : children)
        result += namesOf(child) + " ";
    return result + ")";
}

std::string namesOf(QenField& record) {
    return namesOf(record.name(), record.recs());
}

std::string namesOf(QenFarm& record) {
    return namesOf(record.name(), record.fields());
}

std::string namesOf(QenGrower& record) {
    return namesOf(record.name(), record.farms());
}

/// A grower whose farms 1, 2, 1 have the fields 11, none, 12 and 13.
QenGrower growerWithAFarmTwice() {
    QenGrower result("grower", test::uuid(1));
    result.farms() = {farm(1, "first", {field(11, "a", {})}), farm(2, "other", {}),
                      farm(1, "second", {field(12, "b", {}), field(13, "c", {})})};
    return result;
}

} // namespace

TEST(MergeOfDuplicates, OfAGrowerWithItselfPutsTheLastFarmWithThoseBeforeItIntoTheFirstPlace) {
    QenGrower grower = growerWithAFarmTwice();
    grower.merge(grower);
    EXPECT_EQ(namesOf(grower), "grower(second(b() c() a() ) other() second(b() c() ) )");
}

TEST(MergeOfDuplicates, OfAGrowerWithAnotherLeavesAllButItsFirstFarmAlone) {
    QenGrower grower = growerWithAFarmTwice();
    QenGrower other("other grower", test::uuid(1));
    other.farms() = {farm(1, "incoming", {field(14, "d", {})})};
    grower.merge(other);
    EXPECT_EQ(namesOf(grower), "grower(incoming(d() a() ) other() second(b() c() ) )");
}

TEST(MergeOfDuplicates, OfAFarmWithItselfPutsTheLastFieldWithThoseBeforeItIntoTheFirstPlace) {
    QenFarm here = farm(1, "farm",
                        {field(11, "first", {rec(21, "a"), rec(22, "b")}), field(12, "other", {}),
                         field(11, "second", {rec(22, "c"), rec(23, "d")})});
    here.merge(here);
    EXPECT_EQ(namesOf(here), "farm(second(c d a ) other() second(c d ) )");
}

TEST(MergeOfDuplicates, InAFarmThatTwoGrowersHoldMakesOneOfTheFieldsHereAlone) {
    QenGrower here("here", test::uuid(1));
    here.farms() = {
        farm(1, "a", {field(11, "first", {rec(21, "a")}), field(11, "second", {rec(22, "b")})})};
    QenGrower there("there", test::uuid(1));
    there.farms() = {farm(1, "b", {})};
    QenGrower hereWithThere = here;
    hereWithThere.merge(there);
    EXPECT_EQ(namesOf(hereWithThere), "here(b(second(b a ) ) )");
    there.merge(here);
    EXPECT_EQ(namesOf(there), "there(a(first(a ) second(b ) ) )");
}

TEST(MergeOfDuplicates, OfAFieldWithItselfLeavesItsRecsAndGeometriesAlone) {
    QenField here = field(11, "field", {rec(21, "first"), rec(21, "second")});
    here.addFieldGeometry(QenFieldGeometry(test::uuid(31), "first", {}, LLA{}));
    here.addFieldGeometry(QenFieldGeometry(test::uuid(31), "second", {}, LLA{}));
    here.merge(here);
    EXPECT_EQ(namesOf(here), "field(first second )");
    Texts dates;
    for (QenFieldGeometry& geometry : here.geometries())
        dates.push_back(geometry.geometryDate());
    EXPECT_EQ(dates, (Texts{"first", "second"}));
}
