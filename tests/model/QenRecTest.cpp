#include "model/QenRec.h"

#include <memory>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/Property.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"
#include "tests/support/WatchedMemory.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::describe;
using test::hasType;

template <class Value>
using Getter = test::Getter<QenRec, Value>;

template <class Value>
using Setter = test::Setter<QenRec, Value>;

static_assert(!std::is_polymorphic_v<QenRec>, "nothing virtual, the destructor included");
static_assert(std::is_default_constructible_v<QenRec>);
static_assert(
    std::is_constructible_v<QenRec, uuid, uuid, string, uuid, uuid, string, string, string, uuid,
                            string, int, uuid, QenRecData*, double, double, double, string, int,
                            double, int, string, double, int, string, bool, uuid>);
static_assert(std::is_copy_constructible_v<QenRec>);
static_assert(std::is_move_constructible_v<QenRec> && !std::is_nothrow_move_constructible_v<QenRec>,
              "a moved rec is a copied rec");
static_assert(std::is_move_assignable_v<QenRec> && !std::is_nothrow_move_assignable_v<QenRec>);
static_assert(hasType<QenRec& (QenRec::*)(const QenRec&)>(&QenRec::operator=));
static_assert(hasType<test::Comparison<QenRec>>(&QenRec::operator==));
static_assert(!test::hasNotEqual<QenRec>);

static_assert(hasType<Getter<uuid>>(&QenRec::fieldId));
static_assert(hasType<Getter<uuid>>(&QenRec::fieldGeometryId));
static_assert(hasType<Getter<string>>(&QenRec::name));
static_assert(hasType<Getter<uuid>>(&QenRec::id));
static_assert(hasType<Getter<uuid>>(&QenRec::recGeometry));
static_assert(hasType<Getter<string>>(&QenRec::creationDate));
static_assert(hasType<Getter<string>>(&QenRec::editDate));
static_assert(hasType<Getter<string>>(&QenRec::recDbfCol));
static_assert(hasType<Getter<string>>(&QenRec::operationName));
static_assert(hasType<Getter<uuid>>(&QenRec::operationId));
static_assert(hasType<Getter<string>>(&QenRec::seasonName));
static_assert(hasType<Getter<int>>(&QenRec::seasonId));
static_assert(hasType<Getter<uuid>>(&QenRec::mgmtZoneId));
static_assert(hasType<Getter<QenRecData*>>(&QenRec::recData));
static_assert(hasType<Getter<double>>(&QenRec::minimumRate));
static_assert(hasType<Getter<double>>(&QenRec::maximumRate));
static_assert(hasType<Getter<double>>(&QenRec::averageRate));
static_assert(hasType<Getter<int>>(&QenRec::rateUomId));
static_assert(hasType<Getter<string>>(&QenRec::rateUom));
static_assert(hasType<Getter<double>>(&QenRec::total));
static_assert(hasType<Getter<int>>(&QenRec::totalUomId));
static_assert(hasType<Getter<string>>(&QenRec::totalUom));
static_assert(hasType<Getter<double>>(&QenRec::area));
static_assert(hasType<Getter<int>>(&QenRec::areaUomId));
static_assert(hasType<Getter<string>>(&QenRec::areaUom));
static_assert(hasType<Getter<bool>>(&QenRec::isUsed));
static_assert(hasType<Getter<uuid>>(&QenRec::xmlFileName), "a UUID, not a text");

