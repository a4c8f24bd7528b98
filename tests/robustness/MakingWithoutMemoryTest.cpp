// Constructing, copying and assigning records while memory runs out.

#include <algorithm>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/robustness/AllocationFailure.h"
#include "tests/support/Describe.h"

namespace {

using test::allKinds;
using test::Attempt;
using test::dataOf;
using test::expectAllOrNothing;
using test::expectCopies;
using test::expectMakes;
using test::longText;
using test::manyRecs;
using test::nameOf;
using test::text;
using test::tryEveryAllocation;
using test::uuid;

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> result;
    for (std::string word; in >> word;)
        result.push_back(word);
    return result;
}

// The parts of a record that an assignment may replace one by one.

template <class Record>
std::vector<std::string> parts(Record& record) {
    return words(text(record));
}

std::vector<std::string> parts(QenFarm& farm) {
    QenFarm childless(farm.name(), farm.id(), farm.growerId());
    std::vector<std::string> result = {text(childless)};
    for (QenField& field : farm.fields())
        result.push_back(text(field)); // as a whole: fields are assigned entirely or not at all
    return result;
}

std::vector<std::string> parts(QenGrower& grower) {
    QenGrower childless(grower.name(), grower.id());
    std::vector<std::string> result = {text(childless)};
    for (QenFarm& farm : grower.farms()) {
        for (std::string& part : parts(farm))
            result.push_back(std::move(part));
    }
    return result;
}

/// Each part is the earlier or the later one, in its place unless the number of parts changes.
void expectOldOrNew(const std::vector<std::string>& before, const std::vector<std::string>& after,
                    const std::vector<std::string>& now) {
    if (before.size() == after.size() && before.size() == now.size()) {
        for (std::size_t i = 0; i < now.size(); ++i)
            EXPECT_TRUE(now[i] == before[i] || now[i] == after[i]) << now[i];
        return;
    }
    for (const std::string& part : now) {
        EXPECT_TRUE(std::find(before.begin(), before.end(), part) != before.end() ||
                    std::find(after.begin(), after.end(), part) != after.end())
            << part;
    }
}

/// Copy assignment member by member: a failure leaves some of them assigned.
template <class Record>
void expectAssigns(const std::string& record, std::size_t minimum, const Record& to,
                   const Record& from) {
    Record source(from);
    Record target(to);
    const std::vector<std::string> before = parts(target);
    const std::vector<std::string> after = parts(source);
    tryEveryAllocation(record + " assigned", minimum, [&](Attempt& attempt) {
        Record assigned(to);
        attempt.run([&] { assigned = from; });
        if (attempt.outOfMemory()) {
            expectOldOrNew(before, after, parts(assigned));
            assigned = from;
        }
        EXPECT_EQ(after, parts(assigned));
    });
    EXPECT_EQ(after, parts(source));
}

} // namespace

TEST_F(AllocationFailure, AFailedConstructorLosesNothing) {
    const std::string name = longText("name");
    const std::string date = longText("date");
    LLA centroid{1.0, 2.0, 3.0};

    QenGrower grower(name, uuid(1));
    expectMakes<QenGrower>("QenGrower constructed", 1, text(grower),
                           [&](auto& value) { value.emplace(name, uuid(1)); });
    QenFarm farm(name, uuid(1), uuid(2));
    expectMakes<QenFarm>("QenFarm constructed", 1, text(farm),
                         [&](auto& value) { value.emplace(name, uuid(1), uuid(2)); });
    QenField field(name, uuid(1), uuid(2), uuid(3));
    expectMakes<QenField>("QenField constructed", 1, text(field),
                          [&](auto& value) { value.emplace(name, uuid(1), uuid(2), uuid(3)); });
    QenField fieldWithGeometry(name, uuid(1), uuid(2), uuid(3), date, uuid(4), uuid(5), centroid);
    expectMakes<QenField>(
        "QenField constructed with a geometry", 3, text(fieldWithGeometry), [&](auto& value) {
            value.emplace(name, uuid(1), uuid(2), uuid(3), date, uuid(4), uuid(5), centroid);
        });
    QenFieldGeometry geometry(uuid(1), date, uuid(2), centroid);
    expectMakes<QenFieldGeometry>(
        "QenFieldGeometry constructed", 1, text(geometry),
        [&](auto& value) { value.emplace(uuid(1), date, uuid(2), centroid); });
}

