// Adding, looking up, getting and setting while memory runs out.

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "tests/robustness/AllocationFailure.h"

namespace {

using test::allKinds;
using test::Attempt;
using test::dataOf;
using test::expectAllOrNothing;
using test::expectGets;
using test::manyRecs;
using test::nameOf;
using test::text;
using test::tryEveryAllocation;
using test::uuid;

} // namespace

TEST_F(AllocationFailure, AFailedAddChangesNothing) {
    const QenField field = test::longField(30, "present", {11, 12}, {20});
    const QenFarm farm =
        test::longFarm(40, "present", {field, test::longField(31, "present", {}, {17})});
    const QenGrower grower =
        test::longGrower(50, "present", {farm, test::longFarm(41, "present", {field})});
    const QenField otherField = test::longField(30, "incoming", {11, 13, 14}, {18, 19});
    const QenFarm otherFarm = test::longFarm(40, "incoming", {otherField, field});
    expectAllOrNothing<QenGrower>("addFarm in the place of another", 60, grower,
                                  [&](QenGrower& target) { target.addFarm(otherFarm); });
    const QenFarm newFarm = test::longFarm(42, "incoming", {otherField, field});
    expectAllOrNothing<QenGrower>("addFarm at the end", 60, grower,
                                  [&](QenGrower& target) { target.addFarm(newFarm); });
    expectAllOrNothing<QenFarm>("addField in the place of another", 40, farm,
                                [&](QenFarm& target) { target.addField(otherField); });
    const QenField newField = test::longField(32, "incoming", {11, 13, 14}, {18, 19});
    expectAllOrNothing<QenFarm>("addField at the end", 40, farm,
                                [&](QenFarm& target) { target.addField(newField); });
    const QenFieldGeometry geometry = test::longGeometry(10, "incoming");
    expectAllOrNothing<QenField>("addFieldGeometry", 2, field,
                                 [&](QenField& target) { target.addFieldGeometry(geometry); });
    for (const RecType kind : allKinds) {
        const QenRec rec = test::longRec(20, kind, "incoming");
        expectAllOrNothing<QenField>(std::string("addRec at the end with ") + nameOf(kind), 10,
                                     field, [&](QenField& target) { target.addRec(rec); });
    }
    const auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    const PesticideByPercent percent = test::longPercentLine(9, "incoming");
    expectAllOrNothing<PesticideRec>(
        "addPesticideByPercent", 3, pesticide,
        [&](PesticideRec& target) { target.addPesticideByPercent(percent); });
    const PesticideByAmount amount = test::longAmountLine(9, "incoming");
    expectAllOrNothing<PesticideRec>(
        "addPesticideByAmount", 4, pesticide,
        [&](PesticideRec& target) { target.addPesticideByAmount(amount); });
}

// The product data of a rec that is replaced is the caller's.
TEST_F(AllocationFailure, AFailedAddOfARecInThePlaceOfAnotherChangesNothing) {
    const QenField original = manyRecs("present", 10);
    for (const RecType kind : allKinds) {
        const QenRec rec = test::longRec(14, kind, "incoming");
        tryEveryAllocation(std::string("addRec in the place of another with ") + nameOf(kind), 9,
                           [&](Attempt& attempt) {
                               QenField target(original);
                               QenRec& present = target.recs()[4];
                               const std::string before = text(target);
                               const std::unique_ptr<QenRecData> data(present.recData());
                               attempt.run([&] { target.addRec(rec); });
                               if (attempt.outOfMemory()) {
                                   EXPECT_EQ(data.get(), present.recData());
                                   EXPECT_EQ(before, text(target));
                                   target.addRec(rec);
                               }
                               QenRec expected(rec);
                               EXPECT_EQ(text(expected), text(present));
                           });
    }
}

TEST_F(AllocationFailure, AFailedLookUpChangesNothing) {
    QenField field = test::longField(1, "present", {10, 11, 12, 13, 14}, {20, 21, 20});
    expectGets("geometryDate", 1, field,
               [](QenField& target) { return target.geometryDate(uuid(20)); });
    expectGets("geometryFileName", 1, field,
               [](QenField& target) { return target.geometryFileName(uuid(21)); });
    expectGets("geometries", 4, field, &QenField::geometries);
    for (unsigned rec = 11; rec <= 14; ++rec) {
        expectGets(std::string("rec with ") + nameOf(static_cast<RecType>(rec % 5)), 12, field,
                   [rec](QenField& target) { return target.rec(uuid(rec)); });
    }
}

TEST_F(AllocationFailure, WhatReturnsNoTextOrListNeedsNoMemory) {
    QenField field = test::longField(1, "present", {10, 11}, {20, 21});
    const auto expectNeedsNoMemory = [](const std::string& operation,
                                        const std::function<void()>& run) {
        EXPECT_EQ(0U,
                  tryEveryAllocation(operation, 0, [&](Attempt& attempt) { attempt.run(run); }));
    };
    expectNeedsNoMemory("geometryFileId", [&] { field.geometryFileId(uuid(20)); });
    expectNeedsNoMemory("centroid", [&] { field.centroid(uuid(20)); });
    expectNeedsNoMemory("rec that is not there", [&] { field.rec(uuid(99)); });
    expectNeedsNoMemory("geometryDate that is not there", [&] { field.geometryDate(uuid(99)); });
    expectNeedsNoMemory("geometryFileName that is not there",
                        [&] { field.geometryFileName(uuid(99)); });
    expectNeedsNoMemory("recs", [&] { field.recs(); });
    expectNeedsNoMemory("QenRecData copied and assigned", [] {
        QenRecData data(uuid(1), RecTypePlanting);
        QenRecData copy(data);
        copy = data;
    });
}