static_assert(hasType<Setter<uuid>>(&QenRec::setFieldId));
static_assert(hasType<Setter<uuid>>(&QenRec::setFieldGeometryId));
static_assert(hasType<Setter<string>>(&QenRec::setName));
static_assert(hasType<Setter<uuid>>(&QenRec::setId));
static_assert(hasType<Setter<uuid>>(&QenRec::setRecGeometry));
static_assert(hasType<Setter<string>>(&QenRec::setCreationDate));
static_assert(hasType<Setter<string>>(&QenRec::setEditDate));
static_assert(hasType<Setter<string>>(&QenRec::setRecDbfCol));
static_assert(hasType<Setter<string>>(&QenRec::setOperationName));
static_assert(hasType<Setter<uuid>>(&QenRec::setOperationId));
static_assert(hasType<Setter<string>>(&QenRec::setSeasonName));
static_assert(hasType<Setter<int>>(&QenRec::setSeasonId));
static_assert(hasType<Setter<uuid>>(&QenRec::setMgMtZoneId), "spelt unlike its getter");
static_assert(hasType<Setter<QenRecData*>>(&QenRec::setRecData));
static_assert(hasType<Setter<double>>(&QenRec::setMinimumRate));
static_assert(hasType<Setter<double>>(&QenRec::setMaximumRate));
static_assert(hasType<Setter<double>>(&QenRec::setAverageRate));
static_assert(hasType<Setter<int>>(&QenRec::setRateUomId));
static_assert(hasType<Setter<string>>(&QenRec::setRateUom));
static_assert(hasType<Setter<double>>(&QenRec::setTotal));
static_assert(hasType<Setter<int>>(&QenRec::setTotalUomId));
static_assert(hasType<Setter<string>>(&QenRec::setTotalUom));
static_assert(hasType<Setter<double>>(&QenRec::setArea));
static_assert(hasType<Setter<int>>(&QenRec::setAreaUomId));
static_assert(hasType<Setter<string>>(&QenRec::setAreaUom));
static_assert(hasType<Setter<bool>>(&QenRec::setIsUsed));
static_assert(hasType<Setter<uuid>>(&QenRec::setXmlFileName));

/// Every value of a rec but its product data.
std::vector<test::Property<QenRec>> properties() {
    using test::property;
    using Rec = QenRec;
    return {
        property<Rec>("fieldId", &Rec::fieldId, &Rec::setFieldId, test::uuid(101)),
        property<Rec>("fieldGeometryId", &Rec::fieldGeometryId, &Rec::setFieldGeometryId,
                      test::uuid(102)),
        property<Rec>("name", &Rec::name, &Rec::setName, string("a name")),
        property<Rec>("id", &Rec::id, &Rec::setId, test::uuid(103)),
        property<Rec>("recGeometry", &Rec::recGeometry, &Rec::setRecGeometry, test::uuid(104)),
        property<Rec>("creationDate", &Rec::creationDate, &Rec::setCreationDate, string("born")),
        property<Rec>("editDate", &Rec::editDate, &Rec::setEditDate, string("edited")),
        property<Rec>("recDbfCol", &Rec::recDbfCol, &Rec::setRecDbfCol, string("a column")),
        property<Rec>("operationName", &Rec::operationName, &Rec::setOperationName,
                      string("an operation")),
        property<Rec>("operationId", &Rec::operationId, &Rec::setOperationId, test::uuid(105)),
        property<Rec>("seasonName", &Rec::seasonName, &Rec::setSeasonName, string("a season")),
        property<Rec>("seasonId", &Rec::seasonId, &Rec::setSeasonId, 106),
        property<Rec>("mgmtZoneId", &Rec::mgmtZoneId, &Rec::setMgMtZoneId, test::uuid(107)),
        property<Rec>("minimumRate", &Rec::minimumRate, &Rec::setMinimumRate, 108.5),
        property<Rec>("maximumRate", &Rec::maximumRate, &Rec::setMaximumRate, 109.5),
        property<Rec>("averageRate", &Rec::averageRate, &Rec::setAverageRate, 110.5),
        property<Rec>("rateUomId", &Rec::rateUomId, &Rec::setRateUomId, 111),
        property<Rec>("rateUom", &Rec::rateUom, &Rec::setRateUom, string("a rate's unit")),
        property<Rec>("total", &Rec::total, &Rec::setTotal, 112.5),
        property<Rec>("totalUomId", &Rec::totalUomId, &Rec::setTotalUomId, 113),
        property<Rec>("totalUom", &Rec::totalUom, &Rec::setTotalUom, string("a total's unit")),
        property<Rec>("area", &Rec::area, &Rec::setArea, -114.5),
        property<Rec>("areaUomId", &Rec::areaUomId, &Rec::setAreaUomId, -115),
        property<Rec>("areaUom", &Rec::areaUom, &Rec::setAreaUom, string("an area's unit")),
        property<Rec>("isUsed", &Rec::isUsed, &Rec::setIsUsed, true),
        property<Rec>("xmlFileName", &Rec::xmlFileName, &Rec::setXmlFileName, test::uuid(116)),
    };
}