TEST_F(AllocationFailure, AFailedConstructorOfProductDataLosesNothing) {
    const std::string name = longText("name");
    const std::string unit = longText("unit");
    const std::vector<PesticideByPercent> percent = {test::longPercentLine(1, "present"),
                                                     test::longPercentLine(2, "present")};
    const std::vector<PesticideByAmount> amount = {test::longAmountLine(1, "present"),
                                                   test::longAmountLine(2, "present")};

    CommercialFertilizerRec commercial(uuid(1), 2, name, 3, unit);
    expectMakes<CommercialFertilizerRec>(
        "CommercialFertilizerRec constructed", 2, text(commercial),
        [&](auto& value) { value.emplace(uuid(1), 2, name, 3, unit); });
    const auto makeCustom = [&](auto& value) {
        value.emplace(uuid(1), uuid(2), name, 3, unit, 4, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, 11.0, 12.0,
                      13.0, 14.0, 15.0, 16.0, 17.0, 18.0);
    };
    std::optional<CustomFertilizerRec> custom;
    makeCustom(custom);
    expectMakes<CustomFertilizerRec>("CustomFertilizerRec constructed", 2, text(*custom),
                                     makeCustom);
    PlantingRec planting(uuid(1), 2, name, 3, name, 4, name, 5, unit);
    expectMakes<PlantingRec>("PlantingRec constructed", 4, text(planting), [&](auto& value) {
        value.emplace(uuid(1), 2, name, 3, name, 4, name, 5, unit);
    });
    PesticideRec pesticide(uuid(1), percent, amount, name, 2, unit);
    expectMakes<PesticideRec>("PesticideRec constructed", 14, text(pesticide), [&](auto& value) {
        value.emplace(uuid(1), percent, amount, name, 2, unit);
    });
    PestProduct product(1, name, 2, unit, Additive, 3.0);
    expectMakes<PestProduct>("PestProduct constructed", 2, text(product),
                             [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0); });
    expectMakes<PesticideByPercent>(
        "PesticideByPercent constructed", 2, text(product),
        [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0); });
    PesticideByAmount line(1, name, 2, unit, Additive, 3.0, 4, unit);
    expectMakes<PesticideByAmount>(
        "PesticideByAmount constructed", 3, text(line),
        [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0, 4, unit); });
}

// The texts are copied before the constructor begins, so when that fails it has not taken the
// product data over.
TEST_F(AllocationFailure, AFailedConstructorOfARecLeavesTheProductDataToTheCaller) {
    const std::string name = longText("text");
    tryEveryAllocation("QenRec constructed", 8, [&](Attempt& attempt) {
        std::unique_ptr<QenRecData> data = test::longData(RecTypePesticide, 1, "present");
        const std::string expected = text(data);
        std::optional<QenRec> rec;
        attempt.run([&] {
            rec.emplace(uuid(1), uuid(2), name, uuid(3), uuid(4), name, name, name, uuid(5), name,
                        6, uuid(7), data.get(), 1.0, 2.0, 3.0, name, 8, 4.0, 9, name, 5.0, 10, name,
                        false, uuid(8));
        });
        EXPECT_EQ(!attempt.outOfMemory(), rec.has_value());
        EXPECT_EQ(expected, text(data));
        if (rec) {
            EXPECT_EQ(data.get(), rec->recData());
            EXPECT_EQ(name, rec->areaUom());
            data.release(); // NOLINT(bugprone-unused-return-value): it is the rec's
        }
    });
}

TEST_F(AllocationFailure, AFailedCopyLosesNothingAndLeavesTheOriginal) {
    PestProduct product = test::longPercentLine(1, "present");
    PesticideByPercent percent = test::longPercentLine(1, "present");
    PesticideByAmount amount = test::longAmountLine(1, "present");
    auto commercial = dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present");
    auto custom = dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present");
    auto planting = dataOf<PlantingRec>(RecTypePlanting, "present");
    auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    QenFieldGeometry geometry = test::longGeometry(1, "present");
    QenField field = manyRecs("present", 10);
    QenFarm farm = test::longFarm(1, "present", {field, test::longField(31, "present", {}, {})});
    QenGrower grower = test::longGrower(1, "present", {farm, test::longFarm(2, "present", {})});

    expectCopies("PestProduct", 2, product);
    expectCopies("PesticideByPercent", 2, percent);
    expectCopies("PesticideByAmount", 3, amount);
    expectCopies("CommercialFertilizerRec", 2, commercial);
    expectCopies("CustomFertilizerRec", 2, custom);
    expectCopies("PlantingRec", 4, planting);
    expectCopies("PesticideRec", 14, pesticide);
    for (const RecType kind : allKinds) {
        QenRec rec = test::longRec(1, kind, "present");
        expectCopies(std::string("QenRec with ") + nameOf(kind), 9, rec);
    }
    expectCopies("QenFieldGeometry", 1, geometry);
    expectCopies("QenField", 70, field);
    expectCopies("QenFarm", 73, farm);
    expectCopies("QenGrower", 76, grower);
}

