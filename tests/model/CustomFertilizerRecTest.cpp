#include "model/CustomFertilizerRec.h"

#include <gtest/gtest.h>

#include "tests/support/Property.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::hasType;
using Rec = CustomFertilizerRec;

template <class Value>
using Getter = test::Getter<Rec, Value>;

template <class Value>
using Setter = test::Setter<Rec, const Value&>;

static_assert(std::is_base_of_v<QenRecData, Rec>);
static_assert(std::is_convertible_v<Rec*, QenRecData*>, "the base is public");
static_assert(std::has_virtual_destructor_v<Rec>);
static_assert(std::is_default_constructible_v<Rec>);
static_assert(std::is_constructible_v<Rec, const uuid&, const uuid&, const string&, const int&,
                                      const string&, const int&, const double&, const double&,
                                      const double&, const double&, const double&, const double&,
                                      const double&, const double&, const double&, const double&,
                                      const double&, const double&, const double&, const double&>);

static_assert(hasType<Getter<string>>(&Rec::uom));
static_assert(hasType<Setter<int>>(&Rec::setUom), "a number, not a text");

/// The types of getter and setter are exactly those that are expected.
template <class Value>
test::Property<Rec> row(const string& name, Getter<Value> getter, Setter<Value> setter,
                        const Value& initial, const Value& built, const Value& changed) {
    return test::property<Rec>(name, getter, setter, initial, built, changed);
}

/// Every value that a plain setter replaces: all but the text of the unit. Note
/// setSFert_ID, spelt unlike its getter.
std::vector<test::Property<Rec>> properties() {
    return {
        row<uuid>("recId", &Rec::recId, &Rec::setRecId, {}, test::uuid(1), test::uuid(101)),
        row<uuid>("productId", &Rec::productId, &Rec::setProductId, {}, test::uuid(2),
                  test::uuid(102)),
        row<string>("productName", &Rec::productName, &Rec::setProductName, "", "blend", "other"),
        row<int>("uomId", &Rec::uomId, &Rec::setUomId, -1, 3, 103),
        row<int>("sFertT_ID", &Rec::sFertT_ID, &Rec::setSFert_ID, -1, 4, 104),
        row<double>("spGravity", &Rec::spGravity, &Rec::setSpGravity, 0.0, 5.5, 1.05),
        row<double>("pct_N", &Rec::pct_N, &Rec::setPct_N, 0.0, 6.5, 106.5),
        row<double>("pct_P", &Rec::pct_P, &Rec::setPct_P, 0.0, 7.5, 107.5),
        row<double>("pct_K", &Rec::pct_K, &Rec::setPct_K, 0.0, 8.5, 108.5),
        row<double>("pct_Ca", &Rec::pct_Ca, &Rec::setPct_Ca, 0.0, 9.5, 109.5),
        row<double>("pct_Mg", &Rec::pct_Mg, &Rec::setPct_Mg, 0.0, 10.5, 110.5),
        row<double>("pct_S", &Rec::pct_S, &Rec::setPct_S, 0.0, 11.5, 111.5),
        row<double>("pct_Fe", &Rec::pct_Fe, &Rec::setPct_Fe, 0.0, 12.5, 112.5),
        row<double>("pct_Mn", &Rec::pct_Mn, &Rec::setPct_Mn, 0.0, 13.5, 113.5),
        row<double>("pct_Zn", &Rec::pct_Zn, &Rec::setPct_Zn, 0.0, 14.5, 114.5),
        row<double>("pct_Cu", &Rec::pct_Cu, &Rec::setPct_Cu, 0.0, 15.5, 115.5),
        row<double>("pct_B", &Rec::pct_B, &Rec::setPct_B, 0.0, 16.5, 116.5),
        row<double>("pct_Mo", &Rec::pct_Mo, &Rec::setPct_Mo, 0.0, 17.5, 117.5),
        row<double>("pct_Cl", &Rec::pct_Cl, &Rec::setPct_Cl, 0.0, 18.5, -118.5),
    };
}

Rec blend() {
    return Rec(test::uuid(1), test::uuid(2), "blend", 3, "unit", 4, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5,
               11.5, 12.5, 13.5, 14.5, 15.5, 16.5, 17.5, 18.5);
}

} // namespace

TEST(CustomFertilizerRec, IsEmptyAndOfNoKindByDefault) {
    CustomFertilizerRec data;
    EXPECT_EQ(data.recType(), RecTypeNone);
    EXPECT_EQ(values(properties(), data), values(properties(), &test::Property<Rec>::initialValue));
    EXPECT_EQ(data.uom(), "");
}

TEST(CustomFertilizerRec, ReturnsEveryValueThatItWasBuiltWith) {
    CustomFertilizerRec data = blend();
    EXPECT_EQ(values(properties(), data), values(properties(), &test::Property<Rec>::builtValue));
    EXPECT_EQ(data.uom(), "unit");
}

TEST(CustomFertilizerRec, EachSetterReplacesItsOwnValueAndNoOther) {
    for (const test::Property<Rec>& property : properties()) {
        SCOPED_TRACE(property.name);
        CustomFertilizerRec original = blend();
        CustomFertilizerRec data = blend();
        property.set(data);
        EXPECT_EQ(values(properties(), data), valuesWith(property, properties(), original));
        EXPECT_EQ(data.uom(), "unit");
    }
}

TEST(CustomFertilizerRec, SettersDoNotChangeTheKind) {
    CustomFertilizerRec empty;
    CustomFertilizerRec whole = blend();
    for (const test::Property<Rec>& property : properties()) {
        property.set(empty);
        property.set(whole);
    }
    empty.setUom(65);
    whole.setUom(65);
    EXPECT_EQ(empty.recType(), RecTypeNone);
    EXPECT_EQ(whole.recType(), RecTypeCustomFertilizer);
}

TEST(CustomFertilizerRec, SetUomMakesOneCharacterOfANumber) {
    CustomFertilizerRec data = blend();
    data.setUom(65);
    EXPECT_EQ(data.uom(), "A");
}

TEST(CustomFertilizerRec, SetUomOnlyLooksAtTheLowEightBits) {
    CustomFertilizerRec data;
    data.setUom(321);
    EXPECT_EQ(data.uom(), "A");
    data.setUom(-1);
    EXPECT_EQ(data.uom(), "\xff");
    data.setUom(-191); // 0x...41
    EXPECT_EQ(data.uom(), "A");
    data.setUom(200);
    EXPECT_EQ(data.uom(), "\xc8");
}

TEST(CustomFertilizerRec, SetUomOfZeroMakesOneNulCharacter) {
    CustomFertilizerRec data = blend();
    data.setUom(0);
    EXPECT_EQ(data.uom(), string(1, '\0'));
}

TEST(CustomFertilizerRec, SetUomReplacesNothingElse) {
    CustomFertilizerRec original = blend();
    CustomFertilizerRec data = blend();
    data.setUom(66);
    EXPECT_EQ(values(properties(), data), values(properties(), original));
}