/// A rec of the full constructor. No two of its values of one type are the same.
QenRec wholeRec(QenRecData* data = nullptr, bool isUsed = false) {
    return QenRec(test::uuid(1), test::uuid(2), "name", test::uuid(3), test::uuid(4), "created",
                  "column", "operation", test::uuid(5), "season", 6, test::uuid(7), data, 8.5, 9.5,
                  10.5, "rate unit", 11, 12.5, 13, "total unit", 14.5, 15, "area unit", isUsed,
                  test::uuid(16));
}

PlantingRec* planting(int cropId = 1) {
    return new PlantingRec(test::uuid(1), cropId, "crop", 2, "company", 3, "variety", 4, "seeds");
}

/// Counts how many were destroyed. Its kind is none of a variant.
class CountingRecData : public QenRecData {
public:
    explicit CountingRecData(int& destroyed, RecType recType = RecTypeNone)
        : QenRecData(test::uuid(1), recType), destroyed_(destroyed) {}
    CountingRecData(const CountingRecData&) = delete;
    CountingRecData& operator=(const CountingRecData&) = delete;
    ~CountingRecData() override { ++destroyed_; }

private:
    int& destroyed_;
};

/// A rec whose product data reports this kind, whatever it means.
QenRec recOfKind(RecType kind) {
    return wholeRec(new QenRecData(test::uuid(1), kind));
}

} // namespace

TEST(QenRec, IsEmptyByDefault) {
    QenRec rec;
    EXPECT_EQ(rec.fieldId(), uuid{});
    EXPECT_EQ(rec.fieldGeometryId(), uuid{});
    EXPECT_EQ(rec.name(), "");
    EXPECT_EQ(rec.id(), uuid{});
    EXPECT_EQ(rec.recGeometry(), uuid{});
    EXPECT_EQ(rec.creationDate(), "");
    EXPECT_EQ(rec.editDate(), "");
    EXPECT_EQ(rec.recDbfCol(), "");
    EXPECT_EQ(rec.operationName(), "");
    EXPECT_EQ(rec.operationId(), uuid{});
    EXPECT_EQ(rec.seasonName(), "");
    EXPECT_EQ(rec.seasonId(), -1);
    EXPECT_EQ(rec.mgmtZoneId(), uuid{});
    EXPECT_EQ(rec.recData(), nullptr);
    EXPECT_EQ(rec.minimumRate(), 0.0);
    EXPECT_EQ(rec.maximumRate(), 0.0);
    EXPECT_EQ(rec.averageRate(), 0.0);
    EXPECT_EQ(rec.rateUomId(), -1);
    EXPECT_EQ(rec.rateUom(), "");
    EXPECT_EQ(rec.total(), 0.0);
    EXPECT_EQ(rec.totalUomId(), -1);
    EXPECT_EQ(rec.totalUom(), "");
    EXPECT_EQ(rec.area(), 0.0);
    EXPECT_EQ(rec.areaUomId(), -1);
    EXPECT_EQ(rec.areaUom(), "");
    EXPECT_FALSE(rec.isUsed());
    EXPECT_EQ(rec.xmlFileName(), uuid{});
}

