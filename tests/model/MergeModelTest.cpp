/// @file
/// Merging of random trees, compared with the plain model. Identifiers come from a small pool, so
/// that the trees overlap and that siblings share an identifier.

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <variant>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "tests/support/Describe.h"
#include "tests/support/MergeModel.h"
#include "tests/support/Uuids.h"

namespace plain {

/// How RapidCheck shows the values of a counterexample.
template <class Record>
auto operator<<(std::ostream& out, const Record& record)
    -> decltype(out << test::describe(toLibrary(record))) {
    return out << test::describe(toLibrary(record));
}

} // namespace plain

namespace {

using boost::uuids::uuid;
using plain::fromLibrary;
using test::describe;

/// Checks a property on so many random cases. RC_PARAMS asks for more, or sets the seed.
template <class Testable>
void check(int cases, const Testable& testable) {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    rc::detail::TestMetadata metadata;
    metadata.id = std::string(test.test_suite_name()) + "/" + test.name();
    metadata.description = test.name();
    rc::detail::TestParams params = rc::detail::configuration().testParams;
    params.maxSuccess = std::max(params.maxSuccess, cases);

    const rc::detail::TestResult result = rc::detail::checkTestable(testable, metadata, params);
    if (!result.is<rc::detail::SuccessResult>()) {
        std::ostringstream message;
        rc::detail::printResultMessage(result, message);
        FAIL() << message.str();
    }
}

rc::Gen<uuid> anId() {
    return rc::gen::map(rc::gen::element(1U, 2U, 3U, 4U),
                        [](unsigned number) { return test::uuid(number); });
}

rc::Gen<plain::Rec> aRec() {
    return rc::gen::build<plain::Rec>(
        rc::gen::set(&plain::Rec::id, anId()),
        rc::gen::set(&plain::Rec::product,
                     rc::gen::element(plain::Product(), plain::Product(plain::Planting()))));
}

rc::Gen<plain::Geometry> aGeometry() {
    return rc::gen::build<plain::Geometry>(rc::gen::set(&plain::Geometry::id, anId()));
}

template <class Element>
rc::Gen<std::vector<Element>> aFew(rc::Gen<Element> element) {
    return rc::gen::resize(4, rc::gen::container<std::vector<Element>>(std::move(element)));
}

rc::Gen<plain::Field> aField() {
    return rc::gen::build<plain::Field>(rc::gen::set(&plain::Field::id, anId()),
                                        rc::gen::set(&plain::Field::geometries, aFew(aGeometry())),
                                        rc::gen::set(&plain::Field::recs, aFew(aRec())));
}

rc::Gen<plain::Farm> aFarm() {
    return rc::gen::build<plain::Farm>(rc::gen::set(&plain::Farm::id, anId()),
                                       rc::gen::set(&plain::Farm::fields, aFew(aField())));
}

rc::Gen<plain::Grower> aGrower() {
    return rc::gen::build<plain::Grower>(rc::gen::set(&plain::Grower::id, anId()),
                                         rc::gen::set(&plain::Grower::farms, aFew(aFarm())));
}

/// Gives every record of a tree values of its own, so that it can be recognised in a merged tree.
class Labeller {
public:
    Labeller(std::string side, unsigned firstNumber)
        : side_(std::move(side)), number_(firstNumber) {}

    void operator()(plain::Rec& rec) {
        rec.name = label();
        rec.editDate = label();
        rec.averageRate = number_;
        if (auto* const planting = std::get_if<plain::Planting>(&rec.product))
            planting->cropId = static_cast<int>(number_);
    }

    void operator()(plain::Geometry& geometry) {
        geometry.date = label();
        geometry.file = test::uuid(number_);
        geometry.latitude = number_;
    }

    void operator()(plain::Field& field) {
        field.name = label();
        field.growerId = test::uuid(number_);
        field.farmId = test::uuid(++number_);
        all(field.geometries);
        all(field.recs);
    }

