/// @file
/// What becomes of product data when records come into the lists of others, by being added or
/// merged.

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "model/QenGrower.h"
#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"

namespace {

struct Kind {
    const char* name;
    std::function<QenRecData*()> make;
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

std::string nameOf(const testing::TestParamInfo<Kind>& info) {
    return info.param.name;
}

PesticideRec* mix() {
    auto* result = new PesticideRec(test::uuid(1), {}, {}, "mix", 12, "L");
    result->addPesticideByPercent({1, "one", 2, "code", Herbicide, 12.5});
    result->addPesticideByAmount({2, "two", 3, "code", Carrier, 1.5, 4, "L"});
    return result;
}

const std::vector<Kind> kinds = {
    {"CommercialFertilizer",
     [] { return new CommercialFertilizerRec(test::uuid(1), 46, "Urea", 12, "lb"); }},
    {"CustomFertilizer",
     [] {
         return new CustomFertilizerRec(test::uuid(1), test::uuid(2), "blend", 12, "gal", 3, 1.31,
                                        9.0, 24.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 0.5, 0.25, 0.125,
                                        0.75, 1.0);
     }},
    {"Planting",
     [] { return new PlantingRec(test::uuid(1), 1, "Corn", 2, "Seed", 3, "QM", 4, "seeds"); }},
    {"Pesticide", mix},
};

/// Records from a rec with the product data of a kind up to a grower.
class ProductDataInLists : public testing::TestWithParam<Kind> {
protected:
    ProductDataInLists() {
        rec_.setId(test::uuid(1));
        rec_.setRecData(GetParam().make());
        field_.recs().push_back(rec_);
        farm_.fields().push_back(field_);
        grower_.farms().push_back(farm_);
    }

    void expectIn(QenRec& found) {
        EXPECT_EQ(test::describe(rec_.recData()), test::describe(found.recData()));
        EXPECT_NE(rec_.recData(), found.recData());
    }

    void expectIn(QenField& found) { expectIn(found.recs().at(0)); }
    void expectIn(QenFarm& found) { expectIn(found.fields().at(0)); }
    void expectIn(QenGrower& found) { expectIn(found.farms().at(0)); }

    QenRec rec_;
    QenField field_{"field", test::uuid(11), {}, {}};
    QenFarm farm_{"farm", test::uuid(12), {}};
    QenGrower grower_{"grower", test::uuid(13)};
};

} // namespace

TEST_P(ProductDataInLists, IsThereWhenTheRecIsAdded) {
    QenField other;
    other.addRec(rec_);
    expectIn(other);
    delete other.recs().at(0).recData(); // addRec() leaves it to the caller
    other.recs().at(0).setRecData(nullptr);
    other.addRec(rec_); // in the place of the first one
    expectIn(other);
}

TEST_P(ProductDataInLists, IsThereWhenTheFieldIsAdded) {
    QenFarm other;
    other.addField(field_);
    expectIn(other);
    other.addField(field_);
    expectIn(other);
}

TEST_P(ProductDataInLists, IsThereWhenTheFarmIsAdded) {
    QenGrower other;
    other.addFarm(farm_);
    expectIn(other);
    other.addFarm(farm_);
    expectIn(other);
}

TEST_P(ProductDataInLists, IsThereWhenItsRecordsAreMerged) {
    QenField otherField("field", test::uuid(11), {}, {});
    otherField.merge(field_);
    expectIn(otherField);
    QenFarm otherFarm("farm", test::uuid(12), {});
    otherFarm.merge(farm_);
    expectIn(otherFarm);
    otherFarm.merge(farm_);
    expectIn(otherFarm);
    QenGrower otherGrower("grower", test::uuid(13));
    otherGrower.merge(grower_);
    expectIn(otherGrower);
    otherGrower.merge(grower_);
    expectIn(otherGrower);
}

INSTANTIATE_TEST_SUITE_P(Of, ProductDataInLists, testing::ValuesIn(kinds), nameOf);

TEST(AddedRec, ThatIsATemporaryIsTakenOverWithItsProductData) {
    QenRecData* const data = mix();
    QenField field;
    field.addRec(QenRec({}, {}, "", {}, {}, "", "", "", {}, "", 0, {}, data, 0.0, 0.0, 0.0, "", 0,
                        0.0, 0, "", 0.0, 0, "", false, {}));
    EXPECT_EQ(data, field.recs().at(0).recData());
}

TEST(AddedRec, ThatIsMovedIsCopied) {
    QenRec rec;
    rec.setRecData(mix());
    QenField field;
    field.addRec(std::move(rec));      // NOLINT: that it is a copy is what is tested
    ASSERT_NE(nullptr, rec.recData()); // NOLINT
    EXPECT_NE(rec.recData(), field.recs().at(0).recData());
    EXPECT_EQ(test::describe(rec.recData()), test::describe(field.recs().at(0).recData()));
}