TEST(QenRec, ReturnsEveryValueThatItWasBuiltWith) {
    PlantingRec* data = planting();
    QenRec rec = QenRec(test::uuid(1), test::uuid(2), "name", test::uuid(3), test::uuid(4),
                        "created", "column", "operation", test::uuid(5), "season", 6, test::uuid(7),
                        data, 8.5, 9.5, 10.5, "rate unit", 11, 12.5, 13, "total unit", 14.5, 15,
                        "area unit", true, test::uuid(16));
    EXPECT_EQ(rec.fieldId(), test::uuid(1));
    EXPECT_EQ(rec.fieldGeometryId(), test::uuid(2));
    EXPECT_EQ(rec.name(), "name");
    EXPECT_EQ(rec.id(), test::uuid(3));
    EXPECT_EQ(rec.recGeometry(), test::uuid(4));
    EXPECT_EQ(rec.creationDate(), "created");
    EXPECT_EQ(rec.recDbfCol(), "column");
    EXPECT_EQ(rec.operationName(), "operation");
    EXPECT_EQ(rec.operationId(), test::uuid(5));
    EXPECT_EQ(rec.seasonName(), "season");
    EXPECT_EQ(rec.seasonId(), 6);
    EXPECT_EQ(rec.mgmtZoneId(), test::uuid(7));
    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(rec.minimumRate(), 8.5);
    EXPECT_EQ(rec.maximumRate(), 9.5);
    EXPECT_EQ(rec.averageRate(), 10.5);
    EXPECT_EQ(rec.rateUom(), "rate unit");
    EXPECT_EQ(rec.rateUomId(), 11);
    EXPECT_EQ(rec.total(), 12.5);
    EXPECT_EQ(rec.totalUomId(), 13);
    EXPECT_EQ(rec.totalUom(), "total unit");
    EXPECT_EQ(rec.area(), 14.5);
    EXPECT_EQ(rec.areaUomId(), 15);
    EXPECT_EQ(rec.areaUom(), "area unit");
    EXPECT_TRUE(rec.isUsed());
    EXPECT_EQ(rec.xmlFileName(), test::uuid(16));
}

TEST(QenRec, HasNoEditDateWhenBuiltWhole) {
    EXPECT_EQ(wholeRec().editDate(), "");
}

TEST(QenRec, IsNotUsedWhenBuiltSo) {
    EXPECT_FALSE(wholeRec(nullptr, false).isUsed());
}

TEST(QenRec, EachSetterReplacesItsOwnValueAndNoOther) {
    for (const test::Property<QenRec>& property : properties()) {
        SCOPED_TRACE(property.name);
        QenRec original = wholeRec();
        QenRec rec = wholeRec(planting());
        QenRecData* const data = rec.recData();
        property.set(rec);
        EXPECT_EQ(values(properties(), rec), valuesWith(property, properties(), original));
        EXPECT_EQ(rec.recData(), data);
    }
}

TEST(QenRec, SetRecDataStoresThePointerAndChangesNothingElse) {
    QenRec original = wholeRec();
    QenRec rec = wholeRec();
    PlantingRec* const data = planting();
    rec.setRecData(data);
    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(values(properties(), rec), values(properties(), original));
}

TEST(QenRec, SetRecDataDoesNotDeleteTheEarlierProductData) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(rec.recData());
        rec.setRecData(planting());
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1) << "only the test deletes it";
}

TEST(QenRec, SetRecDataOfNullLeavesTheRecWithoutProductData) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(rec.recData());
        rec.setRecData(nullptr);
        EXPECT_EQ(rec.recData(), nullptr);
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, DeletesItsProductDataWhenDestroyed) {
    int destroyed = 0;
    {
        QenRec rec;
        rec.setRecData(new CountingRecData(destroyed));
    }
    EXPECT_EQ(destroyed, 1);
    { const QenRec rec = wholeRec(new CountingRecData(destroyed)); }
    EXPECT_EQ(destroyed, 2);
}