    void operator()(plain::Farm& farm) {
        farm.name = label();
        farm.growerId = test::uuid(number_);
        all(farm.fields);
    }

    void operator()(plain::Grower& grower) {
        grower.name = label();
        all(grower.farms);
    }

private:
    std::string label() { return side_ + std::to_string(++number_); }

    template <class Elements>
    void all(Elements& elements) {
        for (auto& element : elements)
            (*this)(element);
    }

    std::string side_;
    unsigned number_;
};

template <class Record>
struct Pair {
    Record present;
    Record incoming;
};

/// Two labelled versions of one record.
template <class Record>
Pair<Record> twoVersions(const rc::Gen<Record>& generator) {
    Pair<Record> result{*generator, *generator};
    result.incoming.id = result.present.id;
    Labeller("present ", 1000)(result.present);
    Labeller("incoming ", 2000)(result.incoming);
    return result;
}

/// Drops every element that has the identifier of an earlier one.
template <class Element>
void dropDuplicates(std::vector<Element>& elements) {
    std::set<uuid> ids;
    std::vector<Element> kept;
    for (const Element& element : elements) {
        if (ids.insert(element.id).second)
            kept.push_back(element);
    }
    elements = kept;
}

plain::Field withoutDuplicates(plain::Field field) {
    dropDuplicates(field.geometries);
    dropDuplicates(field.recs);
    return field;
}

plain::Farm withoutDuplicates(plain::Farm farm) {
    dropDuplicates(farm.fields);
    for (plain::Field& field : farm.fields)
        field = withoutDuplicates(field);
    return farm;
}

plain::Grower withoutDuplicates(plain::Grower grower) {
    dropDuplicates(grower.farms);
    for (plain::Farm& farm : grower.farms)
        farm = withoutDuplicates(farm);
    return grower;
}

/// Compares with the model, and looks whether the argument stays what it was.
template <class Record>
void mergesAsTheModelSays(const rc::Gen<Record>& generator) {
    const Pair<Record> pair = twoVersions(generator);
    const Record expected = merged(pair.present, pair.incoming);

    auto record = toLibrary(pair.present);
    const auto other = toLibrary(pair.incoming);
    record.merge(other);

    RC_ASSERT(fromLibrary(record) == expected);
    RC_ASSERT(describe(record) == describe(toLibrary(expected)));
    RC_ASSERT(describe(other) == describe(toLibrary(pair.incoming)));
}

template <class Record>
void doesNotMergeAnotherId(const rc::Gen<Record>& generator) {
    const Pair<Record> pair = twoVersions(generator);
    Record incoming = pair.incoming;
    incoming.id = test::uuid(99);
    RC_ASSERT(merged(pair.present, incoming) == pair.present);

    auto record = toLibrary(pair.present);
    record.merge(toLibrary(incoming));
    RC_ASSERT(fromLibrary(record) == pair.present);
}

template <class Record>
void mergedWithItselfDoesNotChange(const rc::Gen<Record>& generator) {
    const Record tree = withoutDuplicates(twoVersions(generator).present);
    auto record = toLibrary(tree);
    record.merge(record);
    RC_ASSERT(describe(record) == describe(toLibrary(tree)));
}

template <class Record>
void mergingOnceMoreChangesNothing(const rc::Gen<Record>& generator) {
    const Pair<Record> pair = twoVersions(generator);
    auto record = toLibrary(withoutDuplicates(pair.present));
    const auto other = toLibrary(withoutDuplicates(pair.incoming));
    record.merge(other);
    const std::string once = describe(record);
    record.merge(other);
    RC_ASSERT(describe(record) == once);
}

} // namespace

TEST(MergeModel, TreesSurviveTheConversionToTheLibraryAndBack) {
    check(500, [] {
        const plain::Grower tree = twoVersions(aGrower()).present;
        RC_ASSERT(fromLibrary(toLibrary(tree)) == tree);
    });
}

TEST(MergeModel, GrowersMergeAsTheModelSays) {
    check(2000, [] { mergesAsTheModelSays(aGrower()); });
}