TEST_F(AllocationFailure, AFailedAssignmentLeavesEachMemberOldOrNew) {
    expectAssigns<PestProduct>("PestProduct", 2, test::longPercentLine(1, "present"),
                               test::longPercentLine(2, "incoming"));
    expectAssigns("PesticideByPercent", 2, test::longPercentLine(1, "present"),
                  test::longPercentLine(2, "incoming"));
    expectAssigns("PesticideByAmount", 3, test::longAmountLine(1, "present"),
                  test::longAmountLine(2, "incoming"));
    expectAssigns("CommercialFertilizerRec", 2,
                  dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present"),
                  dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "incoming"));
    expectAssigns("CustomFertilizerRec", 2,
                  dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present"),
                  dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "incoming"));
    expectAssigns("PlantingRec", 4, dataOf<PlantingRec>(RecTypePlanting, "present"),
                  dataOf<PlantingRec>(RecTypePlanting, "incoming"));
    expectAssigns("PesticideRec with more lines", 18,
                  dataOf<PesticideRec>(RecTypePesticide, "present"),
                  dataOf<PesticideRec>(RecTypePesticide, "incoming"));
    const PesticideRec longerTexts(
        uuid(2), {test::longPercentLine(3, "incoming"), test::longPercentLine(4, "incoming")},
        {test::longAmountLine(3, "incoming"), test::longAmountLine(4, "incoming")},
        std::string(200, 'm'), 5, std::string(200, 'u'));
    expectAssigns("PesticideRec with as many lines", 12,
                  dataOf<PesticideRec>(RecTypePesticide, "present"), longerTexts);
    expectAssigns("QenFieldGeometry", 1, test::longGeometry(1, "present"),
                  test::longGeometry(2, "incoming"));
}

TEST_F(AllocationFailure, AFailedAssignmentOfAFieldChangesNothing) {
    expectAllOrNothing<QenField>(
        "QenField assigned", 70, manyRecs("present", 10),
        [from = manyRecs("incoming", 13)](QenField& field) { field = from; });
}

TEST_F(AllocationFailure, AFailedAssignmentOfAFarmOrGrowerLeavesEachFieldOldOrNew) {
    const QenFarm small = test::longFarm(
        1, "present",
        {test::longField(31, "present", {10}, {}), test::longField(30, "present", {11, 12}, {20})});
    const QenFarm large = test::longFarm(2, "incoming",
                                         {test::longField(30, "incoming", {12}, {20, 21}),
                                          test::longField(31, "incoming", {13, 14}, {}),
                                          test::longField(32, "incoming", {}, {})});
    expectAssigns("QenFarm to more fields", 40, small, large);
    expectAssigns("QenFarm to fewer fields", 30, large, small);
    expectAssigns("QenGrower to more farms", 80, test::longGrower(1, "present", {small}),
                  test::longGrower(2, "incoming", {large, small}));
    expectAssigns("QenGrower to fewer farms", 80,
                  test::longGrower(2, "present", {small, large, large}),
                  test::longGrower(1, "incoming", {large, small}));
}

TEST_F(AllocationFailure, AFailedAssignmentOfARecKeepsItsProductData) {
    const auto plain = [](QenRec rec) {
        delete rec.recData();
        rec.setRecData(nullptr);
        return text(rec);
    };
    std::size_t textPoints = 0; // those of the texts come before those of the product data
    for (const RecType kind : allKinds) {
        for (const RecType held : {RecTypeNone, RecTypePesticide}) {
            QenRec source = test::longRec(2, kind, "incoming");
            const QenRec original = test::longRec(1, held, "present");
            const std::string expected = text(source);
            const std::string before = plain(original);
            const std::string after = plain(source);
            const std::size_t points = tryEveryAllocation(
                std::string("QenRec with ") + nameOf(kind) + " assigned over " + nameOf(held),
                kind == RecTypeNone ? 9 : 12, [&](Attempt& attempt) {
                    QenRec target(original);
                    const std::unique_ptr<QenRecData> data(target.recData()); // lost by assigning
                    const std::string dataBefore = test::describe(data.get());
                    attempt.run([&] { target = source; });
                    if (attempt.outOfMemory()) {
                        EXPECT_EQ(data.get(), target.recData());
                        EXPECT_EQ(dataBefore, test::describe(data.get()));
                        expectOldOrNew(words(before), words(after), words(plain(target)));
                        if (attempt.point() > textPoints && kind != RecTypeNone) {
                            EXPECT_EQ(after, plain(target));
                        }
                        target = source;
                    }
                    EXPECT_EQ(expected, text(target));
                });
            if (kind == RecTypeNone)
                textPoints = points;
            EXPECT_EQ(expected, text(source));
        }
    }
    EXPECT_EQ(9U, textPoints);
}