TEST(QenRec, EqualityComparesTheIdAlone) {
    QenRec rec = wholeRec(planting());
    for (const test::Property<QenRec>& property : properties()) {
        SCOPED_TRACE(property.name);
        QenRec other = rec;
        property.set(other);
        EXPECT_EQ(rec == other, property.name != "id");
    }
}

TEST(QenRec, RecsOfOneIdAndDifferentProductDataAreEqual) {
    const QenRec one = wholeRec(planting());
    const QenRec other =
        wholeRec(new CommercialFertilizerRec(test::uuid(99), 1, "product", 2, "kg"));
    EXPECT_TRUE(one == other);
    EXPECT_TRUE(one == wholeRec());
}

TEST(QenRec, DefaultConstructedRecsAreEqual) {
    EXPECT_TRUE(QenRec() == QenRec());
}

TEST(QenRec, ACopyHasEveryValue) {
    QenRec rec = wholeRec();
    for (const test::Property<QenRec>& property : properties())
        property.set(rec);
    QenRec copy(rec);
    EXPECT_EQ(values(properties(), copy), values(properties(), rec));
    EXPECT_EQ(copy.editDate(), "edited");
    EXPECT_TRUE(copy.isUsed());
    EXPECT_EQ(copy.xmlFileName(), test::uuid(116));
}

TEST(QenRec, AssignmentCarriesEveryValue) {
    QenRec rec = wholeRec();
    for (const test::Property<QenRec>& property : properties())
        property.set(rec);
    QenRec target = wholeRec();
    QenRec& result = target = rec;
    EXPECT_EQ(&result, &target);
    EXPECT_EQ(values(properties(), target), values(properties(), rec));
}

TEST(QenRec, AssignmentCarriesTheUsedMarkAndTheFileName) {
    QenRec used = wholeRec(nullptr, true);
    QenRec notUsed = wholeRec(nullptr, false);
    notUsed.setXmlFileName(test::uuid(17));

    QenRec target = notUsed;
    target = used;
    EXPECT_TRUE(target.isUsed());
    EXPECT_EQ(target.xmlFileName(), test::uuid(16));

    target = notUsed;
    EXPECT_FALSE(target.isUsed());
    EXPECT_EQ(target.xmlFileName(), test::uuid(17));
}

TEST(QenRec, ACopyOfARecWithoutProductDataHasNone) {
    const QenRec rec = wholeRec();
    EXPECT_EQ(QenRec(rec).recData(), nullptr);
    QenRec target;
    target = rec;
    EXPECT_EQ(target.recData(), nullptr);
}