TEST_F(AllocationFailure, AFailedGetterChangesNothing) {
    QenGrower grower = test::longGrower(1, "present", {});
    QenFarm farm = test::longFarm(1, "present", {});
    QenField field = test::longField(1, "present", {}, {});
    QenFieldGeometry geometry = test::longGeometry(1, "present");
    expectGets("QenGrower::name", 1, grower, &QenGrower::name);
    expectGets("QenFarm::name", 1, farm, &QenFarm::name);
    expectGets("QenField::name", 1, field, &QenField::name);
    expectGets("QenFieldGeometry::geometryDate", 1, geometry, &QenFieldGeometry::geometryDate);

    QenRec rec = test::longRec(1, RecTypeNone, "present");
    expectGets("QenRec::name", 1, rec, &QenRec::name);
    expectGets("QenRec::creationDate", 1, rec, &QenRec::creationDate);
    expectGets("QenRec::editDate", 1, rec, &QenRec::editDate);
    expectGets("QenRec::recDbfCol", 1, rec, &QenRec::recDbfCol);
    expectGets("QenRec::operationName", 1, rec, &QenRec::operationName);
    expectGets("QenRec::seasonName", 1, rec, &QenRec::seasonName);
    expectGets("QenRec::rateUom", 1, rec, &QenRec::rateUom);
    expectGets("QenRec::totalUom", 1, rec, &QenRec::totalUom);
    expectGets("QenRec::areaUom", 1, rec, &QenRec::areaUom);

    auto commercial = dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present");
    expectGets("CommercialFertilizerRec::productName", 1, commercial,
               &CommercialFertilizerRec::productName);
    expectGets("CommercialFertilizerRec::uom", 1, commercial, &CommercialFertilizerRec::uom);
    auto custom = dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present");
    expectGets("CustomFertilizerRec::productName", 1, custom, &CustomFertilizerRec::productName);
    expectGets("CustomFertilizerRec::uom", 1, custom, &CustomFertilizerRec::uom);
    auto planting = dataOf<PlantingRec>(RecTypePlanting, "present");
    expectGets("PlantingRec::cropName", 1, planting, &PlantingRec::cropName);
    expectGets("PlantingRec::companyName", 1, planting, &PlantingRec::companyName);
    expectGets("PlantingRec::varietyName", 1, planting, &PlantingRec::varietyName);
    expectGets("PlantingRec::uom", 1, planting, &PlantingRec::uom);
    auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    expectGets("PesticideRec::pesticideMixName", 1, pesticide, &PesticideRec::pesticideMixName);
    expectGets("PesticideRec::uom", 1, pesticide, &PesticideRec::uom);
    expectGets("PesticideRec::pesticidesByPercent", 5, pesticide,
               &PesticideRec::pesticidesByPercent);
    expectGets("PesticideRec::pesticidesByAmount", 7, pesticide, &PesticideRec::pesticidesByAmount);
    PesticideByAmount line = test::longAmountLine(1, "present");
    expectGets("PestProduct::productName", 1, line, &PestProduct::productName);
    expectGets("PestProduct::regCode", 1, line, &PestProduct::regCode);
    expectGets("PesticideByAmount::uom", 1, line, &PesticideByAmount::uom);
}

TEST_F(AllocationFailure, AFailedSetterChangesNothing) {
    const std::string longer(200, 'v'); // than the present texts, whose memory it cannot use
    expectAllOrNothing<QenGrower>("QenGrower::setName", 1, test::longGrower(1, "present", {}),
                                  [&](QenGrower& grower) { grower.setName(longer); });
    expectAllOrNothing<QenFarm>("QenFarm::setName", 1, test::longFarm(1, "present", {}),
                                [&](QenFarm& farm) { farm.setName(longer); });
    expectAllOrNothing<QenField>("QenField::setName", 1, test::longField(1, "present", {}, {}),
                                 [&](QenField& field) { field.setName(longer); });

    using SetterOfRec = void (QenRec::*)(std::string);
    for (const auto& [name, setter] : std::initializer_list<std::pair<const char*, SetterOfRec>>{
             {"QenRec::setName", &QenRec::setName},
             {"QenRec::setCreationDate", &QenRec::setCreationDate},
             {"QenRec::setEditDate", &QenRec::setEditDate},
             {"QenRec::setRecDbfCol", &QenRec::setRecDbfCol},
             {"QenRec::setOperationName", &QenRec::setOperationName},
             {"QenRec::setSeasonName", &QenRec::setSeasonName},
             {"QenRec::setRateUom", &QenRec::setRateUom},
             {"QenRec::setTotalUom", &QenRec::setTotalUom},
             {"QenRec::setAreaUom", &QenRec::setAreaUom}}) {
        expectAllOrNothing<QenRec>(name, 1, test::longRec(1, RecTypePlanting, "present"),
                                   [&, set = setter](QenRec& rec) { (rec.*set)(longer); });
    }
    expectAllOrNothing<CustomFertilizerRec>(
        "CustomFertilizerRec::setProductName", 1,
        dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present"),
        [&](CustomFertilizerRec& data) { data.setProductName(longer); });
    expectAllOrNothing<PesticideRec>("PesticideRec::setPesticideMixName", 1,
                                     dataOf<PesticideRec>(RecTypePesticide, "present"),
                                     [&](PesticideRec& data) { data.setPesticideMixName(longer); });
    expectAllOrNothing<PesticideRec>("PesticideRec::setUom", 1,
                                     dataOf<PesticideRec>(RecTypePesticide, "present"),
                                     [&](PesticideRec& data) { data.setUom(longer); });
}