TEST(MergeModel, FarmsMergeAsTheModelSays) {
    check(2000, [] { mergesAsTheModelSays(aFarm()); });
}

TEST(MergeModel, FieldsMergeAsTheModelSays) {
    check(2000, [] { mergesAsTheModelSays(aField()); });
}

TEST(MergeModel, GrowersOfDifferentIdsDoNotMerge) {
    check(500, [] { doesNotMergeAnotherId(aGrower()); });
}

TEST(MergeModel, FarmsOfDifferentIdsDoNotMerge) {
    check(500, [] { doesNotMergeAnotherId(aFarm()); });
}

TEST(MergeModel, FieldsOfDifferentIdsDoNotMerge) {
    check(500, [] { doesNotMergeAnotherId(aField()); });
}

TEST(MergeModel, WithoutDuplicatesAGrowerMergedWithItselfDoesNotChange) {
    check(500, [] { mergedWithItselfDoesNotChange(aGrower()); });
}

TEST(MergeModel, WithoutDuplicatesAFarmMergedWithItselfDoesNotChange) {
    check(500, [] { mergedWithItselfDoesNotChange(aFarm()); });
}

TEST(MergeModel, AFieldMergedWithItselfDoesNotChangeEvenWithDuplicates) {
    check(500, [] {
        const plain::Field tree = twoVersions(aField()).present;
        QenField field = toLibrary(tree);
        field.merge(field);
        RC_ASSERT(fromLibrary(field) == tree);
    });
}

TEST(MergeModel, WithoutDuplicatesMergingAGrowerOnceMoreChangesNothing) {
    check(500, [] { mergingOnceMoreChangesNothing(aGrower()); });
}

TEST(MergeModel, WithoutDuplicatesMergingAFarmOnceMoreChangesNothing) {
    check(500, [] { mergingOnceMoreChangesNothing(aFarm()); });
}

TEST(MergeModel, MergingAnEmptyVersionChangesNothingEvenWithDuplicates) {
    check(500, [] {
        const plain::Grower tree = twoVersions(aGrower()).present;
        QenGrower grower = toLibrary(tree);
        grower.merge(QenGrower("empty", tree.id));
        RC_ASSERT(fromLibrary(grower) == tree);
    });
}

TEST(MergeModel, AnEmptyGrowerTakesOverAllFarmsOfATreeWithoutDuplicates) {
    check(500, [] {
        plain::Grower tree = withoutDuplicates(twoVersions(aGrower()).present);
        QenGrower grower("empty", tree.id);
        grower.merge(toLibrary(tree));
        tree.name = "empty";
        RC_ASSERT(fromLibrary(grower) == tree);
    });
}

TEST(MergeModel, InAGrowerTheIncomingFarmIsMergedWithThePresentOne) {
    check(500, [] {
        const Pair<plain::Farm> pair = twoVersions(aFarm());
        QenGrower grower("grower", test::uuid(1));
        grower.addFarm(toLibrary(pair.present));
        QenGrower other("other", test::uuid(1));
        other.addFarm(toLibrary(pair.incoming));
        grower.merge(other);

        QenFarm expected = toLibrary(pair.incoming);
        expected.merge(toLibrary(pair.present));
        RC_ASSERT(describe(grower.farms().at(0)) == describe(expected));
    });
}

TEST(MergeModel, InAFarmTheIncomingFieldIsMergedWithThePresentOne) {
    check(500, [] {
        const Pair<plain::Field> pair = twoVersions(aField());
        QenFarm farm("farm", test::uuid(1), test::uuid(2));
        farm.addField(toLibrary(pair.present));
        QenFarm other("other", test::uuid(1), test::uuid(2));
        other.addField(toLibrary(pair.incoming));
        farm.merge(other);

        QenField expected = toLibrary(pair.incoming);
        expected.merge(toLibrary(pair.present));
        RC_ASSERT(describe(farm.fields().at(0)) == describe(expected));
    });
}