TEST(QenRec, AssigningARecWithoutProductDataTakesTheTargetsAway) {
    int destroyed = 0;
    {
        QenRec target = wholeRec(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(target.recData());
        target = wholeRec();
        EXPECT_EQ(target.recData(), nullptr);
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, AssignmentDoesNotDeleteTheEarlierProductData) {
    int destroyed = 0;
    {
        const QenRec source = wholeRec(planting());
        QenRec target = wholeRec(new CountingRecData(destroyed));
        const std::unique_ptr<QenRecData> earlier(target.recData());
        target = source;
        EXPECT_EQ(destroyed, 0);
        EXPECT_NE(target.recData(), earlier.get());
    }
    EXPECT_EQ(destroyed, 1) << "only the test deletes it";
}

TEST(QenRec, SelfAssignmentChangesNothing) {
    QenRec rec = wholeRec(planting());
    rec.setEditDate("edited");
    QenRecData* const data = rec.recData();
    const string before = describe(rec);
    const QenRec& itself = rec;
    rec = itself;
    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, SelfAssignmentKeepsProductDataOfAKindThatCopiesDrop) {
    QenRec rec = recOfKind(RecTypeNone);
    QenRecData* const data = rec.recData();
    const QenRec& itself = rec;
    rec = itself;
    EXPECT_EQ(rec.recData(), data);
}

TEST(QenRec, MovingIsCopying) {
    QenRec rec = wholeRec(planting());
    const string before = describe(rec);
    QenRecData* const data = rec.recData();

    QenRec constructed(std::move(rec));
    EXPECT_EQ(describe(constructed), before);
    EXPECT_NE(constructed.recData(), data);

    QenRec assigned;
    assigned = std::move(rec); // NOLINT(bugprone-use-after-move): that it may be used is the point
    EXPECT_EQ(describe(assigned), before);
    EXPECT_NE(assigned.recData(), data);

    EXPECT_EQ(rec.recData(), data);
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, CopiesAPlanting) {
    QenRec rec = wholeRec(
        new PlantingRec(test::uuid(21), 22, "crop", 23, "company", 24, "variety", 25, "seeds"));
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_NE(copy.recData(), rec.recData());
    EXPECT_EQ(copy.recData()->recType(), RecTypePlanting);
    auto* data = dynamic_cast<PlantingRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->recId(), test::uuid(21));
    EXPECT_EQ(data->cropId(), 22);
    EXPECT_EQ(data->cropName(), "crop");
    EXPECT_EQ(data->companyId(), 23);
    EXPECT_EQ(data->companyName(), "company");
    EXPECT_EQ(data->varietyId(), 24);
    EXPECT_EQ(data->varietyName(), "variety");
    EXPECT_EQ(data->uomId(), 25);
    EXPECT_EQ(data->uom(), "seeds");
}

TEST(QenRec, CopiesACommercialFertilizer) {
    QenRec rec = wholeRec(new CommercialFertilizerRec(test::uuid(21), 22, "product", 23, "kg"));
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_NE(copy.recData(), rec.recData());
    EXPECT_EQ(copy.recData()->recType(), RecTypeCommercialFertilizer);
    auto* data = dynamic_cast<CommercialFertilizerRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->recId(), test::uuid(21));
    EXPECT_EQ(data->productId(), 22);
    EXPECT_EQ(data->productName(), "product");
    EXPECT_EQ(data->uomId(), 23);
    EXPECT_EQ(data->uom(), "kg");
}

TEST(QenRec, CopiesACustomFertilizer) {
    QenRec rec = wholeRec(new CustomFertilizerRec(test::uuid(21), test::uuid(22), "blend", 23, "l",
                                                  24, 25.5, 26.5, 27.5, 28.5, 29.5, 30.5, 31.5,
                                                  32.5, 33.5, 34.5, 35.5, 36.5, 37.5, 38.5));
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_NE(copy.recData(), rec.recData());
    EXPECT_EQ(copy.recData()->recType(), RecTypeCustomFertilizer);
    auto* data = dynamic_cast<CustomFertilizerRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->recId(), test::uuid(21));
    EXPECT_EQ(data->productId(), test::uuid(22));
    EXPECT_EQ(data->productName(), "blend");
    EXPECT_EQ(data->uomId(), 23);
    EXPECT_EQ(data->uom(), "l");
    EXPECT_EQ(data->sFertT_ID(), 24);
    EXPECT_EQ(data->spGravity(), 25.5);
    EXPECT_EQ(data->pct_N(), 26.5);
    EXPECT_EQ(data->pct_P(), 27.5);
    EXPECT_EQ(data->pct_K(), 28.5);
    EXPECT_EQ(data->pct_Ca(), 29.5);
    EXPECT_EQ(data->pct_Mg(), 30.5);
    EXPECT_EQ(data->pct_S(), 31.5);
    EXPECT_EQ(data->pct_Fe(), 32.5);
    EXPECT_EQ(data->pct_Mn(), 33.5);
    EXPECT_EQ(data->pct_Zn(), 34.5);
    EXPECT_EQ(data->pct_Cu(), 35.5);
    EXPECT_EQ(data->pct_B(), 36.5);
    EXPECT_EQ(data->pct_Mo(), 37.5);
    EXPECT_EQ(data->pct_Cl(), 38.5);
}

TEST(QenRec, CopiesAPesticideMixWithItsLines) {
    QenRec rec = wholeRec(new PesticideRec(
        test::uuid(21),
        {PesticideByPercent(1, "first", 2, "code 1", Herbicide, 12.5),
         PesticideByPercent(3, "second", 4, "code 2", Additive, 87.5)},
        {PesticideByAmount(5, "third", 6, "code 3", Carrier, 3.5, 7, "gal")}, "mix", 22, "l"));
    const string before = describe(rec.recData());

    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_NE(copy.recData(), rec.recData());
    EXPECT_EQ(copy.recData()->recType(), RecTypePesticide);
    EXPECT_EQ(describe(copy.recData()), before);
    auto* data = dynamic_cast<PesticideRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->recId(), test::uuid(21));
    EXPECT_EQ(data->pesticideMixName(), "mix");
    EXPECT_EQ(data->uomId(), 22);
    EXPECT_EQ(data->uom(), "l");
    ASSERT_EQ(data->pesticidesByPercent().size(), 2U);
    EXPECT_EQ(data->pesticidesByPercent()[0].productName(), "first");
    EXPECT_EQ(data->pesticidesByPercent()[1].productName(), "second");
    ASSERT_EQ(data->pesticidesByAmount().size(), 1U);
    EXPECT_EQ(data->pesticidesByAmount()[0].productName(), "third");

    data->setPesticideMixName("other mix");
    data->setUom("other unit");
    data->addPesticideByPercent(PesticideByPercent(8, "fourth", 9, "code 4", Fungicide, 1.0));
    data->addPesticideByAmount(PesticideByAmount(8, "fifth", 9, "code 5", Carrier, 1.0, 1, "l"));
    EXPECT_EQ(describe(rec.recData()), before);
}

TEST(QenRec, ChangingTheProductDataOfACopyLeavesTheSourceAlone) {
    QenRec rec = wholeRec(new CustomFertilizerRec(test::uuid(21), test::uuid(22), "blend", 23, "l",
                                                  24, 25.5, 26.5, 27.5, 28.5, 29.5, 30.5, 31.5,
                                                  32.5, 33.5, 34.5, 35.5, 36.5, 37.5, 38.5));
    const string before = describe(rec);
    QenRec copy(rec);
    auto* data = dynamic_cast<CustomFertilizerRec*>(copy.recData());
    ASSERT_NE(data, nullptr);
    data->setProductName("other blend");
    data->setRecId(test::uuid(31));
    data->setPct_N(99.0);
    copy.setName("other name");
    EXPECT_EQ(describe(rec), before);
}

TEST(QenRec, ProductDataKeepsItsOwnRecIdInACopy) {
    QenRec rec = wholeRec(planting());
    ASSERT_NE(rec.id(), rec.recData()->recId());
    EXPECT_EQ(QenRec(rec).recData()->recId(), rec.recData()->recId());
}

TEST(QenRec, CopiesDropProductDataOfAnUnknownKind) {
    for (const int kind : {0, 5, -1, 2147483647}) {
        SCOPED_TRACE(kind);
        QenRec rec = recOfKind(static_cast<RecType>(kind));
        EXPECT_EQ(QenRec(rec).recData(), nullptr);
        QenRec assigned;
        assigned = rec;
        EXPECT_EQ(assigned.recData(), nullptr);
        EXPECT_NE(rec.recData(), nullptr) << "the source keeps it";
    }
}

TEST(QenRec, CopiesDropADefaultConstructedCustomFertilizer) {
    auto* data = new CustomFertilizerRec();
    data->setRecId(test::uuid(1));
    data->setProductName("blend");
    const QenRec rec = wholeRec(data);
    EXPECT_EQ(QenRec(rec).recData(), nullptr);
    QenRec target;
    target = rec;
    EXPECT_EQ(target.recData(), nullptr);
}

TEST(QenRec, CopiesDropADefaultConstructedPesticideMix) {
    auto* data = new PesticideRec();
    data->setPesticideMixName("mix");
    const QenRec rec = wholeRec(data);
    EXPECT_EQ(QenRec(rec).recData(), nullptr);
    QenRec target;
    target = rec;
    EXPECT_EQ(target.recData(), nullptr);
}

TEST(QenRec, DroppedProductDataIsNotDeletedFromTheSource) {
    int destroyed = 0;
    {
        const QenRec rec = wholeRec(new CountingRecData(destroyed, static_cast<RecType>(5)));
        { const QenRec copy(rec); }
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(QenRec, TheCopysKindDecidesAndNotItsClass) {
    // A class of the caller's own, derived from a variant, is copied as that variant.
    class OwnPlanting : public PlantingRec {
    public:
        OwnPlanting() : PlantingRec(test::uuid(1), 2, "crop", 3, "c", 4, "v", 5, "seeds") {}
    };
    QenRec rec = wholeRec(new OwnPlanting());
    QenRec copy(rec);
    ASSERT_NE(copy.recData(), nullptr);
    EXPECT_EQ(dynamic_cast<OwnPlanting*>(copy.recData()), nullptr);
    EXPECT_EQ(describe(copy.recData()), describe(rec.recData()));
}

TEST(QenRec, CopiesLeaveNothingBehind) {
    const test::LivingMemory before = test::livingMemory();
    {
        const QenRec rec = wholeRec(planting());
        const QenRec copy(rec);
        const QenRec copyOfCopy(copy);
    }
    EXPECT_EQ(test::livingMemory(), before);
}

TEST(QenRec, WithoutMemoryForProductDataTheTargetKeepsItsOwnAndHasTheSourcesOtherValues) {
    // The texts are so short that they need no memory of their own: only the product data does.
    QenRec source;
    for (const test::Property<QenRec>& property : properties())
        property.set(source);
    source.setRecData(planting());
    QenRec expected = source;
    QenRec target;
    QenRecData* const data = planting(5);
    target.setRecData(data);

    ASSERT_TRUE(test::runsOutOfMemory(0, [&] { target = source; }));
    EXPECT_EQ(target.recData(), data);
    EXPECT_EQ(values(properties(), target), values(properties(), expected));
}

TEST(QenRec, RunningOutOfMemoryAnywhereLeavesTheTargetItsProductDataAndLeaksNothing) {
    const string longText(100, 'x');
    QenRec source = wholeRec(
        new PlantingRec(test::uuid(1), 2, longText, 3, longText, 4, longText, 5, longText));
    source.setName(longText);
    source.setAreaUom(longText);
    std::size_t successes = 0;
    for (;; ++successes) {
        SCOPED_TRACE(successes);
        const test::LivingMemory before = test::livingMemory();
        {
            QenRec target = wholeRec(planting(5));
            const std::unique_ptr<QenRecData> earlier(target.recData());
            const bool failed = test::runsOutOfMemory(successes, [&] { target = source; });
            if (!failed)
                break;
            EXPECT_EQ(target.recData(), earlier.get());
            target.setRecData(nullptr); // The test deletes it.
        }
        EXPECT_EQ(test::livingMemory(), before);
    }
    EXPECT_GE(successes, 5U) << "the object, its texts and those of the rec";
}

TEST(QenRec, RunningOutOfMemoryWhileCopyingLeaksNothing) {
    const string longText(100, 'x');
    const QenRec source = wholeRec(new PesticideRec(
        test::uuid(21), {PesticideByPercent(1, longText, 2, longText, Herbicide, 12.5)},
        {PesticideByAmount(5, longText, 6, longText, Carrier, 3.5, 7, longText)}, longText, 22,
        longText));
    std::size_t successes = 0;
    for (;; ++successes) {
        SCOPED_TRACE(successes);
        const test::LivingMemory before = test::livingMemory();
        const bool failed = test::runsOutOfMemory(successes, [&] { const QenRec copy(source); });
        EXPECT_EQ(test::livingMemory(), before);
        if (!failed)
            break;
    }
    EXPECT_GE(successes, 5U);
}
